#include "copyError.h"

#include <QFile>

#include <cerrno>
#include <cstring>

using namespace Qt::StringLiterals;

namespace backup {

using values::Fault;
using values::RuntimeError;

namespace {

constexpr int diskFull = 61;

QString quote(const std::filesystem::path& path)
{
    return u'\'' + QFile::decodeName(path.c_str()) + u'\'';
}

RuntimeError makeError(Fault fault, const QString& advice)
{
    return {static_cast<int>(fault), RuntimeError(fault).description() + u": "_s + advice};
}

} // namespace

RuntimeError copyError(int systemError, const std::filesystem::path& path)
{
    switch (systemError) {
    case ENOENT:
        return makeError(Fault::PathNotFound,
                         u"%1. See that it is there and that its disk is connected."_s.arg(quote(path)));
    case EACCES:
    case EPERM:
    case EROFS:
        return makeError(Fault::PermissionDenied, u"%1. See that you may read and write there."_s.arg(quote(path)));
    case EBUSY:
    case ETXTBSY:
    case EWOULDBLOCK:
        return makeError(Fault::PermissionDenied,
                         u"%1 is in use by another program. Close it there and try again."_s.arg(quote(path)));
    case ENOSPC:
    case EDQUOT:
        return {diskFull, u"Disk full: %1. Free some space there and try again."_s.arg(quote(path))};
    case EEXIST:
    case ENOTDIR:
    case EISDIR:
        return makeError(Fault::PathFileAccess,
                         u"%1. A file stands where a folder should be, or a folder where a file should be. Take it "
                         "away and try again."_s.arg(quote(path)));
    default:
        return makeError(Fault::PathFileAccess, u"%1 (%2). See that its disk is connected and sound."_s.arg(
                                                    quote(path), QString::fromLocal8Bit(strerror(systemError))));
    }
}

RuntimeError lastCopyError(const std::filesystem::path& path)
{
    return copyError(errno, path);
}

RuntimeError copyIntoItselfError(const std::filesystem::path& destination)
{
    return makeError(Fault::PermissionDenied,
                     u"%1 is a part of what is to be backed up. Choose another folder."_s.arg(quote(destination)));
}

} // namespace backup
