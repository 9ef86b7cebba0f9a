#pragma once

#include "handle.h"

#include <QtGlobal>

#include <filesystem>
#include <vector>

namespace backup {

/// Copies that are not yet in their places in the backup folder. Each is written under a temporary name beside its
/// place and renamed once it is safe on the disk. Many are flushed together, because flushing a thousand small files
/// one by one would take long. The destructor removes the copies that are not in their places.
class PendingFiles {
public:
    /// Throws RuntimeError when the backup folder does not exist or another backup is writing to it.
    explicit PendingFiles(const std::filesystem::path& folder);
    ~PendingFiles();
    Q_DISABLE_COPY(PendingFiles)

    /// The temporary name under which to write a copy of this size for this place. May move earlier copies into their
    /// places.
    std::filesystem::path add(const std::filesystem::path& place, qint64 bytes);

    /// Undoes the last add(), for which nothing was written.
    void forgetLast();

    /// Flushes all copies and moves them into their places.
    void moveIntoPlace();

    /// Waits until everything written in the backup folder, including names, is safe on its disk.
    void flush() const;

    /// Whether this is a temporary name of ours, left behind by a backup that was killed.
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
