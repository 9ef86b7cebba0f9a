#pragma once

namespace ui {

/// Tells screen readers and other tools of assistance what Qt does not tell about controls: their own names, that
/// values can be pressed, and access keys. Called once, before the first window.
void installAccessibility();

} // namespace ui
