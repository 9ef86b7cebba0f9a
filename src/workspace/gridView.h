#pragma once

#include "doubleClickWatch.h"
#include "fitColumns.h"
#include "gridModel.h"

#include <QTableView>

namespace workspace {

/// The grid of the lists. A click is a press and a release at the same position; Enter on a row counts as a click.
class GridView : public QTableView {
    Q_OBJECT

public:
    explicit GridView(QWidget* parent = nullptr);

    /// Shows a list and makes a row current: the one with the same id as before if it is the same list, else the first.
    void showRows(store::RowSet rows, const List& list, JobNames names = {});
    void clearRows();
    /// While a row is edited it stays the current one, until another row is clicked.
    void keepCurrentRow(bool isKept) { m_isRowKept = isKept; }

    const GridModel& rows() const { return *m_model; }
    bool hasCurrentRow() const { return currentIndex().isValid(); }
    /// A value of the current row. Throws SubscriptOutOfRange when there is none.
    store::Field field(int column) const { return m_model->rows().at(currentIndex().row(), column); }
    /// The row beside it becomes the current one.
    void removeCurrentRow();

Q_SIGNALS:
    /// A row was clicked and is current, or a list without rows was clicked.
    void gridClicked();
    void gridDoubleClicked();
    /// Another row is current, or none, or its list is shown anew.
    void rowChanged();
    /// The Delete key on the current row.
    void deletePressed();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    ColumnSpan spanOf(int section) const;
    void layOutColumns();
    void makeCurrent(std::optional<qint64> id);
    std::optional<qint64> currentId() const;
    void selectOnly(const QModelIndex& row);
    void askToDelete();
    void copyRows() const;

    GridModel* m_model;
    DoubleClickWatch m_watch;
    QPoint m_pressPosition;
    bool m_isPressedOnTarget = false;
    bool m_isRowKept = false;
};

} // namespace workspace
