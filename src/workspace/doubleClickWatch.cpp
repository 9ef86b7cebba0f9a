#include "doubleClickWatch.h"

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QStyleHints>
#include <QWidget>

namespace workspace {

namespace {

constexpr int lookEveryMilliseconds = 10;

} // namespace

DoubleClickWatch::DoubleClickWatch(QObject* parent) : QObject(parent)
{
    m_look.setInterval(lookEveryMilliseconds);
    connect(&m_look, &QTimer::timeout, this, &DoubleClickWatch::lookAtButtons);
}

void DoubleClickWatch::begin(QPoint globalPosition, quint64 timestamp)
{
    m_place = globalPosition;
    m_clicked = timestamp;
    m_since.start();
    m_look.start();
    qApp->installEventFilter(this);
}

void DoubleClickWatch::end()
{
    m_look.stop();
    qApp->removeEventFilter(this);
}

bool DoubleClickWatch::isSecondPress(QPoint globalPosition) const
{
    return (globalPosition - m_place).manhattanLength() <= QGuiApplication::styleHints()->mouseDoubleClickDistance();
}

// Queued: the message must not open inside the delivery of the press.
void DoubleClickWatch::report()
{
    end();
    QMetaObject::invokeMethod(this, &DoubleClickWatch::doubleClicked, Qt::QueuedConnection);
}

void DoubleClickWatch::lookAtButtons()
{
    if (m_since.elapsed() > QApplication::doubleClickInterval())
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
    // What the first click opened may have taken longer than any double click: the events know when they happened.
    if (press->timestamp() - m_clicked > static_cast<quint64>(QApplication::doubleClickInterval()))
        return false;
    report();
    return true;
}

} // namespace workspace
