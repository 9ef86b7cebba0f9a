#include "gridModel.h"

#include "values/money.h"

namespace workspace {

namespace {

QVariant alignment(ColumnLook look)
{
    return QVariant::fromValue(look == ColumnLook::Text ? Qt::AlignLeft | Qt::AlignVCenter
                                                        : Qt::AlignRight | Qt::AlignVCenter);
}

// Called while painting, so it must not throw: a value of another kind than its column is shown unchanged.
QString cellText(const store::Field& field, ColumnLook look)
{
    const bool isNumber =
        std::holds_alternative<double>(field.value()) || std::holds_alternative<qint64>(field.value());
    if (isNumber && look == ColumnLook::Amount)
        return values::currencyText(field.toDouble());
    if (isNumber && look == ColumnLook::Rate)
        return values::rateText(field.toDouble());
    return field.isNull() ? QString() : field.toText();
}

} // namespace

void GridModel::bind(store::RowSet rows, const List& list)
{
    beginResetModel();
    m_rows = std::move(rows);
    m_list = &list;
    endResetModel();
}

void GridModel::unbind()
{
    beginResetModel();
    m_rows = store::RowSet();
    m_list = nullptr;
    endResetModel();
}

void GridModel::removeBoundRow(int row)
{
    beginRemoveRows({}, row, row);
    m_rows.removeRow(row);
    endRemoveRows();
}

int GridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows.rowCount();
}

int GridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() || !m_list ? 0 : static_cast<int>(m_list->columns.size());
}

const GridColumn& GridModel::column(int section) const
{
    return m_list->columns[static_cast<std::size_t>(section)];
}

QVariant GridModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignment(column(index.column()).look);
    if (role == Qt::DisplayRole)
        return cellText(m_rows.at(index.row(), index.column()), column(index.column()).look);
    return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section >= columnCount())
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignment(column(section).look);
    return role == Qt::DisplayRole ? QVariant(column(section).caption) : QVariant();
}

} // namespace workspace
