#pragma once

#include <QString>

namespace submission {

/// A job's length as it is typed into three boxes.
struct JobLength {
    QString hours;
    QString minutes;
    QString seconds;
};

/// Splits h:m:s or m:s; the hours stay empty unless there are exactly three parts. Throws SubscriptOutOfRange for a
/// text without ":".
JobLength splitLength(const QString& text);

/// Joins the boxes. Hours that are empty, 0 or 00 are left out; empty minutes then become 00.
QString joinLength(const JobLength& length);

} // namespace submission
