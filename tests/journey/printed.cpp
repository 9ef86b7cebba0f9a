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
    QDir printed(qEnvironmentVariable("PRINTED"), QStringLiteral("*.pdf"));
    const auto isWhole = [&] {
        printed.refresh();
        return printed.count() > 0 &&
               output(QStringLiteral("lpstat"), {QStringLiteral("-W"), QStringLiteral("not-completed")}).isEmpty();
    };
    if (!waitFor(isWhole))
        return QStringLiteral("nothing was printed");
    const QString file = printed.entryInfoList().first().filePath();
    output(QStringLiteral("pdftoppm"), {QStringLiteral("-png"), QStringLiteral("-singlefile"), QStringLiteral("-r"),
                                        QStringLiteral("80"), file, pictureFile});
    const QString text = output(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), file, QStringLiteral("-")});
    QFile::remove(file);
    return text;
}

int lastPages()
{
    QFile log(qEnvironmentVariable("PRINTED") + QStringLiteral("/../page.log"));
    if (!log.open(QIODevice::ReadOnly))
        return 0;
    return log.readAll().trimmed().split('\n').last().split(' ').value(1).toInt();
}

static QString onWindow(const QString& title, const QStringList& command)
{
    return output(QStringLiteral("xdotool"), QStringList{QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                                         QStringLiteral("--name"), u'^' + title} +
                                                 command);
}

bool waitForOtherWindow(const QString& title)
{
    return waitFor([&] { return !onWindow(title, {}).isEmpty(); });
}

bool closeOtherWindow(const QString& title)
{
    onWindow(title, {QStringLiteral("windowactivate"), QStringLiteral("--sync"), QStringLiteral("key"),
                     QStringLiteral("alt+F4")});
    return waitFor([&] { return onWindow(title, {}).isEmpty(); });
}
