#include "arrowLabel.h"

#include "ui/twips.h"

#include <QPainter>

namespace workspace {

ArrowLabel::ArrowLabel(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

// As wide as the narrowest ID column, so that the arrow in its middle points into that column.
QSize ArrowLabel::sizeHint() const
{
    return {ui::designedWidth(*this, 500), fontMetrics().height()};
}

void ArrowLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double unit = height() / 12.0;
    painter.translate(width() / 2.0, 0);
    painter.scale(unit, unit);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().windowText());
    painter.drawRect(QRectF(-0.9, 0.5, 1.8, 7));
    painter.drawPolygon(QPolygonF{{-4, 6.5}, {4, 6.5}, {0, 11.5}});
}

} // namespace workspace
