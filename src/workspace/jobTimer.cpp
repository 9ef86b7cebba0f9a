#include "jobTimer.h"

#include "values/clock.h"
#include "values/numbers.h"

using namespace Qt::StringLiterals;

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

QString JobTimer::clockText() const
{
    return u"%1:%2:%3"_s.arg(m_hours).arg(int{m_minutes}, 2, 10, QChar(u'0')).arg(int{m_seconds}, 2, 10, QChar(u'0'));
}

QJsonObject JobTimer::toJson() const
{
    return {{u"state"_s, static_cast<int>(m_state)},
            {u"hours"_s, m_hours},
            {u"minutes"_s, m_minutes},
            {u"seconds"_s, m_seconds},
            {u"startTime"_s, m_startTime.toString(Qt::ISODateWithMs)}};
}

JobTimer JobTimer::fromJson(const QJsonObject& json)
{
    JobTimer timer;
    timer.m_state = static_cast<State>(json[u"state"].toInt());
    if (timer.isRunning())
        timer.m_state = State::Pause;
    timer.m_hours = static_cast<qint16>(json[u"hours"].toInt());
    timer.m_minutes = static_cast<qint16>(json[u"minutes"].toInt());
    timer.m_seconds = static_cast<qint16>(json[u"seconds"].toInt());
    timer.m_startTime = QDateTime::fromString(json[u"startTime"].toString(), Qt::ISODateWithMs);
    return timer;
}

} // namespace workspace
