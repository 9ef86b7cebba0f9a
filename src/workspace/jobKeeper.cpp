#include "jobKeeper.h"

#include "store/openJobs.h"
#include "values/runtimeError.h"

#include <algorithm>
#include <iterator>

namespace workspace {

// Those that could not be saved since are in the file as well, unless it could not be written.
const std::vector<LeftJob>& JobKeeper::leftJobs()
{
    if (m_isRead)
        return m_left;
    for (const store::OpenJob& job : store::readOpenJobs()) {
        const auto content = readPanelContent(job.content);
        const bool isKnown = job.id == m_open || std::ranges::find(m_left, job.id, &LeftJob::id) != m_left.end();
        if (content && !isKnown)
            m_left.push_back({job.id, *content});
    }
    m_isRead = true;
    return m_left;
}

std::vector<LeftJob> JobKeeper::leftJobs(qint32 jobId) const
{
    std::vector<LeftJob> jobs;
    std::ranges::copy_if(m_left, std::back_inserter(jobs),
                         [jobId](const LeftJob& job) { return job.content.jobId == jobId; });
    return jobs;
}

void JobKeeper::keep(const PanelContent& content)
{
    const QByteArray json = content.toJson();
    try {
        m_open = store::keepOpenJob({m_open, json});
    } catch (const values::RuntimeError&) {
        // A damaged file has been set aside by now, so that a new one can be made.
        m_open = store::keepOpenJob({m_open, json});
        throw;
    }
}

void JobKeeper::takeUp(qint64 id, const PanelContent& panel)
{
    if (m_open != 0)
        leave(panel);
    m_open = id;
    std::erase_if(m_left, [id](const LeftJob& job) { return job.id == id; });
}

void JobKeeper::leave(const PanelContent& content)
{
    // As it would be read from the file: with its clock paused.
    m_left.push_back({m_open, readPanelContent(content.toJson()).value_or(content)});
    m_open = 0;
}

void JobKeeper::forget(qint64 id)
{
    store::forgetOpenJob(id);
    std::erase_if(m_left, [id](const LeftJob& job) { return job.id == id; });
}

void JobKeeper::forgetJob(qint32 jobId)
{
    std::vector<qint64> rows;
    if (m_open != 0)
        rows.push_back(m_open);
    for (const LeftJob& job : leftJobs(jobId))
        rows.push_back(job.id);
    m_open = 0;
    std::erase_if(m_left, [jobId](const LeftJob& job) { return job.content.jobId == jobId; });
    try {
        for (const qint64 row : rows)
            store::forgetOpenJob(row);
    } catch (const values::RuntimeError&) { // NOLINT(bugprone-empty-catch): there is nothing to do.
        // The line about a job that was saved or deleted since offers to forget it.
    }
}

} // namespace workspace
