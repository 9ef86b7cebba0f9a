#pragma once

#include <QFileDialog>

namespace ui {

/// Tells screen readers and other tools of assistance what Qt does not tell about controls: their own names, that
/// values can be pressed, and access keys. Called once, before the first window.
void installAccessibility();

/// Names what Qt's own file dialog leaves without a name. Another platform's dialog stays as it is.
void completeNames(QFileDialog& dialog);

} // namespace ui
