// ui: what all forms share: message boxes, the error trap, the guard around events, entry boxes, access keys, and the
// two interfaces through which forms reach the workspace and the main window.
#pragma once

#include <QString>

namespace ui {

/// The product title, and the title of every box without one of its own.
inline const QString applicationTitle = QStringLiteral("Penwright");

/// A box with an OK button and no icon. Returns when it is closed.
void showMessage(const QString& text, const QString& title = applicationTitle);

/// A box with Yes and No, the exclamation icon, and No as the default and for Escape. True for Yes.
bool confirm(const QString& text, const QString& title = applicationTitle);

} // namespace ui
