#pragma once

#include <QComboBox>
#include <QString>

#include <optional>

namespace ui {

/// Fills a combo anew with what a statement reads from the main data file: id and text in its first two columns. No
/// entry is selected. Throws what reading throws.
void fillCombo(QComboBox& combo, const QString& statement);

/// The id of the selected entry; empty when none is selected or another text was typed over it.
std::optional<qint32> selectedId(const QComboBox& combo);

/// The id of the selected entry; throws InvalidArrayIndex when there is none.
qint32 itemData(const QComboBox& combo);

/// Selects the first entry with this id, or none.
void selectId(QComboBox& combo, qint32 id);

} // namespace ui
