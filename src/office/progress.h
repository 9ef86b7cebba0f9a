#pragma once

#include <atomic>

namespace office {

/// How far a long piece of work is, and whether it shall stop: shared by the suite's thread and the program's.
struct Progress {
    std::atomic<int> rowsWritten = 0;
    std::atomic<bool> isCancelled = false;
    /// Whether a person sees it and can stop it: only then is input let through while the suite works.
    std::atomic<bool> isVisible = false;
};

} // namespace office
