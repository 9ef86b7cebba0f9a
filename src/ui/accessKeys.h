#pragma once

#include <QAbstractButton>
#include <QWidget>

namespace ui {

/// Alt and this letter press the button, as if it were clicked: the focus goes there first. The captions have
/// no marked letters, so the key is told in the tool tip.
void setAccessKey(QAbstractButton& button, QChar letter);

/// Alt and this letter put the focus into a box.
void setAccessKey(QWidget& box, QChar letter);

} // namespace ui
