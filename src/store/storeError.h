#pragma once

#include "values/runtimeError.h"

struct sqlite3;

namespace store {

/// The numbers of the errors that a data file or a statement gives.
enum class StoreFault : int {
    TypeMismatch = -2147217913,
    UnknownName = -2147217904,
    Syntax = -2147217900,
    UnknownTable = -2147217865,
    Unspecified = -2147467259,
};

values::RuntimeError storeError(StoreFault fault, const QString& description);

/// A text as a message shows it: the first hundred characters of a long one.
QString shortened(const QString& text);

/// The error of a value that is of another kind than its column.
values::RuntimeError typeMismatch();

/// A syntax error that shows the text at fault.
values::RuntimeError syntaxError(const QString& offendingText);

/// What is said of a data file that is damaged.
values::RuntimeError damagedFile(const QString& fileName);

/// Says what the engine's last error on this data file means, and what the user can do about it.
values::RuntimeError engineError(sqlite3* database, const QString& fileName);

} // namespace store
