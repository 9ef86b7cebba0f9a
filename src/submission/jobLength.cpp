#include "jobLength.h"

#include "values/runtimeError.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace submission {

JobLength splitLength(const QString& text)
{
    const QStringList pieces = text.split(u':');
    if (pieces.size() == 3)
        return {pieces[0], pieces[1], pieces[2]};
    if (pieces.size() < 2)
        throw values::RuntimeError(values::Fault::SubscriptOutOfRange);
    return {QString(), pieces[0], pieces[1]};
}

QString joinLength(const JobLength& length)
{
    const bool hasHours = length.hours != u"00" && length.hours != u"0" && !length.hours.isEmpty();
    if (hasHours)
        return length.hours + u':' + length.minutes + u':' + length.seconds;
    return (length.minutes.isEmpty() ? u"00"_s : length.minutes) + u':' + length.seconds;
}

} // namespace submission
