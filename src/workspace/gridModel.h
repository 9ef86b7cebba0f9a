#pragma once

#include "jobNames.h"
#include "lists.h"

#include "store/rowSet.h"

#include <QAbstractTableModel>

namespace workspace {

/// The rows that the grid shows, and the list that they belong to.
class GridModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Binds rows together with their list, which must outlive the model.
    void bind(store::RowSet rows, const List& list, JobNames names);
    void unbind();

    /// The bound list, even one without rows; null when none is bound.
    const List* list() const { return m_list; }
    const store::RowSet& rows() const { return m_rows; }
    const JobNames& names() const { return m_names; }
    void removeBoundRow(int row);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const GridColumn& column(int section) const;
    QString nameBehind(const QString& text, NameOf nameOf) const;

    store::RowSet m_rows;
    JobNames m_names;
    const List* m_list = nullptr;
};

} // namespace workspace
