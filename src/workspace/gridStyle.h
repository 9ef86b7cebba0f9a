#pragma once

#include <QProxyStyle>

namespace workspace {

/// The application's style with more space beside the texts of a grid, or a number would touch the text of the next
/// column.
class GridStyle : public QProxyStyle {
public:
    explicit GridStyle(QObject* parent);

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

} // namespace workspace
