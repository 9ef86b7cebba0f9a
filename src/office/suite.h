#pragma once

#include "bridge.h"

#include "ui/longWork.h"

#include <functional>

namespace office {

/// Work on the suite, on another thread. It gets a folder for files on their way, which only we can read, and tells its
/// promise how far it is.
using Work = std::function<void(Bridge&, const QString& exchangeFolder, QPromise<void>&)>;

/// How long work may take that nobody gave a shorter time, in milliseconds.
inline constexpr int longestPatience = 60'000;

/// Does work on the suite and returns when it is done; see ui::doBesideBox() for what the person sees meanwhile. The
/// suite is started at the first use and kept warm. Work whose suite dies is tried once more on a new one; work that
/// takes longer than `patience` (milliseconds) is not. Throws what the work throws; 429 when the suite is not
/// installed, was lost twice or was too slow; 61 or 75 when it could not write; 32755 when the person cancelled, the
/// program ends, or the suite is busy: a second command never starts beside a first.
void onSuite(const Work& work, const ui::LongWork& shown = {}, int patience = longestPatience);

/// Leaves the suite to the person who works in its window, which outlives the program. The next work gets a new suite.
void giveSuiteAway();

/// Ends the suite, within 3 seconds; at once when it is busy: whoever waits for it must not go on. Called when the
/// program ends.
void endSuite();

/// The process of the running suite; 0 when there is none. For tests that kill it.
qint64 suiteProcessId();

/// Shortens how long any work may take, in milliseconds, for tests.
void setPatience(int milliseconds);

} // namespace office
