// ui: what all forms share: message boxes, the error trap, the guard around events, entry boxes, access keys, and the
// two interfaces through which forms reach the workspace and the main window.
#pragma once

#include <QString>

namespace ui {

/// The name of the program, and the title of every box without one of its own.
inline const QString applicationTitle = QStringLiteral("Penwright");

/// Shows a box with an OK button and no icon. Returns when it is closed.
void showMessage(const QString& text, const QString& title = applicationTitle);

/// Asks in a box with Yes and No, a warning icon, and No as the answer for Enter and Escape. True for Yes.
bool confirm(const QString& text, const QString& title = applicationTitle);

} // namespace ui
