#pragma once

#include <QComboBox>
#include <QString>

#include <optional>

namespace ui {

/// Replaces the entries of a combo box by those that a select reads from the main data file: its first column is the
/// id, its second the text. No entry is selected. Throws what reading throws.
void fillCombo(QComboBox& combo, const QString& statement);

/// The id of the selected entry; empty when none is selected or the text was changed by typing.
std::optional<qint32> selectedId(const QComboBox& combo);

/// The id of the selected entry; throws InvalidArrayIndex when there is none.
qint32 itemData(const QComboBox& combo);

/// Selects the first entry with this id, or none.
void selectId(QComboBox& combo, qint32 id);

} // namespace ui
