#pragma once

#include <QDateTime>

#include <functional>

namespace values {

/// Now, on the wall clock, to the second. Nothing else in the program asks the system for the time.
/// Like every date-time in Penwright it carries no time zone (Qt::UTC, read as "as written").
QDateTime now();

/// Today.
QDate today();

/// Replaces the source of now() until it is called again; an empty function brings the system's clock back.
void setClock(std::function<QDateTime()> clock);

} // namespace values
