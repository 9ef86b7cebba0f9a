#pragma once

#include <QString>

namespace values {

// What a client pays by: the line, the report, the hour, or anything else.
inline const QString lineUnit = QStringLiteral("Line");
inline const QString reportUnit = QStringLiteral("Report");
inline const QString hourlyUnit = QStringLiteral("Hourly");
inline const QString miscUnit = QStringLiteral("Misc");

} // namespace values
