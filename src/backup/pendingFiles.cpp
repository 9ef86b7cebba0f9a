#include "pendingFiles.h"

#include "copyError.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <string>
#include <string_view>

namespace backup {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view prefix = ".penwright-";
constexpr std::string_view suffix = ".part";

// The new copies need at most this much room besides the earlier ones.
constexpr qint64 maximumPendingBytes = qint64(64) << 20;
constexpr std::size_t maximumPendingFiles = 500;

} // namespace

PendingFiles::PendingFiles(const fs::path& folder)
    : m_folder(folder), m_handle(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    if (!m_handle.isOpen())
        throw lastCopyError(folder);
    // Other errors are ignored: some network disks cannot lock.
    if (flock(m_handle.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        throw lastCopyError(folder);
}

PendingFiles::~PendingFiles()
{
    std::error_code ignored;
    for (const File& file : m_files)
        fs::remove(file.temporary, ignored);
}

fs::path PendingFiles::add(const fs::path& place, qint64 bytes)
{
    if (m_files.size() >= maximumPendingFiles || m_bytes >= maximumPendingBytes)
        moveIntoPlace();
    m_bytes += bytes;
    const std::string name = std::string(prefix) + std::to_string(++m_count) + std::string(suffix);
    m_files.push_back({place.parent_path() / name, place});
    return m_files.back().temporary;
}

void PendingFiles::forgetLast()
{
    m_files.pop_back();
}

void PendingFiles::moveIntoPlace()
{
    if (m_files.empty())
        return;
    flush();
    for (File& file : m_files) {
        std::error_code error;
        fs::rename(file.temporary, file.place, error);
        if (error)
            throw copyError(error.value(), file.place);
    }
    m_files.clear();
    m_bytes = 0;
}

// Flushes the whole disk, which is faster than file by file. If the disk was removed, its mount point is still a folder
// of this name, to which the later copies were written; so this checks that the folder is the one opened at first.
void PendingFiles::flush() const
{
    struct stat opened;
    struct stat named;
    if (syncfs(m_handle.number()) != 0 || fstat(m_handle.number(), &opened) != 0 || stat(m_folder.c_str(), &named) != 0)
        throw lastCopyError(m_folder);
    if (opened.st_dev != named.st_dev || opened.st_ino != named.st_ino)
        throw copyError(ENOENT, m_folder);
}

bool PendingFiles::isTemporary(const fs::path& name)
{
    const std::string& text = name.native();
    return text.starts_with(prefix) && text.ends_with(suffix);
}

} // namespace backup
