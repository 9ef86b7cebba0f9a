#pragma once

#include "panelContent.h"

#include <vector>

namespace workspace {

/// A job that was open when the program ended, or that could not be saved.
struct LeftJob {
    qint64 id; ///< in the file of open jobs
    PanelContent content;
};

/// Keeps the job that is open, and those that were left open, in the file of open jobs. One job may have been left more
/// than once: nothing that was worked on is replaced by something else.
class JobKeeper {
public:
    /// The jobs that were left open, the oldest first. The file is read at the first call, and again after an error,
    /// which is thrown.
    const std::vector<LeftJob>& leftJobs();
    /// Those of one job; none before leftJobs().
    std::vector<LeftJob> leftJobs(qint32 jobId) const;

    /// Keeps what the panel holds in place of what was kept last of the open job. Throws what writing throws; a damaged
    /// file has then been replaced by a new one with this job in it.
    void keep(const PanelContent& content);
    /// The open job goes on from what was left of it, which no longer counts as left; what the panel held until now
    /// does, if it was kept.
    void takeUp(qint64 id, const PanelContent& panel);
    /// There is no open job any more; what was kept of it counts as left.
    void leave(const PanelContent& content);

    /// Forgets one that was left. Throws what writing throws.
    void forget(qint64 id);
    /// Forgets everything that was kept of a job. When the file cannot be written, the next start will still find it.
    void forgetJob(qint32 jobId);

private:
    std::vector<LeftJob> m_left;
    bool m_isRead = false;
    qint64 m_open = 0; // the row of the open job; 0 until it is kept
};

} // namespace workspace
