#include "keyCodes.h"

#include "statements.h"

#include "store/connectionStrings.h"
#include "store/recordset.h"
#include "values/runtimeError.h"

#include <QAbstractItemView>
#include <QScrollBar>
#include <QStandardItemModel>

using namespace Qt::StringLiterals;

namespace templates {

namespace {

constexpr int codeRole = Qt::UserRole;

QString textOf(const store::Field& field)
{
    return field.isNull() ? QString() : field.toText();
}

QStandardItem* makeItem(const store::Recordset& row)
{
    const QString code = textOf(row.field(1));
    QStringList parts{code, textOf(row.field(0)), textOf(row.field(2))};
    parts.removeAll(QString());
    auto* item = new QStandardItem(parts.join(u"   "_s));
    item->setData(code, codeRole);
    return item;
}

} // namespace

KeyCodes::KeyCodes(QObject* parent) : QCompleter(parent)
{
    setModel(new QStandardItemModel(this));
    setCompletionRole(codeRole);
    setCaseSensitivity(Qt::CaseInsensitive);
    setMaxVisibleItems(12);
}

void KeyCodes::refresh()
{
    auto& items = *qobject_cast<QStandardItemModel*>(model());
    items.clear();
    try {
        store::Connection connection(modMain::DBConnString);
        for (store::Recordset row(connection, selectKeyCodes()); !row.atEnd(); row.moveNext())
            items.appendRow(makeItem(row));
    } catch (const values::RuntimeError&) {
        items.clear();
    }
    // As wide as the texts, and not cut to the width of the box.
    popup()->setMinimumWidth(popup()->sizeHintForColumn(0) + 2 * popup()->frameWidth() +
                             popup()->verticalScrollBar()->sizeHint().width());
}

} // namespace templates
