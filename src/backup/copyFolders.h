#pragma once

#include <QPromise>
#include <QString>

namespace backup {

/// Copies the folders reports, data and templates of a program folder, in this order, into a folder that is there, over
/// what it has of them; nothing is removed from it. A file of the copy is always whole, the old one or the new one,
/// whatever ends this early, and the folders before it stay copied. Tells its promise how far it is, and throws
/// CopyStopped when that was cancelled; else RuntimeError.
void copyFolders(const QString& programFolder, const QString& destination, QPromise<void>& promise);

} // namespace backup
