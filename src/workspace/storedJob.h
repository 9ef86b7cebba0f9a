#pragma once

#include <QDateTime>
#include <QStringList>

#include <optional>

namespace workspace {

/// A job as it is stored.
struct StoredJob {
    QString reference;
    qint16 typeId;
    QDateTime date;
    QStringList texts; ///< of all columns that the job panel saves; the mark of being submitted is the last
};

/// Reads a job; empty when there is none with this id. Throws what reading throws, and what a value that is no
/// reference, type or date throws.
std::optional<StoredJob> readStoredJob(qint32 jobId);

} // namespace workspace
