#pragma once

#include <QDateTime>
#include <QJsonObject>
#include <QString>

namespace workspace {

/// The stopwatch of the job panel: counts ticks and remembers when it was started. One stopwatch times all jobs, one
/// after the other.
class JobTimer {
public:
    /// Starts, pauses or resumes. The first start for a job sets its start time.
    void start();
    /// One second has passed. Throws Overflow after 32,767 hours.
    void tick();
    /// Stops a running timer and keeps the counters.
    void stop();
    /// Clears the counters and keeps the start time.
    void reset();
    /// After a job was closed without saving: stops and clears the counters. The start time stays, for the next job.
    void closeJob();
    /// After a job was saved: resets, and the next start sets a new start time.
    void saveJob();

    bool isRunning() const { return m_state == State::Run; }
    int hours() const { return m_hours; }
    int minutes() const { return m_minutes; }
    int seconds() const { return m_seconds; }
    /// Invalid until the first start.
    const QDateTime& startTime() const { return m_startTime; }
    /// Whether any of its buttons was used or any job has ended; until then a job keeps the length it was loaded with.
    bool wasUsed() const { return m_state != State::Untouched; }
    /// The counted time as h:m:s, or m:s below an hour, without leading zeros.
    QString lengthText() const;
    /// The counted time as h:mm:ss.
    QString clockText() const;

    QJsonObject toJson() const;
    /// The stopwatch of which this was made; one that ran is paused.
    static JobTimer fromJson(const QJsonObject& json);

private:
    // Files hold their numbers.
    enum class State { Untouched, Run, Pause, Stop, Reset };

    void clearCounters();

    State m_state = State::Untouched;
    qint16 m_seconds = 0;
    qint16 m_minutes = 0;
    qint16 m_hours = 0;
    QDateTime m_startTime;
};

} // namespace workspace
