#include "workbook.h"

#include "suite.h"
#include "suiteError.h"

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
        throw accessError(fileName,
                          QStringLiteral("could not be written. See that you may write there and that the disk "
                                         "is not full."));
}

// Without a default printer the suite would ask for one in a box of its own and wait for the answer.
bool hasPrinter()
{
    QProcess status;
    status.start(QStringLiteral("lpstat"), {QStringLiteral("-d")});
    return status.waitForFinished() && status.exitCode() == 0 && status.readAllStandardOutput().contains(": ");
}

} // namespace

void makeWorkbook(const QString& templateFile, const Block& block, const QString& fileName)
{
    if (!QFileInfo(templateFile).isFile())
        throw values::RuntimeError(values::Fault::FileNotFound);
    onSuite([&](Bridge& bridge, const QString& folder) {
        const QString made = folder + QStringLiteral("/workbook.xls");
        if (!bridge.fill(templateFile, block, made))
            throw accessError(templateFile, QStringLiteral("could not be opened. It may be damaged."));
        replaceWith(made, fileName);
    });
}

bool showAndPrintWorkbook(const QString& fileName)
{
    const bool print = hasPrinter();
    onSuite([&](Bridge& bridge, const QString&) {
        if (!bridge.show(fileName, print))
            throw accessError(fileName, QStringLiteral("could not be opened."));
    });
    return print;
}

} // namespace office
