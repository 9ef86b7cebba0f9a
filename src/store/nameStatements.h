#pragma once

#include <QString>

namespace store {

/// What lists and combos offer to choose from: id and name of all clients, and of all types, in the file's own order.
QString selectClients();
QString selectTypes();

} // namespace store
