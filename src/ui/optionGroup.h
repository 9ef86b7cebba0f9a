#pragma once

#include <QButtonGroup>

namespace ui {

/// Makes Tab come to the chosen option of the group, whichever that is; to the first one while none is chosen.
void tabToChosen(QButtonGroup& options);

} // namespace ui
