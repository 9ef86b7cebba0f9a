#pragma once

#include <QDate>
#include <QString>

namespace backup {

QString selectIsActive();
QString selectSchedule();
QString selectLastBackup();
QString selectSettings();
QString updateLastBackup(QDate today);
/// The path is not escaped: a single quote in it breaks the statement.
QString updateSettings(qint32 days, const QString& path, bool isActive);
QString updatePath(const QString& path);

} // namespace backup
