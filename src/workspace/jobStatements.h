#pragma once

#include <QString>

namespace workspace {

/// A job as the panel shows it. The texts are not escaped.
struct JobEntry {
    qint32 id;
    QString date;
    qint32 clientId;
    qint32 typeId;
    QString reference;
    QString start;
    QString characters;
    QString lines;
    QString length;
    QString submitted;
};

QString countLineType(qint32 typeId);
QString selectCharactersPerLine(qint32 typeId);
QString selectJob(qint32 jobId);
/// The columns of the job's own row that the panel saves, without the client; the mark of being submitted is the last.
QString selectStoredJob(qint32 jobId);
/// What the panel shows of a type.
QString selectType(qint32 typeId);
QString selectClientOfType(qint32 typeId);
/// Leaves the stored start alone when the entry's start is no date.
QString updateJob(const JobEntry& job);
QString deleteJob(qint32 jobId);

} // namespace workspace
