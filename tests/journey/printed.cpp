#include "printed.h"

#include "support/files.h"

#include <QDir>
#include <QProcess>

constexpr int timeoutMilliseconds = 30'000;

QString readOutput(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

QString takePrinted(const QString& pictureFile)
{
    QDir printed(qEnvironmentVariable("PRINTED"), "*.pdf");
    const auto isWhole = [&] {
        printed.refresh();
        return printed.count() > 0 && readOutput("lpstat", {"-W", "not-completed"}).isEmpty();
    };
    if (!QTest::qWaitFor(isWhole, timeoutMilliseconds))
        return "nothing was printed";
    const QString file = printed.entryInfoList().first().filePath();
    readOutput("pdftoppm", {"-png", "-singlefile", "-r", "80", file, pictureFile});
    const QString text = readOutput("pdftotext", {"-layout", file, "-"});
    QFile::remove(file);
    return text;
}

int countLastPages()
{
    const QByteArray log = readFile(qEnvironmentVariable("PRINTED") + "/../page.log");
    return log.trimmed().split('\n').last().split(' ').value(1).toInt();
}

QString commandOtherWindow(const QString& title, const QStringList& command)
{
    return readOutput("xdotool", QStringList{"search", "--onlyvisible", "--name", u'^' + title} + command);
}

bool waitForOtherWindow(const QString& title)
{
    return QTest::qWaitFor([&] { return !commandOtherWindow(title, {}).isEmpty(); }, timeoutMilliseconds);
}

bool closeOtherWindow(const QString& title)
{
    readOutput("wmctrl", {"-c", title});
    return QTest::qWaitFor([&] { return commandOtherWindow(title, {}).isEmpty(); }, timeoutMilliseconds);
}
