// Any text typed as a date, a number or an amount is either read or refused, and a value that was read and written
// again reads as the same value.
#include "values/dates.h"
#include "values/money.h"
#include "values/numbers.h"
#include "values/runtimeError.h"

#include <cmath>
#include <cstdlib>

namespace {

void check(bool holds)
{
    if (!holds)
        std::abort();
}

void checkNumber(double number)
{
    const std::optional<double> again = values::readNumber(values::numberText(number));
    check(again.has_value() && std::abs(*again - number) <= std::abs(number) * 1e-14);
    try {
        const values::Money money = values::Money::fromDouble(number);
        check(values::Money::fromText(money.currencyText()).currencyText() == money.currencyText());
    } catch (const values::RuntimeError& error) {
        check(error.number() == static_cast<int>(values::Fault::Overflow));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString typed = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (const std::optional<QDateTime> date = values::readDate(typed))
        check(values::readDate(values::dateText(*date)) == date);
    if (const std::optional<double> number = values::readNumber(typed))
        checkNumber(*number);
    return 0;
}
