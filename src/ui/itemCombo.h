#pragma once

#include <QComboBox>
#include <QString>

#include <optional>

namespace ui {

/// Adds an entry that carries an id.
void addEntry(QComboBox& combo, const QString& text, qint32 id);

/// The id of the selected entry; empty when none is selected or another text was typed over it.
std::optional<qint32> selectedId(const QComboBox& combo);

/// The id of the selected entry; throws InvalidArrayIndex when there is none.
qint32 itemData(const QComboBox& combo);

/// Selects the first entry with this id, or none.
void selectId(QComboBox& combo, qint32 id);

} // namespace ui
