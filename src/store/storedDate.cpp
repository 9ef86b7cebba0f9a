#include "storedDate.h"

#include "values/dates.h"

using namespace Qt::StringLiterals;

namespace store {

namespace {

constexpr QByteArrayView pattern = "0000-00-00 00:00:00";

bool hasStoredForm(QByteArrayView text)
{
    if (text.size() != pattern.size())
        return false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isDigit = text[i] >= '0' && text[i] <= '9';
        if (pattern[i] == '0' ? !isDigit : text[i] != pattern[i])
            return false;
    }
    return true;
}

int readDigits(QByteArrayView text, qsizetype from, qsizetype count)
{
    int number = 0;
    for (qsizetype i = from; i < from + count; ++i)
        number = number * 10 + (text[i] - '0');
    return number;
}

} // namespace

QByteArray toStoredDate(const QDateTime& value)
{
    return value.toString(u"yyyy-MM-dd HH:mm:ss"_s).toLatin1();
}

std::optional<QDateTime> fromStoredDate(QByteArrayView text)
{
    if (!hasStoredForm(text))
        return std::nullopt;
    const QDate date(readDigits(text, 0, 4), readDigits(text, 5, 2), readDigits(text, 8, 2));
    const QTime time(readDigits(text, 11, 2), readDigits(text, 14, 2), readDigits(text, 17, 2));
    if (!date.isValid() || !time.isValid())
        return std::nullopt;
    return values::dateTime(date, time);
}

} // namespace store
