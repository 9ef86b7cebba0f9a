#include "twips.h"

#include <QFontMetricsF>

#include <cmath>

namespace ui {

int designedWidth(const QWidget& widget, int twips)
{
    constexpr double twipsPerPixel = 15;
    constexpr double designedDigitWidth = 6;
    const double growth = QFontMetricsF(widget.font()).horizontalAdvance(u'0') / designedDigitWidth;
    return static_cast<int>(std::lround(twips / twipsPerPixel * growth));
}

} // namespace ui
