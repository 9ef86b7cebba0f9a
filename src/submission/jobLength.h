#pragma once

#include <QString>

namespace submission {

/// The three boxes of a job's length, as typed.
struct JobLength {
    QString hours;
    QString minutes;
    QString seconds;
};

/// Takes h:m:s or m:s apart; without three pieces the hours stay empty. Throws SubscriptOutOfRange for a text without
/// ":".
JobLength splitLength(const QString& text);

/// Puts the boxes together: no hours (empty, 0 or 00) leave them out, no minutes then stand as 00.
QString joinLength(const JobLength& length);

} // namespace submission
