#include "gridModel.h"

#include "values/money.h"

#include <QTextDocument>

namespace workspace {

namespace {

QVariant alignment(ColumnLook look)
{
    const bool isText = look == ColumnLook::Text || look == ColumnLook::Day;
    return QVariant::fromValue((isText ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
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

void GridModel::bind(store::RowSet rows, const List& list, JobNames names)
{
    beginResetModel();
    m_rows = std::move(rows);
    m_names = std::move(names);
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

QString GridModel::nameBehind(const QString& text, NameOf nameOf) const
{
    switch (nameOf) {
    case NameOf::Client:
        return m_names.clients.value(text);
    case NameOf::Type:
        return m_names.types.value(text).name;
    case NameOf::Nothing:
        break;
    }
    return text;
}

// A tool tip shows a text that looks like markup as such, so the marks in it are escaped.
QVariant GridModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const GridColumn& shown = column(index.column());
    if (role == Qt::TextAlignmentRole)
        return alignment(shown.look);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    const QString text = cellText(m_rows.at(index.row(), index.column()), shown.look);
    return role == Qt::DisplayRole ? text
                                   : Qt::convertFromPlainText(nameBehind(text, shown.nameOf), Qt::WhiteSpaceNormal);
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
