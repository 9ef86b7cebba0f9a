#pragma once

#include <QString>

namespace app {

/// Makes a program folder that only its owner can enter: new data files, copies of the delivered templates, no reports,
/// links to the delivered help and sound. Whole or not at all; if another start makes it at the same time, theirs is
/// taken. Throws RuntimeError.
void makeProgramFolder(const QString& delivered, const QString& folder);

/// Copies those delivered templates into an existing program folder that were not delivered before, and of whose name
/// none is there. What cannot be copied is tried again at the next start.
void addNewTemplates(const QString& delivered, const QString& folder);

} // namespace app
