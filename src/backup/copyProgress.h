#pragma once

#include <QtGlobal>

#include <atomic>

namespace backup {

/// What copying throws when it was asked to stop.
struct CopyStopped {};

/// How far copying is: one thread copies, another one shows it and may ask it to stop.
struct CopyProgress {
    std::atomic<qint64> files = 0;
    std::atomic<qint64> bytes = 0;
    std::atomic<qint64> allFiles = 0;
    std::atomic<qint64> allBytes = 0;
    std::atomic<bool> isStopped = false;

    void throwIfStopped() const
    {
        if (isStopped)
            throw CopyStopped();
    }
};

} // namespace backup
