#include "storeError.h"

#include <QRegularExpression>

#include <sqlite3.h>

#include <array>

using namespace Qt::StringLiterals;

namespace store {

using values::RuntimeError;

namespace {

struct EngineMessage {
    const char* pattern; // the captured text replaces %1
    StoreFault fault;
    const char* description;
};

constexpr std::array<EngineMessage, 3> engineMessages{{
    {"^no such column: (.*)$", StoreFault::UnknownName, "No value given for one or more required parameters."},
    {"^no such table: (.*)$", StoreFault::UnknownTable,
     "The data file has no table '%1'. Put a good copy of the data file back, for example from a backup."},
    {"^table .* has no column named (.*)$", StoreFault::Syntax,
     "The INSERT INTO statement contains the following unknown field name: '%1'."},
}};

RuntimeError statementError(const QString& message)
{
    for (const EngineMessage& known : engineMessages) {
        const QRegularExpression pattern(QString::fromLatin1(known.pattern),
                                         QRegularExpression::DotMatchesEverythingOption);
        const QRegularExpressionMatch match = pattern.match(message);
        if (!match.hasMatch())
            continue;
        QString description = QString::fromLatin1(known.description);
        return storeError(known.fault, description.replace(u"%1"_s, shorten(match.captured(1))));
    }
    return storeError(StoreFault::Syntax, u"Syntax error: %1."_s.arg(shorten(message)));
}

const QString damagedFileText =
    u"The data file '%1' is damaged. Put a good copy of it back, for example from a backup."_s;

// The file could be written, but no journal beside it. Older engines give SQLITE_CANTOPEN instead, and their header has
// no name for this code.
constexpr int readOnlyFolder = SQLITE_READONLY | (6 << 8);

QString fileAdvice(int code)
{
    switch (code) {
    case SQLITE_CANTOPEN:
        return u"Could not open file '%1'. See that it is there and that you may read it and write in its "
               "folder, or put it back from a backup."_s;
    case SQLITE_NOTADB:
        return u"Not a valid password, or not a data file: '%1'. Put a good copy of it back, for example "
               "from a backup."_s;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return u"The data file '%1' is in use by another program. Close it there and try again."_s;
    case SQLITE_READONLY:
        return u"Cannot update. The data file '%1' is read-only. Allow writing to it and try again."_s;
    case SQLITE_FULL:
        return u"The disk that holds '%1' is full. Nothing was changed. Free some space and try again."_s;
    case SQLITE_IOERR:
        return u"The data file '%1' could not be read or written. See that its disk is connected and has "
               "room, and try again."_s;
    case SQLITE_CORRUPT:
    case SQLITE_ERROR:
        return damagedFileText;
    default:
        return QString();
    }
}

QString readMessage(sqlite3* database)
{
    return QString::fromUtf8(sqlite3_errmsg(database));
}

// A page that cannot be decrypted gives the code of a wrong statement, but then only with its standard message.
const QLatin1String standardMessage(sqlite3_errstr(SQLITE_ERROR));

} // namespace

RuntimeError storeError(StoreFault fault, const QString& description)
{
    return {static_cast<int>(fault), description};
}

QString shorten(const QString& text)
{
    constexpr qsizetype maximumLength = 100;
    return text.size() <= maximumLength ? text : text.first(maximumLength) + u"..."_s;
}

RuntimeError typeMismatchError()
{
    return storeError(StoreFault::TypeMismatch, u"Data type mismatch in criteria expression."_s);
}

RuntimeError damagedFileError(const QString& fileName)
{
    return storeError(StoreFault::Unspecified, damagedFileText.arg(fileName));
}

RuntimeError syntaxError(const QString& offendingText)
{
    return storeError(StoreFault::Syntax, u"Syntax error in the statement near '%1'."_s.arg(shorten(offendingText)));
}

bool isDamaged(sqlite3* database)
{
    const int code = sqlite3_extended_errcode(database) & 0xFF;
    return code == SQLITE_NOTADB || code == SQLITE_CORRUPT ||
           (code == SQLITE_ERROR && readMessage(database) == standardMessage);
}

RuntimeError engineError(sqlite3* database, const QString& fileName)
{
    const int extendedCode = sqlite3_extended_errcode(database);
    const int code = extendedCode == readOnlyFolder ? SQLITE_CANTOPEN : extendedCode & 0xFF;
    const QString message = readMessage(database);
    // The code of a statement that Permissions refuses.
    if (code == SQLITE_AUTH)
        return statementError(message);
    if (code == SQLITE_ERROR && message != standardMessage)
        return statementError(message);
    const QString advice = fileAdvice(code);
    if (advice.isEmpty())
        return storeError(StoreFault::Unspecified,
                          u"The data file '%1' could not be read or written: %2."_s.arg(fileName, message));
    return storeError(StoreFault::Unspecified, advice.arg(fileName));
}

} // namespace store
