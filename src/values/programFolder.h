// Of the shared routines (modMain), the place of all files. In this room because every other one asks for it.
#pragma once

#include <QString>

namespace modMain {

/// The folder that holds the program and all its files, without a separator at its end; empty until the program has
/// started.
extern QString ProgramFolder;

} // namespace modMain
