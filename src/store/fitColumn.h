#pragma once

#include "field.h"
#include "schema.h"

namespace store {

/// Makes a value fit a column of this kind before it is stored: rounds to whole numbers. Throws
/// what does not fit: TypeMismatch, Overflow, or that a text is too long.
Field::Value fitColumn(ColumnKind kind, const Field::Value& value);

} // namespace store
