#pragma once

#include "copyProgress.h"

#include <functional>

namespace backup {

/// Does the copying on a thread of its own, so that the window goes on living beside a slow disk, and returns when it
/// is done. After half a second it shows how far it is, in a box that can be cancelled but not closed away; before,
/// input waits. Throws what the copying throws.
void copyBesideBox(const std::function<void(CopyProgress&)>& copying);

/// Stops the copying that goes on, if any, and waits for its end. For the end of the program.
void stopCopying();

} // namespace backup
