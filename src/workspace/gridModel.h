#pragma once

#include "lists.h"

#include "store/rowSet.h"

#include <QAbstractTableModel>

namespace workspace {

/// The rows that are bound to the grid, or none.
class GridModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Binds rows together with the list that they are of, which must stay alive.
    void bind(store::RowSet rows, const List& list);
    void unbind();

    /// The list that is bound, even one without rows; null when nothing is.
    const List* list() const { return m_list; }
    const store::RowSet& rows() const { return m_rows; }
    void removeBoundRow(int row);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const GridColumn& column(int section) const;

    store::RowSet m_rows;
    const List* m_list = nullptr;
};

} // namespace workspace
