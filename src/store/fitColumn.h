#pragma once

#include "field.h"
#include "schema.h"

namespace store {

/// The value as a column of this kind stores it: rounded to a whole number, for example. Throws TypeMismatch, Overflow,
/// or the error of a text that is too long.
Field::Value fitColumn(ColumnKind kind, const Field::Value& value);

} // namespace store
