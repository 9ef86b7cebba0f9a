#include "jobFigures.h"

#include "values/money.h"
#include "values/numbers.h"
#include "values/runtimeError.h"

namespace workspace {

using values::Money;

qint32 calculateLines(const QString& characters, qint32 charactersPerLine)
{
    const double typed = values::toDouble(characters);
    if (charactersPerLine == 0)
        throw values::RuntimeError(values::Fault::DivisionByZero);
    return values::toLong(typed / charactersPerLine);
}

QString calculateTotal(const QString& rate, const QString& lines)
{
    return Money::fromDouble(values::toDouble(rate) * values::toDouble(lines)).text();
}

QString formatRate(const QString& rate)
{
    return Money::fromText(rate).rateText();
}

QString formatTotal(const QString& total)
{
    return Money::fromText(total).currencyText();
}

} // namespace workspace
