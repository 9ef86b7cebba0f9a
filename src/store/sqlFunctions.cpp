#include "sqlFunctions.h"

#include "storeError.h"
#include "storedDate.h"

#include "values/dates.h"
#include "values/numbers.h"

#include <sqlite3.h>

#include <array>
#include <cmath>

namespace store {

using values::RuntimeError;

namespace {

constexpr int longestText = 255;

RuntimeError typeMismatch()
{
    return storeError(StoreFault::TypeMismatch, QStringLiteral("Data type mismatch in criteria expression."));
}

QString textOf(sqlite3_value* value)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_value_text(value)), sqlite3_value_bytes(value));
}

double numberOf(sqlite3_value* value)
{
    if (sqlite3_value_type(value) != SQLITE_TEXT)
        return sqlite3_value_double(value);
    const std::optional<double> number = values::readNumber(textOf(value));
    if (!number)
        throw typeMismatch();
    return *number;
}

void assignWhole(sqlite3_context* context, sqlite3_value* value)
{
    sqlite3_result_int(context, values::toLong(numberOf(value)));
}

void assignNumber(sqlite3_context* context, sqlite3_value* value)
{
    const double number = numberOf(value);
    if (!std::isfinite(number))
        throw RuntimeError(values::Fault::Overflow);
    sqlite3_result_double(context, number);
}

void assignText(sqlite3_context* context, sqlite3_value* value)
{
    if (textOf(value).size() > longestText) {
        throw storeError(StoreFault::Unspecified,
                         QStringLiteral("The field is too small to accept the amount of data you attempted to add. Try "
                                        "inserting or pasting less data (at most 255 characters)."));
    }
    sqlite3_result_value(context, value);
}

void assignDate(sqlite3_context* context, sqlite3_value* value)
{
    const QString text = textOf(value);
    const std::optional<QDateTime> date = values::readDate(text);
    if (sqlite3_value_type(value) != SQLITE_TEXT || !date)
        throw typeMismatch();
    const QByteArray stored = toStoredDate(*date);
    sqlite3_result_text(context, stored.constData(), static_cast<int>(stored.size()), SQLITE_TRANSIENT);
}

void assignYesNo(sqlite3_context* context, sqlite3_value* value)
{
    sqlite3_result_int(context, numberOf(value) != 0);
}

// No error may pass through the engine's frames: what is refused waits beside the connection.
template <void (*assign)(sqlite3_context*, sqlite3_value*)>
void guarded(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL)
        return;
    try {
        assign(context, arguments[0]);
    } catch (const RuntimeError& error) {
        static_cast<std::optional<RuntimeError>*>(sqlite3_user_data(context))->emplace(error);
        sqlite3_result_error_code(context, SQLITE_ERROR);
    }
}

struct Assignment {
    ColumnKind kind;
    const char* name;
    void (*function)(sqlite3_context*, int, sqlite3_value**);
};

constexpr std::array<Assignment, 6> assignments{{{ColumnKind::Id, "assign_id", guarded<assignWhole>},
                                                 {ColumnKind::Whole, "assign_whole", guarded<assignWhole>},
                                                 {ColumnKind::Number, "assign_number", guarded<assignNumber>},
                                                 {ColumnKind::Text, "assign_text", guarded<assignText>},
                                                 {ColumnKind::Date, "assign_date", guarded<assignDate>},
                                                 {ColumnKind::YesNo, "assign_yesno", guarded<assignYesNo>}}};

} // namespace

QString assignmentFunction(ColumnKind kind)
{
    for (const Assignment& each : assignments) {
        if (each.kind == kind)
            return QString::fromLatin1(each.name);
    }
    Q_UNREACHABLE();
}

void registerAssignments(sqlite3* database, std::optional<RuntimeError>& refusal)
{
    for (const Assignment& each : assignments) {
        sqlite3_create_function_v2(database, each.name, 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, &refusal, each.function,
                                   nullptr, nullptr, nullptr);
    }
}

} // namespace store
