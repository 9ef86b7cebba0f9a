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

/// A syntax error that shows the text at fault.
values::RuntimeError syntaxError(const QString& offendingText);

/// Says what the engine's last error on this data file means, and what the user can do about it.
values::RuntimeError engineError(sqlite3* database, const QString& fileName);

} // namespace store
