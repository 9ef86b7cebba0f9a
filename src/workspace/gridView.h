#pragma once

#include "doubleClickWatch.h"
#include "gridModel.h"

#include <QTableView>

namespace workspace {

/// The grid of the lists. A click is a press and a release in one place; Enter on a row counts as one.
class GridView : public QTableView {
    Q_OBJECT

public:
    explicit GridView(QWidget* parent = nullptr);

    /// Shows a list and makes a row current: the one whose id was current before in the same list, or else the first.
    void showRows(store::RowSet rows, const GridLayout& layout);
    void showNothing();

    const GridModel& rows() const { return *m_model; }
    int currentRow() const { return currentIndex().row(); }
    void removeRow(int row) { m_model->removeBoundRow(row); }

Q_SIGNALS:
    /// A row was clicked and is current, or a list without rows was clicked.
    void gridClicked();
    void gridDoubleClicked();
    /// The Delete key on the current row.
    void deletePressed();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    int neededWidth(int section) const;
    void layOutColumns();
    void makeCurrent(std::optional<qint64> id);
    std::optional<qint64> currentId() const;

    GridModel* m_model;
    DoubleClickWatch m_watch;
    QPoint m_pressed;
    bool m_pressedOnTarget = false;
};

} // namespace workspace
