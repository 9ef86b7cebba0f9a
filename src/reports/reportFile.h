#pragma once

#include <QDate>
#include <QString>

namespace reports {

/// The name of a report's file: title, "_", month and day with two digits each, ".xls". Characters that a file system
/// does not allow become "_", and a title that is too long is cut between two characters.
QString reportFileName(const QString& title, QDate day);

} // namespace reports
