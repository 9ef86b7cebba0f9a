// The part of the job panel's look that depends on the font of the system, which the Designer file cannot know.
#include "jobPanel.h"
#include "ui_jobPanel.h"

using namespace Qt::StringLiterals;

namespace workspace {

namespace {

QColor mixColors(const QColor& one, const QColor& other)
{
    return {(3 * one.red() + other.red()) / 4, (3 * one.green() + other.green()) / 4,
            (3 * one.blue() + other.blue()) / 4};
}

// Small and grey, because people look for the values. The margin above shows which value a heading belongs to.
void makeHeading(QLabel& label)
{
    QFont font = label.font();
    font.setPointSizeF(font.pointSizeF() * 0.85);
    label.setFont(font);
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText,
                     mixColors(palette.color(QPalette::WindowText), palette.color(QPalette::Window)));
    label.setPalette(palette);
    label.setContentsMargins(0, 8, 0, 0);
}

// As wide as the widest text, so that nothing beside the clock moves when its digits change (below 100 hours).
void makeClock(QLabel& label, const QString& widest)
{
    QFont font = label.font();
    font.setPointSizeF(font.pointSizeF() * 2.5);
    label.setFont(font);
    label.setMinimumWidth(QFontMetrics(font).horizontalAdvance(widest));
}

// What people glance at while they type.
void enlarge(QLabel& label, double factor)
{
    QFont font = label.font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(true);
    label.setFont(font);
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
        if (label->objectName().startsWith(u"lblHeading"_s))
            makeHeading(*label);
    }
    makeClock(*m_controls->lblHr, u"00"_s);
    makeClock(*m_controls->lblMin, u"00"_s);
    makeClock(*m_controls->lblSec, u"00"_s);
    makeClock(*m_controls->lblColon_0, u":"_s);
    makeClock(*m_controls->lblColon_1, u":"_s);
    enlarge(*m_controls->lblJobTotal, 1.5);
    enlarge(*m_controls->lblJob_5, 1.2);
    for (QLabel* label : {m_controls->lblHeading_4, m_controls->lblHeading_5})
        keepRoomWhenHidden(*label);
    for (QLabel* label : {m_controls->lblJob_4, m_controls->lblJob_5})
        keepRoomWhenHidden(*label);
    m_controls->txtChar->setFixedWidth(fontMetrics().horizontalAdvance(u'0') * 11);
}

// A running clock stands out by a dark plate (a light one on a dark desktop), whatever colours a person sees.
void JobPanel::showRunning(bool isRunning)
{
    const QPalette own = palette();
    QPalette plate = own;
    if (isRunning) {
        plate.setColor(QPalette::Window, own.color(QPalette::WindowText));
        plate.setColor(QPalette::WindowText, own.color(QPalette::Window));
    }
    m_controls->frClock->setAutoFillBackground(isRunning);
    m_controls->frClock->setPalette(plate);
}

} // namespace workspace
