#include "jobFigures.h"

#include "values/money.h"
#include "values/numbers.h"
#include "values/runtimeError.h"

namespace workspace {

using values::Money;

namespace {

QString asCurrency(const QString& caption)
{
    return Money::fromText(caption).currencyText();
}

} // namespace

qint32 linesOf(const QString& characters, qint32 charactersPerLine)
{
    const double typed = values::toDouble(characters);
    if (charactersPerLine == 0)
        throw values::RuntimeError(values::Fault::DivisionByZero);
    return values::toLong(typed / charactersPerLine);
}

JobFigures calculated(JobFigures figures)
{
    if (figures.unit == lineUnit) {
        const double total = values::toDouble(figures.rate) * values::toDouble(figures.lines);
        figures.total = Money::fromDouble(total).text();
    }
    if (figures.unit == reportUnit) {
        figures.lines = QStringLiteral("1");
        figures.total = figures.rate;
    }
    figures.rate = asCurrency(figures.rate);
    figures.total = asCurrency(figures.total);
    return figures;
}

} // namespace workspace
