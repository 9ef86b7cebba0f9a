#include "fetchContent.h"

#include <QCache>
#include <QFile>

#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <tuple>

namespace templates {

namespace {

constexpr qsizetype maximumBytes = qsizetype(64) << 20;

using Nanoseconds = std::chrono::nanoseconds;

/// What is different after a file was written or replaced. The time of its last change of any kind is part of it,
/// because programs can set the other one back.
struct FileState {
    using Parts = std::tuple<dev_t, ino_t, off_t, Nanoseconds, Nanoseconds>;

    Parts parts{};
    Nanoseconds changed{};
};

Nanoseconds toNanoseconds(const timespec& time)
{
    return std::chrono::seconds(time.tv_sec) + Nanoseconds(time.tv_nsec);
}

FileState readState(const QString& fileName)
{
    struct stat file;
    if (stat(QFile::encodeName(fileName).constData(), &file) != 0)
        return {};
    const Nanoseconds written = toNanoseconds(file.st_mtim);
    const Nanoseconds changed = toNanoseconds(file.st_ctim);
    return {{file.st_dev, file.st_ino, file.st_size, written, changed}, std::max(written, changed)};
}

// Some disks count time in steps of two seconds: a file that was changed just now could be changed once more without
// a difference. This is the clock of files, not the one of jobs.
bool isSettled(const FileState& state)
{
    return std::chrono::system_clock::now().time_since_epoch() - state.changed > std::chrono::seconds(2);
}

struct Kept {
    FileState::Parts file;
    office::Content content;
};

qsizetype countBytes(const office::Content& content)
{
    constexpr qsizetype bookkeeping = 1024;
    return content.rtf.size() + content.html.size() + 2 * content.text.size() + bookkeeping;
}

} // namespace

office::Content fetchContent(const QString& fileName)
{
    static QCache<QString, Kept> cache(maximumBytes);
    const FileState state = readState(fileName);
    if (const Kept* kept = cache.object(fileName); kept && kept->file == state.parts)
        return kept->content;
    const bool canKeep = isSettled(state);
    office::Content content = office::readDocument(fileName);
    // A file that changed while it was read may have been read half old, half new.
    if (canKeep && content.isLasting && readState(fileName).parts == state.parts)
        cache.insert(fileName, new Kept{state.parts, content}, countBytes(content));
    return content;
}

} // namespace templates
