#pragma once

#include "bridge.h"

#include <functional>

namespace office {

/// Runs a piece of work on the suite and waits for it, while the program's clocks go on and its input waits. Started at
/// the first use and kept warm. Work that takes over 60 seconds, or whose suite dies, is tried once more on a new
/// suite. The work gets a folder for files on their way, which only we can read. Throws what the work throws, and 429
/// when the suite is not installed or was lost twice.
/// With a progress that a person sees, input is let through, so that it can be cancelled.
void onSuite(const std::function<void(Bridge&, const QString& exchangeFolder)>& work,
             const Progress* progress = nullptr);

/// Ends the suite, unless one of its windows is visible. Called when the program ends.
void endSuite();

/// The process of the running suite; 0 when there is none. For tests that kill it.
qint64 suiteProcessId();

/// How long work may take, in milliseconds; tests shorten it.
void setPatience(int milliseconds);

} // namespace office
