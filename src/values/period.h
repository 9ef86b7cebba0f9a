#pragma once

#include <QDate>
#include <QString>

namespace values {

/// Two days and all between them.
struct Period {
    QDate first;
    QDate last;
};

/// The week of a day, Sunday to Saturday.
Period weekOf(QDate day);

/// The month of a day, from the 1st to the day that FindLast() gives.
Period monthOf(QDate day);

/// The last day of a month given as its number, both as text. February always ends on the 28th, so that a month's
/// list looks the same every year.
QString FindLast(const QString& month);

} // namespace values
