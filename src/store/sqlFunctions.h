#pragma once

#include "schema.h"

#include "values/runtimeError.h"

#include <QString>

#include <optional>

struct sqlite3;

namespace store {

/// The SQL function that makes a value fit a column of this kind before it is stored: it rounds, reads numbers and
/// dates out of text, and refuses what does not fit.
QString assignmentFunction(ColumnKind kind);

/// Makes those functions known to an open data file. What one of them refuses is kept in `refusal`.
void registerAssignments(sqlite3* database, std::optional<values::RuntimeError>& refusal);

} // namespace store
