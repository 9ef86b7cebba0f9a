#pragma once

#include <QString>

namespace office {

/// Sets up a profile of the suite that does not exist yet: a document gets nothing but what it holds. No link is
/// followed, no macro runs, the network is out of reach. Throws 61 when the disk is full, 75 when it cannot be written.
void writeSettings(const QString& profile);

} // namespace office
