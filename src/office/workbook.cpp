#include "workbook.h"

#include "suite.h"
#include "suiteError.h"

#include "values/dates.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace office {

using values::Fault;
using values::RuntimeError;

namespace {

// Writes a temporary file beside it first: an earlier workbook stays complete until the new one is.
void replaceFile(const QString& temporaryFile, const QString& fileName)
{
    QFile source(temporaryFile);
    QSaveFile target(fileName);
    if (!source.open(QIODevice::ReadOnly) || !target.open(QIODevice::WriteOnly))
        throw accessError(fileName, u"could not be written. See that you may write there."_s);
    // On a full disk it is flush() that fails, not commit().
    const bool isWritten = target.write(source.readAll()) == source.size() && target.flush() && target.commit();
    source.remove();
    if (!isWritten)
        throw writeError(target, fileName);
}

// Without a default printer the suite would ask for one in a box of its own and wait for the answer.
bool hasPrinter()
{
    QProcess status;
    status.start(u"lpstat"_s, {u"-d"_s});
    return status.waitForFinished() && status.exitCode() == 0 && status.readAllStandardOutput().contains(": ");
}

} // namespace

double dateNumber(const QDateTime& value)
{
    constexpr double secondsADay = 86'400;
    const int seconds = value.time().msecsSinceStartOfDay() / 1000;
    return static_cast<double>(values::timeOnlyDay.daysTo(value.date())) + seconds / secondsADay;
}

void prepareWorkbooks(const QString& templateFile)
{
    prepareSuite([templateFile](Bridge& bridge, const QString& folder, QPromise<void>&) {
        const QString copy = folder + u"/ahead.xls"_s;
        bridge.convert(templateFile, {}, {copy}, {{"MS Excel 97", ""}});
        QFile::remove(copy);
    });
}

void makeWorkbook(const QString& templateFile, const SheetContent& content, const QString& fileName,
                  const ui::LongWork& shown)
{
    if (!QFileInfo(templateFile).isFile())
        throw RuntimeError(Fault::FileNotFound);
    if (!QFileInfo(fileName).dir().exists())
        throw RuntimeError(Fault::PathNotFound);
    runOnSuite(
        [&](Bridge& bridge, const QString& folder, QPromise<void>& progress) {
            const QString temporaryFile = folder + u"/workbook.xls"_s;
            const FillResult result = bridge.fill(templateFile, content, temporaryFile, progress);
            if (result == FillResult::NotOpened)
                throw accessError(templateFile, u"could not be opened. It may be damaged."_s);
            if (result == FillResult::NoSheet)
                throw RuntimeError(Fault::SubscriptOutOfRange);
            // It may have been cancelled while the suite wrote.
            if (!progress.isCanceled())
                replaceFile(temporaryFile, fileName);
        },
        shown);
}

void showWorkbook(const QString& fileName, ShowAs as)
{
    runOnSuite([&](Bridge& bridge, const QString&, QPromise<void>&) {
        if (!bridge.show(fileName, as))
            throw accessError(fileName, u"could not be opened."_s);
    });
    giveSuiteAway();
}

bool printWorkbook(const QString& fileName, int copies)
{
    bool isPrinted = false;
    runOnSuite([&](Bridge& bridge, const QString&, QPromise<void>&) {
        if (!hasPrinter())
            return;
        if (!bridge.print(fileName, copies))
            throw accessError(fileName, u"could not be opened."_s);
        isPrinted = true;
    });
    return isPrinted;
}

} // namespace office
