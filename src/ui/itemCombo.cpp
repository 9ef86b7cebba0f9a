#include "itemCombo.h"

#include "store/connectionStrings.h"
#include "store/recordset.h"
#include "values/runtimeError.h"

namespace ui {

void fillCombo(QComboBox& combo, const QString& statement)
{
    store::Connection connection(modMain::DBConnString);
    store::Recordset rows(connection, statement);
    combo.clear();
    for (; !rows.atEnd(); rows.moveNext())
        combo.addItem(rows.field(1).toText(), rows.field(0).toLong());
    combo.setCurrentIndex(-1);
}

std::optional<qint32> selectedId(const QComboBox& combo)
{
    if (combo.currentIndex() < 0 || combo.currentText() != combo.itemText(combo.currentIndex()))
        return std::nullopt;
    return combo.currentData().toInt();
}

qint32 itemData(const QComboBox& combo)
{
    const std::optional<qint32> id = selectedId(combo);
    if (!id)
        throw values::RuntimeError(values::Fault::InvalidArrayIndex);
    return *id;
}

void selectId(QComboBox& combo, qint32 id)
{
    combo.setCurrentIndex(combo.findData(id));
}

} // namespace ui
