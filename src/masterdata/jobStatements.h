#pragma once

#include <QString>

namespace masterdata {

/// The reference is not escaped.
QString insertJob(const QString& date, qint32 clientId, qint32 typeId, const QString& reference);
QString selectClientsByName();
QString selectTypesOf(qint32 clientId);
QString selectNewestJobId();
QString selectNewJob(qint32 id);

} // namespace masterdata
