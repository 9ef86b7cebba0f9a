#pragma once

#include "values/runtimeError.h"

struct sqlite3;

namespace store {

/// The numbers of the errors of data files and statements.
enum class StoreFault : int {
    TypeMismatch = -2147217913,
    UnknownName = -2147217904,
    Syntax = -2147217900,
    UnknownTable = -2147217865,
    Unspecified = -2147467259,
};

values::RuntimeError storeError(StoreFault fault, const QString& description);

/// Shortens a text for a message to its first hundred characters.
QString shorten(const QString& text);

/// The error of a value whose kind does not match its column.
values::RuntimeError typeMismatchError();

/// A syntax error that shows the text at fault.
values::RuntimeError syntaxError(const QString& offendingText);

/// The error of a damaged data file.
values::RuntimeError damagedFileError(const QString& fileName);

/// Whether the engine's last call found the file to be damaged, or no data file at all.
bool isDamaged(sqlite3* database);

/// The engine's last error on this data file, described so that the user knows what to do about it.
values::RuntimeError engineError(sqlite3* database, const QString& fileName);

} // namespace store
