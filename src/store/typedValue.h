#pragma once

#include "field.h"
#include "statementReader.h"

namespace store {

/// Reads the value that an insert or update gives to a column, and fits it to the column: texts joined by & or + for a
/// text, a date for a date, True or False or a number for yes/no, numbers with + - * / and brackets for a number.
/// Nothing else, because what a person types into a box is a value and never part of the statement. Throws a syntax
/// error, TypeMismatch, UnknownName, Overflow or DivisionByZero.
Field::Value readAssignedValue(StatementReader& statement, const QString& table, const QString& column);

/// Reads the value that a column is compared with: one text or date, True or False, or a number.
Field::Value readComparedValue(StatementReader& statement);

} // namespace store
