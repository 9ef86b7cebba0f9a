#include "workbook.h"

#include "suite.h"
#include "suiteError.h"

#include "values/dates.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>

namespace office {

namespace {

// Through a name beside it: an earlier workbook stays whole until the new one is.
void replaceWith(const QString& made, const QString& fileName)
{
    QFile source(made);
    QSaveFile target(fileName);
    // A disk that takes a part of it only is told by flush(), not by commit().
    const bool isWritten = source.open(QIODevice::ReadOnly) && target.open(QIODevice::WriteOnly) &&
                           target.write(source.readAll()) == source.size() && target.flush() && target.commit();
    source.remove();
    if (!isWritten)
        throw writeError(target, fileName);
}

// Says what went wrong, if anything did.
void check(Made made, const QString& templateFile, const QString& workbook)
{
    switch (made) {
    case Made::Yes:
    case Made::Cancelled:
        return;
    case Made::NotOpened:
        throw accessError(templateFile, QStringLiteral("could not be opened. It may be damaged."));
    case Made::NoSheet:
        throw values::RuntimeError(values::Fault::SubscriptOutOfRange);
    case Made::NotWritten:
        throw notWritten(workbook);
    }
}

// Without a default printer the suite would ask for one in a box of its own and wait for the answer.
bool hasPrinter()
{
    QProcess status;
    status.start(QStringLiteral("lpstat"), {QStringLiteral("-d")});
    return status.waitForFinished() && status.exitCode() == 0 && status.readAllStandardOutput().contains(": ");
}

} // namespace

double dateNumber(const QDateTime& value)
{
    constexpr double secondsADay = 86'400;
    return static_cast<double>(values::timeOnlyDay.daysTo(value.date())) +
           value.time().msecsSinceStartOfDay() / 1000 / secondsADay;
}

bool makeWorkbook(const QString& templateFile, const Filling& filling, const QString& fileName, Progress* progress)
{
    if (!QFileInfo(templateFile).isFile())
        throw values::RuntimeError(values::Fault::FileNotFound);
    if (!QFileInfo(fileName).dir().exists())
        throw values::RuntimeError(values::Fault::PathNotFound);
    Progress nobodyLooks;
    bool isMade = false;
    onSuite(
        [&](Bridge& bridge, const QString& folder) {
            const QString made = folder + QStringLiteral("/workbook.xls");
            Progress& seen = progress ? *progress : nobodyLooks;
            const Made filled = bridge.fill(templateFile, filling, made, seen);
            check(filled, templateFile, made);
            // It may have been cancelled while the suite wrote.
            isMade = filled == Made::Yes && !seen.isCancelled;
            if (isMade)
                replaceWith(made, fileName);
            else
                QFile::remove(made);
        },
        progress);
    return isMade;
}

void showWorkbook(const QString& fileName, ShowAs as)
{
    onSuite([&](Bridge& bridge, const QString&) {
        if (!bridge.show(fileName, as))
            throw accessError(fileName, QStringLiteral("could not be opened."));
    });
}

bool printWorkbook(const QString& fileName, int copies)
{
    if (!hasPrinter())
        return false;
    onSuite([&](Bridge& bridge, const QString&) {
        if (!bridge.print(fileName, copies))
            throw accessError(fileName, QStringLiteral("could not be opened."));
    });
    return true;
}

} // namespace office
