// Of the shared routines (modMain), the one that writes. In this room because it shows its own errors.
#pragma once

#include <QString>

namespace modMain {

/// Runs one insert, update or delete on the main data file, on a connection of its own. Shows its errors itself; the
/// caller does not learn of them and goes on.
void ActionQry(const QString& statement);

} // namespace modMain
