#pragma once

#include <QDateTime>
#include <QString>

namespace workspace {

/// The stopwatch of the job panel: a plain counter of ticks with a start stamp. It outlives the jobs it times.
class JobTimer {
public:
    /// Start, pause or resume. The first press for a job stamps its start.
    void start();
    /// One second has passed. Throws Overflow after 32,767 hours.
    void tick();
    /// Stops a running timer; the counters stay.
    void stop();
    /// Zeroes the counters; the start stamp stays.
    void reset();
    /// A job was closed without saving: stopped and zeroed, but the stamp stays for the next job.
    void closeJob();
    /// A job was saved: reset, and the next start is stamped anew.
    void saveJob();

    bool isRunning() const { return m_state == State::Run; }
    int hours() const { return m_hours; }
    int minutes() const { return m_minutes; }
    int seconds() const { return m_seconds; }
    /// Invalid while no start was stamped.
    const QDateTime& startTime() const { return m_startTime; }
    /// Whether any button of the timer or end of a job has touched it; if not, a job keeps the length it was loaded
    /// with.
    bool wasUsed() const { return m_state != State::Untouched; }
    /// The counted time as h:m:s, or m:s below an hour, without leading zeros.
    QString lengthText() const;

private:
    enum class State { Untouched, Run, Pause, Stop, Reset };

    void zero();

    State m_state = State::Untouched;
    qint16 m_seconds = 0;
    qint16 m_minutes = 0;
    qint16 m_hours = 0;
    QDateTime m_startTime;
};

} // namespace workspace
