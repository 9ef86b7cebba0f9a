#include "copyError.h"

#include <QFile>

#include <cerrno>
#include <cstring>

namespace backup {

using values::Fault;
using values::RuntimeError;

namespace {

constexpr int diskFull = 61;

QString quoted(const std::filesystem::path& path)
{
    return u'\'' + QFile::decodeName(path.c_str()) + u'\'';
}

RuntimeError withAdvice(Fault fault, const QString& advice)
{
    return {static_cast<int>(fault), RuntimeError(fault).description() + QStringLiteral(": ") + advice};
}

} // namespace

RuntimeError copyError(int systemError, const std::filesystem::path& path)
{
    switch (systemError) {
    case ENOENT:
        return withAdvice(Fault::PathNotFound,
                          QStringLiteral("%1. See that it is there and that its disk is connected.").arg(quoted(path)));
    case EACCES:
    case EPERM:
    case EROFS:
        return withAdvice(Fault::PermissionDenied,
                          QStringLiteral("%1. See that you may read and write there.").arg(quoted(path)));
    case EBUSY:
    case ETXTBSY:
    case EWOULDBLOCK:
        return withAdvice(
            Fault::PermissionDenied,
            QStringLiteral("%1 is in use by another program. Close it there and try again.").arg(quoted(path)));
    case ENOSPC:
    case EDQUOT:
        return {diskFull, QStringLiteral("Disk full: %1. Free some space there and try again.").arg(quoted(path))};
    case EEXIST:
    case ENOTDIR:
    case EISDIR:
        return withAdvice(
            Fault::PathFileAccess,
            QStringLiteral("%1. A file stands where a folder should be, or a folder where a file should be. Take it "
                           "away and try again.")
                .arg(quoted(path)));
    default:
        return withAdvice(Fault::PathFileAccess, QStringLiteral("%1 (%2). See that its disk is connected and sound.")
                                                     .arg(quoted(path), QString::fromLocal8Bit(strerror(systemError))));
    }
}

RuntimeError lastCopyError(const std::filesystem::path& path)
{
    return copyError(errno, path);
}

RuntimeError copyIntoItself(const std::filesystem::path& destination)
{
    return withAdvice(
        Fault::PermissionDenied,
        QStringLiteral("%1 is a part of what is to be backed up. Choose another folder.").arg(quoted(destination)));
}

} // namespace backup
