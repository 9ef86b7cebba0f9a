#include "gridStyle.h"

namespace workspace {

GridStyle::GridStyle(QObject* parent)
{
    setParent(parent);
}

int GridStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_HeaderMargin:
        return 6;
    case PM_FocusFrameHMargin:
        return 5;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

} // namespace workspace
