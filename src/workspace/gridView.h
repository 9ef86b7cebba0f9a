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
    void showRows(store::RowSet rows, const List& list);
    void showNothing();
    /// While a row is edited, it stays the current one: only a click on another row takes over.
    void keepCurrentRow(bool isKept) { m_isRowKept = isKept; }

    const GridModel& rows() const { return *m_model; }
    bool hasCurrentRow() const { return currentIndex().isValid(); }
    /// A value of the current row. Throws SubscriptOutOfRange when there is none.
    store::Field field(int column) const { return m_model->rows().at(currentIndex().row(), column); }
    void removeCurrentRow() { m_model->removeBoundRow(currentIndex().row()); }

Q_SIGNALS:
    /// A row was clicked and is current, or a list without rows was clicked.
    void gridClicked();
    void gridDoubleClicked();
    /// The Delete key on the current row.
    void deletePressed();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
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
    bool m_isRowKept = false;
};

} // namespace workspace
