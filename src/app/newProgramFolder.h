#pragma once

#include <QString>

namespace app {

// The shared files are those that an installation has for all of its users.

/// Makes a program folder that only its owner can enter: new data files, copies of the shared templates, no reports,
/// links to the shared help and sound. Whole or not at all; if another start makes it at the same time, theirs is
/// taken. Throws RuntimeError.
void makeProgramFolder(const QString& shared, const QString& folder);

/// Copies those shared templates into an existing program folder that were never copied before, and of whose name
/// none is there. What cannot be copied is tried again at the next start.
void addNewTemplates(const QString& shared, const QString& folder);

} // namespace app
