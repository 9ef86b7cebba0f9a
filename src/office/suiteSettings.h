#pragma once

#include <QString>

namespace office {

/// Writes a new profile of the suite in which a document can load nothing from outside itself: no link is followed, no
/// macro runs, the network is out of reach. Throws 61 when the disk is full, 75 when the profile cannot be written.
void writeSettings(const QString& profile);

} // namespace office
