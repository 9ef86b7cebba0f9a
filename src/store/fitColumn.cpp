#include "fitColumn.h"

#include "storeError.h"

#include "values/money.h"
#include "values/numbers.h"

using namespace Qt::StringLiterals;

namespace store {

namespace {

constexpr int maximumTextLength = 255;

template <typename Kind>
Kind require(const Field::Value& value)
{
    const auto* held = std::get_if<Kind>(&value);
    if (!held)
        throw typeMismatchError();
    return *held;
}

// An amount beyond Money could be stored but never shown; neither could more decimals than it has, and a list would
// calculate with them.
double requireMoney(double number)
{
    return values::Money::fromDouble(number).toDouble();
}

QString requireFittingLength(const QString& text)
{
    if (text.size() > maximumTextLength) {
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
        return qint64{values::toLong(require<double>(value))};
    case ColumnKind::Number:
        return require<double>(value);
    case ColumnKind::Money:
        return requireMoney(require<double>(value));
    case ColumnKind::Text:
        return requireFittingLength(require<QString>(value));
    case ColumnKind::Date:
        return require<QDateTime>(value);
    case ColumnKind::YesNo:
        return std::holds_alternative<bool>(value) ? value : require<double>(value) != 0;
    }
    Q_UNREACHABLE();
}

} // namespace store
