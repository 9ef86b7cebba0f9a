#pragma once

#include <QElapsedTimer>
#include <QPromise>

namespace backup {

/// What copying throws when it was asked to stop.
struct CopyStopped {};

/// How far copying is, for the promise of the work that it is; see ui::doBesideBox().
class CopyProgress {
public:
    explicit CopyProgress(QPromise<void>& promise) : m_promise(promise) {}

    /// Until showPlan(), nothing is known of how far the copying is.
    void planFile(qint64 bytes);
    void showPlan();
    void addFile();
    void addBytes(qint64 bytes);
    void throwIfStopped() const;

private:
    void show();

    QPromise<void>& m_promise;
    QElapsedTimer m_shown; // since it was last shown
    qint64 m_files = 0;
    qint64 m_bytes = 0;
    qint64 m_allFiles = 0;
    qint64 m_allBytes = 0;
};

} // namespace backup
