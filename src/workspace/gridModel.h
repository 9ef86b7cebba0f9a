#pragma once

#include "gridLayouts.h"

#include "store/rowSet.h"

#include <QAbstractTableModel>

namespace workspace {

/// The rows that are bound to the grid, or none.
class GridModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Binds the rows of a list. The layout must stay alive.
    void bind(store::RowSet rows, const GridLayout& layout);
    void unbind();

    /// The list that is bound, even one without rows; null when nothing is.
    const GridLayout* layout() const { return m_layout; }
    const store::RowSet& rows() const { return m_rows; }
    void removeBoundRow(int row);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const GridColumn& column(int section) const;

    store::RowSet m_rows;
    const GridLayout* m_layout = nullptr;
};

} // namespace workspace
