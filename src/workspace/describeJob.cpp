#include "describeJob.h"

#include "values/money.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace workspace {

namespace {

constexpr int clientColumn = 2;
constexpr int typeColumn = 3;
constexpr int timeColumn = 6;
constexpr int amountColumn = 9;

/// The seconds of a length written as h:m:s or m:s; 0 for any other text.
qint64 readSeconds(const QString& length)
{
    const QStringList parts = length.split(u':');
    if (parts.size() < 2 || parts.size() > 3)
        return 0;
    qint64 seconds = 0;
    for (const QString& part : parts)
        seconds = seconds * 60 + part.toInt();
    return seconds;
}

QString shorten(const QString& name)
{
    constexpr qsizetype maximumLength = 26;
    return name.size() <= maximumLength ? name : name.first(maximumLength) + u'…';
}

QString describePay(const TypeNames& type)
{
    return type.unit.isEmpty() || type.rate.isEmpty() ? type.unit : u"%1 at %2"_s.arg(type.unit, type.rate);
}

QString describeHour(const GridModel& jobs, int row, const QString& length)
{
    const store::Field field = jobs.rows().at(row, amountColumn);
    const auto* amount = std::get_if<double>(&field.value());
    const qint64 seconds = readSeconds(length);
    if (!amount || seconds <= 0)
        return {};
    return u"%1 an hour"_s.arg(values::currencyText(*amount * 3600 / static_cast<double>(seconds)));
}

} // namespace

QString describeJob(const GridModel& jobs, int row)
{
    const auto textAt = [&](int column) { return jobs.index(row, column).data().toString(); };
    const TypeNames type = jobs.names().types.value(textAt(typeColumn));
    const QString length = textAt(timeColumn);
    QStringList parts{shorten(jobs.names().clients.value(textAt(clientColumn))), shorten(type.name), describePay(type),
                      length, describeHour(jobs, row, length)};
    parts.removeAll(QString());
    return parts.join(u"  ·  "_s);
}

} // namespace workspace
