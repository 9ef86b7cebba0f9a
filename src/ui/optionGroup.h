#pragma once

#include <QButtonGroup>

namespace ui {

/// Makes Tab stop at the chosen option of the group, or at the first one while none is chosen.
void setTabStopAtChosen(QButtonGroup& options);

} // namespace ui
