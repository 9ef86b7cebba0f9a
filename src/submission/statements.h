#pragma once

#include <QString>

namespace submission {

QString selectUnsubmittedDates();
/// The date as the list of dates shows it.
QString selectUnsubmittedOf(const QString& date);
/// Marks every job of this reference. Date and time as typed.
QString markSubmitted(const QString& reference, const QString& date, const QString& time);
QString selectTypesByClient();

} // namespace submission
