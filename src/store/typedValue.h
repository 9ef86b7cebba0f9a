#pragma once

#include "field.h"
#include "statementReader.h"

namespace store {

/// Reads the value that an insert or update gives to a column, made to fit it: texts joined by & or + for a text, a
/// date for a date, True or False or a number for yes/no, numbers with + - * / and brackets for a number. Nothing else:
/// what is typed into a box is a value, never a piece of program. Throws a syntax error, TypeMismatch, UnknownName,
/// Overflow or DivisionByZero.
Field::Value readAssigned(StatementReader& statement, const QString& table, const QString& column);

/// Reads what a column is compared with: one text or date, True or False, or a number.
Field::Value readCompared(StatementReader& statement);

} // namespace store
