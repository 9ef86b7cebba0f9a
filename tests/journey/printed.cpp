#include "printed.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QThread>

namespace {

QString output(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
}

template <typename Condition>
bool waitFor(Condition condition)
{
    QElapsedTimer timer;
    for (timer.start(); timer.elapsed() < 30'000; QThread::msleep(50)) {
        if (condition())
            return true;
    }
    return false;
}

} // namespace

QString takePrinted(const QString& pictureFile)
{
    QDir printed(qEnvironmentVariable("PRINTED"), "*.pdf");
    const auto isWhole = [&] {
        printed.refresh();
        return printed.count() > 0 && output("lpstat", {"-W", "not-completed"}).isEmpty();
    };
    if (!waitFor(isWhole))
        return "nothing was printed";
    const QString file = printed.entryInfoList().first().filePath();
    output("pdftoppm", {"-png", "-singlefile", "-r", "80", file, pictureFile});
    const QString text = output("pdftotext", {"-layout", file, "-"});
    QFile::remove(file);
    return text;
}

int lastPages()
{
    QFile log(qEnvironmentVariable("PRINTED") + "/../page.log");
    if (!log.open(QIODevice::ReadOnly))
        return 0;
    return log.readAll().trimmed().split('\n').last().split(' ').value(1).toInt();
}

static QString onWindow(const QString& title, const QStringList& command)
{
    return output("xdotool", QStringList{"search", "--onlyvisible", "--name", u'^' + title} + command);
}

bool waitForOtherWindow(const QString& title)
{
    return waitFor([&] { return !onWindow(title, {}).isEmpty(); });
}

bool closeOtherWindow(const QString& title)
{
    onWindow(title, {"windowactivate", "--sync", "key", "alt+F4"});
    return waitFor([&] { return onWindow(title, {}).isEmpty(); });
}
