#pragma once

#include "field.h"

#include <QString>

#include <vector>

namespace store {

/// A statement in the engine's SQL: its text, with a question mark for every value, and the values in the same order.
/// So the engine never reads typed text as a part of the statement.
struct Translation {
    QString text;
    std::vector<Field::Value> values;
};

/// Translates one statement of the program into the engine's SQL. It knows only the forms that the program sends: an
/// insert of one row, an update or delete of all rows or of those where one column has one value, a select of columns,
/// of products of columns, or of their count, sum or maximum. Lists sort texts by the rules of the language. Throws a
/// syntax error with the text at fault, as it was typed, or what readAssignedValue() throws.
Translation translate(const QString& statement);

} // namespace store
