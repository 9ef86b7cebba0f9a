#include "jobTimer.h"

#include "values/clock.h"
#include "values/numbers.h"

namespace workspace {

void JobTimer::start()
{
    m_state = isRunning() ? State::Pause : State::Run;
    if (!m_startTime.isValid())
        m_startTime = values::now();
}

void JobTimer::tick()
{
    if (!isRunning())
        return;
    if (++m_seconds == 60) {
        m_seconds = 0;
        ++m_minutes;
    }
    if (m_minutes == 60) {
        m_minutes = 0;
        m_hours = values::toInteger(m_hours + 1);
    }
}

void JobTimer::stop()
{
    if (isRunning())
        m_state = State::Stop;
}

void JobTimer::clearCounters()
{
    m_seconds = 0;
    m_minutes = 0;
    m_hours = 0;
}

void JobTimer::reset()
{
    m_state = State::Reset;
    clearCounters();
}

void JobTimer::closeJob()
{
    m_state = State::Stop;
    clearCounters();
}

void JobTimer::saveJob()
{
    reset();
    m_startTime = QDateTime();
}

QString JobTimer::lengthText() const
{
    const QString minutesAndSeconds = QString::number(m_minutes) + u':' + QString::number(m_seconds);
    return m_hours == 0 ? minutesAndSeconds : QString::number(m_hours) + u':' + minutesAndSeconds;
}

} // namespace workspace
