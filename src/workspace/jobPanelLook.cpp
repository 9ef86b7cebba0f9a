// How the job panel looks where the Designer file cannot say it, because it depends on the font that the user has.
#include "jobPanel.h"
#include "ui_jobPanel.h"

namespace workspace {

namespace {

// Small and grey: the values are what one looks for.
void makeHeading(QLabel& label)
{
    QFont font = label.font();
    font.setPointSizeF(font.pointSizeF() * 0.85);
    label.setFont(font);
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, palette.color(QPalette::Disabled, QPalette::WindowText).darker(120));
    label.setPalette(palette);
}

// Of one width whatever the digits: nothing beside the clock moves when they change.
void makeClock(QLabel& label, const QString& widest)
{
    QFont font = label.font();
    font.setPointSizeF(font.pointSizeF() * 2.5);
    label.setFont(font);
    label.setFixedWidth(QFontMetrics(font).horizontalAdvance(widest));
}

void keepRoomWhenHidden(QWidget& widget)
{
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

} // namespace

void JobPanel::setLook()
{
    for (QLabel* label : findChildren<QLabel*>()) {
        if (label->objectName().startsWith(QStringLiteral("lblHeading")))
            makeHeading(*label);
    }
    makeClock(*m_controls->lblHr, QStringLiteral("000"));
    makeClock(*m_controls->lblMin, QStringLiteral("00"));
    makeClock(*m_controls->lblSec, QStringLiteral("00"));
    makeClock(*m_controls->lblColon_0, QStringLiteral(":"));
    makeClock(*m_controls->lblColon_1, QStringLiteral(":"));
    keepRoomWhenHidden(*m_controls->lblJob_4);
    keepRoomWhenHidden(*m_controls->lblJob_5);
    m_controls->txtChar->setFixedWidth(fontMetrics().horizontalAdvance(u'0') * 12);
}

} // namespace workspace
