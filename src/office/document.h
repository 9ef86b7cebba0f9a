// office: the office suite as a service with a few verbs: read a document, fill, save, show and print a workbook. The
// suite runs as a process of its own; if it dies or hangs, the caller gets an error and the next call starts a new one.
#pragma once

#include <QByteArray>
#include <QString>

namespace office {

/// A document's whole content in the three forms in which other programs paste it.
struct Content {
    QByteArray rtf;
    QByteArray html;
    QString text;
};

/// Reads a word processor document, or a text file in UTF-8, in UTF-16 with its mark, or else in windows-1252. Macros
/// do not run, links are not followed, the file is not locked. After a second a box says so and offers to cancel; after
/// 20 it is given up. Throws FileNotFound, PathFileAccess for a file that is damaged or protected, DiskFull, Cancelled,
/// 429 when the suite cannot be had.
Content readDocument(const QString& fileName);

} // namespace office
