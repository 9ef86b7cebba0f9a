#pragma once

#include <QString>

namespace submission {

QString selectUnsubmittedDates();
/// The date in the form in which the list of dates shows it.
QString selectUnsubmittedReferences(const QString& date);
/// Marks every job with this reference as submitted. Date and time are stored as typed.
QString updateSubmitted(const QString& reference, const QString& date, const QString& time);
QString selectTypesByClient();

} // namespace submission
