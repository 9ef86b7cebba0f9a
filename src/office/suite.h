#pragma once

#include "bridge.h"

#include "ui/longWork.h"

#include <functional>

namespace office {

/// Work on the suite, which runs on another thread. It gets a folder for temporary files that only we can read, and
/// reports its progress to the promise.
using Work = std::function<void(Bridge&, const QString& exchangeFolder, QPromise<void>&)>;

/// How long work may take unless the caller sets a shorter time, in milliseconds.
inline constexpr int maximumTimeout = 60'000;

/// Does work on the suite and returns when it is done; see ui::doBesideBox() for what the person sees meanwhile. The
/// suite is started at the first use and kept running. If the suite dies, the work is repeated once on a new one; work
/// that takes longer than `timeout` (milliseconds) is not repeated. Throws what the work throws; 429 when the suite is
/// not installed, died twice or was too slow; 61 or 75 when it could not write; 32755 when the person cancelled, the
/// program ends, or the suite is busy, because only one command may use it at a time.
void runOnSuite(const Work& work, const ui::LongWork& shown = {}, int timeout = maximumTimeout);

/// Starts the suite, unless it runs, and lets it do some work that nobody waits for, so that later work finds it ready;
/// work that comes earlier waits for that. Returns at once. Its errors are ignored: later work meets them again.
void prepareSuite(const Work& work);

/// Leaves the suite to the person who works in its window, which stays open when the program ends. The next work gets a
/// new suite.
void giveSuiteAway();

/// Ends the suite within 3 seconds, or at once when it is busy, so that no caller goes on waiting for it. Called when
/// the program ends.
void endSuite();

/// The process id of the running suite, or 0. For tests that kill it.
qint64 suiteProcessId();

/// Limits how long any work may take, in milliseconds. For tests.
void limitTimeout(int milliseconds);

} // namespace office
