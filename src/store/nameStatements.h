#pragma once

#include <QString>

namespace store {

/// Id and name of all clients, and of all types, in the order of the file: for lists and combo boxes.
QString selectClients();
QString selectTypes();

} // namespace store
