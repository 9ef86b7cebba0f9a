#include "doubleClickWatch.h"

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QStyleHints>
#include <QWidget>

namespace workspace {

namespace {

constexpr int pollMilliseconds = 10;

} // namespace

DoubleClickWatch::DoubleClickWatch(QObject* parent) : QObject(parent)
{
    m_pollTimer.setInterval(pollMilliseconds);
    connect(&m_pollTimer, &QTimer::timeout, this, &DoubleClickWatch::pollButtons);
}

void DoubleClickWatch::begin(QPoint globalPosition, quint64 timestamp)
{
    m_place = globalPosition;
    m_clickTime = timestamp;
    m_sinceClick.start();
    m_pollTimer.start();
    qApp->installEventFilter(this);
}

void DoubleClickWatch::end()
{
    m_pollTimer.stop();
    qApp->removeEventFilter(this);
}

bool DoubleClickWatch::isSecondPress(QPoint globalPosition) const
{
    return (globalPosition - m_place).manhattanLength() <= QGuiApplication::styleHints()->mouseDoubleClickDistance();
}

// Queued, so that the message box does not open while the press is still being handled.
void DoubleClickWatch::report()
{
    end();
    QMetaObject::invokeMethod(this, &DoubleClickWatch::doubleClicked, Qt::QueuedConnection);
}

void DoubleClickWatch::pollButtons()
{
    if (m_sinceClick.elapsed() > QApplication::doubleClickInterval())
        end();
    else if (QGuiApplication::mouseButtons().testFlag(Qt::LeftButton) && isSecondPress(QCursor::pos()))
        report();
}

bool DoubleClickWatch::eventFilter(QObject* watched, QEvent* event)
{
    const bool isPress = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    if (!isPress || !watched->isWidgetType())
        return false;
    const auto* press = static_cast<QMouseEvent*>(event);
    if (press->button() != Qt::LeftButton || !isSecondPress(press->globalPosition().toPoint()))
        return false;
    // Opening what the first click opened may have taken long, so the time is taken from the events.
    if (press->timestamp() - m_clickTime > static_cast<quint64>(QApplication::doubleClickInterval()))
        return false;
    report();
    return true;
}

} // namespace workspace
