#include "copyFile.h"

#include "copyError.h"
#include "handle.h"

#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>

#include <cerrno>

namespace backup {

namespace {

namespace fs = std::filesystem;

// Small enough for Cancel to work soon on a slow disk too.
constexpr std::size_t chunkBytes = std::size_t(1) << 20;

constexpr mode_t permissionBits = 07777;

// How much older than its copy a file must be: within one tick of the disk's clock it could have changed once more.
constexpr time_t settledSeconds = 2;

Handle openPrivateFile(const fs::path& file)
{
    Handle handle(open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!handle.isOpen())
        throw lastCopyError(file.parent_path());
    return handle;
}

struct stat readState(const Handle& file, const fs::path& name)
{
    struct stat state;
    if (fstat(file.number(), &state) != 0)
        throw lastCopyError(name);
    return state;
}

bool isChanged(const struct stat& before, const struct stat& now)
{
    return before.st_size != now.st_size || before.st_mtim.tv_sec != now.st_mtim.tv_sec ||
           before.st_mtim.tv_nsec != now.st_mtim.tv_nsec;
}

} // namespace

bool copyFile(const fs::path& source, const fs::path& copy, CopyProgress& progress)
{
    const Handle in(open(source.c_str(), O_RDONLY | O_CLOEXEC));
    if (!in.isOpen()) {
        if (errno == ENOENT)
            return false;
        throw lastCopyError(source);
    }
    const struct stat before = readState(in, source);
    const Handle out = openPrivateFile(copy);
    while (true) {
        progress.throwIfStopped();
        const ssize_t copiedBytes = sendfile(out.number(), in.number(), nullptr, chunkBytes);
        if (copiedBytes < 0)
            throw copyError(errno, errno == ENOSPC || errno == EDQUOT ? copy.parent_path() : source);
        if (copiedBytes == 0)
            break;
        progress.addBytes(copiedBytes);
    }
    // A file that changed meanwhile was copied partly as it was before and partly as it is now.
    if (isChanged(before, readState(in, source)))
        throw copyError(EBUSY, source);
    // Lets the disk start writing without waiting for it.
    sync_file_range(out.number(), 0, 0, SYNC_FILE_RANGE_WRITE);
    return true;
}

// Programs can set the time of the last writing back, but not that of the last change of any kind. A link is no copy.
bool isCopied(const fs::path& source, const fs::path& copy)
{
    struct stat now;
    struct stat then;
    if (stat(source.c_str(), &now) != 0 || lstat(copy.c_str(), &then) != 0 || !S_ISREG(then.st_mode))
        return false;
    return !isChanged(then, now) && (then.st_mode & permissionBits) == (now.st_mode & permissionBits) &&
           then.st_ctim.tv_sec - now.st_ctim.tv_sec >= settledSeconds;
}

void createPrivateFile(const fs::path& file)
{
    openPrivateFile(file);
}

void keepTimesAndPermissions(const fs::path& original, const fs::path& copy)
{
    struct stat state;
    if (stat(original.c_str(), &state) != 0)
        return;
    chmod(copy.c_str(), state.st_mode & permissionBits);
    const struct timespec times[] = {state.st_atim, state.st_mtim};
    utimensat(AT_FDCWD, copy.c_str(), times, 0);
}

} // namespace backup
