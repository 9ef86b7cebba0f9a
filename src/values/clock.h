#pragma once

#include <QDateTime>

#include <functional>

namespace values {

/// Now, on the wall clock, to the second. Nothing else in the program asks the system for the time.
/// Like every date-time in Penwright it carries no time zone (UTC, read as "as written").
QDateTime now();

/// Today.
QDate today();

/// Makes now() ask this clock instead of the system's, for tests; an empty function undoes it.
void setClock(std::function<QDateTime()> clock);

} // namespace values
