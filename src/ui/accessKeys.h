#pragma once

#include <QKeySequence>
#include <QWidget>

namespace ui {

/// Gives the controls of a form their access keys: Alt and the letter that a control has as its property "accessKey",
/// in the Designer file mostly. A button is pressed by it as if it were clicked, and has the focus first; any other
/// control gets the focus. The captions have no marked letters, so the key is told in the tool tip.
void applyAccessKeys(QWidget& form);

/// The access key that a control has by its property; empty when it has none.
QKeySequence accessKeyOf(const QWidget& control);

} // namespace ui
