#include "itemCombo.h"

#include "values/runtimeError.h"

namespace ui {

void addEntry(QComboBox& combo, const QString& text, qint32 id)
{
    combo.addItem(text, id);
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
