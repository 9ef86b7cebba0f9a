// Of the shared routines (modMain), the one that writes. In this room because it shows its own errors.
#pragma once

#include <QString>

namespace modMain {

/// Runs one insert, update or delete on the main data file, on a connection of its own. Shows its errors itself, and
/// the caller goes on. True when the statement was carried out.
bool ActionQry(const QString& statement);

} // namespace modMain
