#pragma once

#include <QByteArray>

#include <vector>

namespace store {

/// A job that is open, or was when the program ended: what the job panel held of it.
struct OpenJob {
    qint64 id; ///< of its row in the file; 0 until it is kept
    QByteArray content;
};

/// The jobs in the file, the oldest first; none without a file. Throws what reading throws. A damaged file is renamed
/// to open.mdb.damaged before its error is thrown, so that the next call finds none.
std::vector<OpenJob> readOpenJobs();

/// Keeps a job, whole or not at all, in place of what its row held; makes the file when there is none. Gives the id.
/// Throws what writing throws, and sets a damaged file aside as readOpenJobs() does.
qint64 keepOpenJob(const OpenJob& job);

/// Throws as keepOpenJob() does.
void forgetOpenJob(qint64 id);

} // namespace store
