#pragma once

#include <QDate>
#include <QString>

namespace reports {

/// The name of a report's file: title, "_", month and day as two digits each, ".xls". What a file system refuses in a
/// name becomes "_", and a name too long for one is cut at a character.
QString reportFileName(const QString& title, QDate day);

} // namespace reports
