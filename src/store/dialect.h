#pragma once

#include <QString>

namespace store {

/// Carries one statement of the program over into the engine's SQL: #...# dates, True and False, "..." as text, &
/// between texts, two minus signs as two minus signs. Values that an insert or update stores are made to fit their
/// columns. Throws a syntax error with the offending text, also for a second statement behind the first.
QString translate(const QString& statement);

} // namespace store
