#pragma once

#include "field.h"

#include <QString>

#include <vector>

namespace store {

/// A statement as the engine takes it: its text, with a question mark for every value, and the values in their order.
/// So nothing that was typed is ever read as a part of the statement.
struct Translation {
    QString text;
    std::vector<Field::Value> values;
};

/// Carries one statement of the program over to the engine. Understood are the forms that the program sends, and no
/// others: an insert of one row, an update or delete of all rows or of those where one column has one value, a select
/// of columns, of products of columns, or of their count, sum or highest. Lists sort texts by the rules of the
/// language. Throws a syntax error with the text at fault, as it was typed, or what readAssigned() throws.
Translation translate(const QString& statement);

} // namespace store
