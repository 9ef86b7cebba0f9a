// office: the office suite as a service with a few functions: read a document; make, show and print a workbook. The
// suite is a separate process; if it dies or hangs, the caller gets an error and the next call starts a new one.
#pragma once

#include <QByteArray>
#include <QString>

namespace office {

/// A document's whole content in the three formats in which other programs paste it.
struct Content {
    QByteArray rtf;
    QByteArray html;
    QString text;
    /// False when it shows the date or the time at which it was read.
    bool isLasting = true;
};

/// Reads a word processor document, or a text file in UTF-8, in UTF-16 with a byte order mark, or else in windows-1252.
/// Runs no macros, follows no links, does not lock the file. After 1 second a box offers to cancel; after 20 seconds
/// the call fails. Throws FileNotFound, PathFileAccess for a file that is damaged or protected, DiskFull, Cancelled,
/// and 429 when the suite is not available.
Content readDocument(const QString& fileName);

/// Gets the suite ready to read documents, beside everything else; see prepareSuite().
void prepareReading();

} // namespace office
