#pragma once

#include <QWidget>

namespace ui {

/// The left edge of a panel in view, and of one out of view, in pixels.
inline constexpr int panelInView = 120 / 15;
inline constexpr int panelOutOfView = -10000;

/// Converts a width of the design (in twips, for a font with digits 6 pixels wide) to pixels for the widget's own font.
int designedWidth(const QWidget& widget, int twips);

} // namespace ui
