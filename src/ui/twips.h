#pragma once

#include <QWidget>

namespace ui {

/// The left edge of a panel in view, and of one out of view, in pixels.
inline constexpr int panelInView = 120 / 15;
inline constexpr int panelOutOfView = -10000;

/// A designed width (twips, for the small system font of the design) in pixels for the font that the widget really has.
int designedWidth(const QWidget& widget, int twips);

} // namespace ui
