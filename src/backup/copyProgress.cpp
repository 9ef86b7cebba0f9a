#include "copyProgress.h"

#include <QLocale>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace backup {

namespace {

QString sizeText(qint64 bytes)
{
    return QLocale::c().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
}

// The plan is the first step; after it a file costs about as much as a mebibyte of content.
int stepsOf(qint64 files, qint64 bytes)
{
    constexpr qint64 mebibyte = qint64(1) << 20;
    return static_cast<int>(std::min<qint64>(1 + files + bytes / mebibyte, std::numeric_limits<int>::max()));
}

} // namespace

void CopyProgress::planFile(qint64 bytes)
{
    ++m_allFiles;
    m_allBytes += bytes;
}

void CopyProgress::showPlan()
{
    m_promise.setProgressRange(0, stepsOf(m_allFiles, m_allBytes));
    show();
}

void CopyProgress::addFile()
{
    ++m_files;
    show();
}

void CopyProgress::addBytes(qint64 bytes)
{
    m_bytes += bytes;
    show();
}

void CopyProgress::throwIfStopped() const
{
    if (m_promise.isCanceled())
        throw CopyStopped();
}

// Not for every file: a text takes longer than seeing that a file is unchanged, and nobody reads that fast.
// A file may have grown since the plan was made: the last step is the most that can be shown.
void CopyProgress::show()
{
    constexpr int pauseMilliseconds = 20;
    if (m_shown.isValid() && !m_shown.hasExpired(pauseMilliseconds) && m_files < m_allFiles)
        return;
    m_shown.start();
    const int step = std::min(stepsOf(m_files, m_bytes), stepsOf(m_allFiles, m_allBytes));
    m_promise.setProgressValueAndText(step, u"Backing up\n%1 of %2 files, %3 of %4"_s.arg(m_files)
                                                .arg(m_allFiles)
                                                .arg(sizeText(m_bytes), sizeText(m_allBytes)));
}

} // namespace backup
