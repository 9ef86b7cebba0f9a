#pragma once

#include "handle.h"

#include <QtGlobal>

#include <filesystem>
#include <vector>

namespace backup {

/// Copies on their way to the backup folder. Each is written under a temporary name beside its destination and takes
/// its place when it is safe on the disk. They are flushed many at a time, or a thousand small files would wait for the
/// disk a thousand times. What is not in its place when this goes is removed.
class PendingFiles {
public:
    /// Throws RuntimeError when the backup folder is not there or another backup is writing to it.
    explicit PendingFiles(const std::filesystem::path& folder);
    ~PendingFiles();
    Q_DISABLE_COPY(PendingFiles)

    /// The temporary name under which to write what is to take this place, of so many bytes. May put the earlier ones
    /// into their places.
    std::filesystem::path add(const std::filesystem::path& place, qint64 bytes);

    /// Takes back the last add(), for which nothing was made.
    void forgetLast();

    /// Flushes all and puts them into their places.
    void settle();

    /// Waits until everything written in the backup folder is safe on its disk, also the names.
    void flush() const;

    /// Whether a name is one of ours, left behind by a backup that was killed.
    static bool isTemporary(const std::filesystem::path& name);

private:
    struct File {
        std::filesystem::path temporary;
        std::filesystem::path place;
    };

    std::filesystem::path m_folder;
    Handle m_handle;
    std::vector<File> m_files;
    qint64 m_bytes = 0;
    int m_count = 0;
};

} // namespace backup
