#pragma once

#include <QProxyStyle>

namespace workspace {

/// The application's style with a little more air beside the texts of a grid: a number and the text of the next column
/// would else run together.
class GridStyle : public QProxyStyle {
public:
    explicit GridStyle(QObject* parent);

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

} // namespace workspace
