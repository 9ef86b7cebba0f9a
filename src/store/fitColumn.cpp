#include "fitColumn.h"

#include "storeError.h"

#include "values/dates.h"
#include "values/money.h"
#include "values/numbers.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace store {

using values::RuntimeError;

namespace {

constexpr int longestText = 255;

double numberOf(const Field::Value& value)
{
    if (const auto* number = std::get_if<double>(&value))
        return *number;
    if (const auto* yes = std::get_if<bool>(&value))
        return *yes ? 1 : 0;
    const auto* text = std::get_if<QString>(&value);
    const std::optional<double> number = text ? values::readNumber(*text) : std::nullopt;
    if (!number)
        throw typeMismatch();
    return *number;
}

double finite(double number)
{
    if (!std::isfinite(number))
        throw RuntimeError(values::Fault::Overflow);
    return number;
}

// What no amount of money can hold could be stored but never shown. The decimals stay as typed.
double money(double number)
{
    values::Money::fromDouble(finite(number));
    return number;
}

QString shortEnough(const Field::Value& value)
{
    const auto* text = std::get_if<QString>(&value);
    if (!text)
        throw typeMismatch();
    if (text->size() > longestText) {
        throw storeError(StoreFault::Unspecified,
                         u"The field is too small to accept the amount of data you attempted to add. Try inserting or "
                         "pasting less data (at most 255 characters)."_s);
    }
    return *text;
}

QDateTime date(const Field::Value& value)
{
    if (const auto* date = std::get_if<QDateTime>(&value))
        return *date;
    const auto* text = std::get_if<QString>(&value);
    const std::optional<QDateTime> read = text ? values::readDate(*text) : std::nullopt;
    if (!read)
        throw typeMismatch();
    return *read;
}

} // namespace

Field::Value fitColumn(ColumnKind kind, const Field::Value& value)
{
    switch (kind) {
    case ColumnKind::Id:
    case ColumnKind::Whole:
        return qint64{values::toLong(numberOf(value))};
    case ColumnKind::Number:
        return finite(numberOf(value));
    case ColumnKind::Money:
        return money(numberOf(value));
    case ColumnKind::Text:
        return shortEnough(value);
    case ColumnKind::Date:
        return date(value);
    case ColumnKind::YesNo:
        return numberOf(value) != 0;
    }
    Q_UNREACHABLE();
}

} // namespace store
