#include "fitColumn.h"

#include "storeError.h"

#include "values/money.h"
#include "values/numbers.h"

using namespace Qt::StringLiterals;

namespace store {

namespace {

constexpr int longestText = 255;

template <typename Kind>
Kind only(const Field::Value& value)
{
    const auto* held = std::get_if<Kind>(&value);
    if (!held)
        throw typeMismatch();
    return *held;
}

// What no amount of money can hold could be stored but never shown. The decimals stay as typed.
double money(double number)
{
    values::Money::fromDouble(number);
    return number;
}

QString shortEnough(const QString& text)
{
    if (text.size() > longestText) {
        throw storeError(StoreFault::Unspecified,
                         u"The field is too small to accept the amount of data you attempted to add. Try inserting or "
                         "pasting less data (at most 255 characters)."_s);
    }
    return text;
}

} // namespace

Field::Value fitColumn(ColumnKind kind, const Field::Value& value)
{
    switch (kind) {
    case ColumnKind::Id:
    case ColumnKind::Whole:
        return qint64{values::toLong(only<double>(value))};
    case ColumnKind::Number:
        return only<double>(value);
    case ColumnKind::Money:
        return money(only<double>(value));
    case ColumnKind::Text:
        return shortEnough(only<QString>(value));
    case ColumnKind::Date:
        return only<QDateTime>(value);
    case ColumnKind::YesNo:
        return std::holds_alternative<bool>(value) ? value : only<double>(value) != 0;
    }
    Q_UNREACHABLE();
}

} // namespace store
