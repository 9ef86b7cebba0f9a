// The real program is asked to end, or killed, while its suite works: nothing of either is left behind.
#include "printed.h"
#include "program.h"

#include "support/files.h"
#include "support/scratchFolder.h"
#include "values/clock.h"
#include "values/dates.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QTest>

namespace {

/// The processes of a suite that works below this folder, by their numbers.
QMap<int, QString> suitesBelow(const QString& folder)
{
    QMap<int, QString> found;
    for (QDirIterator it("/proc", QDir::Dirs); it.hasNext();) {
        const QString process = it.next();
        const QByteArray command = readFile(process + "/cmdline");
        if (command.contains((folder + "/penwright-office-").toUtf8()))
            found[process.section('/', -1).toInt()] = QString::fromUtf8(command).replace(QChar(u'\0'), u' ');
    }
    return found;
}

/// Makes the suites of this folder hang.
void hangSuites(const QString& folder)
{
    for (const auto& [process, command] : suitesBelow(folder).asKeyValueRange()) {
        if (command.contains("soffice.bin") && !command.startsWith("/bin/sh"))
            ::kill(process, SIGSTOP);
    }
}

/// The pipes of suites that have ended.
QStringList deadPipes()
{
    const QByteArray inUse = readFile("/proc/net/unix");
    QStringList pipes = QDir("/tmp").entryList({"OSL_PIPE_*"}, QDir::System);
    pipes.removeIf([&](const QString& pipe) { return inUse.contains(pipe.toUtf8()); });
    return pipes;
}

bool isActive(qint64 process, const QString& title)
{
    return readOutput("xdotool", {"getactivewindow", "getwindowpid", "getwindowname"}) ==
           QString("%1\n%2").arg(process).arg(title);
}

/// What to press, each time in the window of that title.
using Steps = QList<std::pair<QString, QString>>;
const Steps fetchTemplate{{"Penwright", "F2"}, {"Call Template", "c x r Return"}};
const Steps openReport{{"Penwright", "F4"}, {"Report Manager", "alt+e Tab Down alt+r"}, {"Penwright", "Return"}};

/// Makes it a program folder with a template and a job of today.
void fill(const ScratchFolder& folder)
{
    const QString path = folder.path();
    QVERIFY(QDir(path).mkpath("tmp") && QDir(path).mkpath("templates/T") &&
            QFile::copy(PENWRIGHT, path + "/penwright") &&
            QFile::copy(PENWRIGHT_OFFICE, path + "/penwright-office.so") &&
            QFile::copy(STAGED_TEMPLATES "/Report.xls", path + "/templates/Report.xls"));
    writeFile(path + "/templates/T/a.txt", "text");
    folder.run("insert into template(tempref,temppath)values('CXR','\\T\\a.txt')");
    folder.run("insert into jobacct(acctname)values('Anna')");
    folder.run("insert into accttype(acctid,accttype,acctrate)values(1,'Notes',1)");
    folder.run("insert into jobs(jobdate,jobacctid,jobtypeid)values(#" +
               values::dateText(values::dateTime(values::today())) + "#,1,1)");
}

} // namespace

class TestLeave : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void leavesNothingBehindDuringACall_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<int>("delay");
        QTest::addColumn<bool>("isHanging");
        QTest::addColumn<Steps>("steps");
        // The number of moments tried during a call; the first call takes about a second.
        const int moments = std::max(qEnvironmentVariableIntValue("MOMENTS"), 1);
        for (const auto& [name, signal] :
             {std::pair("SIGTERM", SIGTERM), {"SIGINT", SIGINT}, {"SIGHUP", SIGHUP}, {"SIGKILL", SIGKILL}}) {
            for (int moment = 0; moment < moments; ++moment) {
                const int delay = 100 + 1100 * moment / moments + 50 * signal;
                QTest::addRow("%s after %d ms", name, delay) << signal << delay << false << fetchTemplate;
            }
        }
        QTest::newRow("SIGTERM while the box waits") << SIGTERM << 1500 << true << fetchTemplate;
        QTest::newRow("SIGKILL while the box waits") << SIGKILL << 1500 << true << fetchTemplate;
        QTest::newRow("SIGTERM in a report") << SIGTERM << 20 << false << openReport;
    }
    void leavesNothingBehindDuringACall()
    {
        QFETCH(int, signal);
        QFETCH(int, delay);
        QFETCH(bool, isHanging);
        QFETCH(Steps, steps);
        ScratchFolder folder;
        const QString temporary = folder.path() + "/tmp";
        const QStringList pipesBefore = deadPipes();
        fill(folder);
        Program program(
            {"env", "TMPDIR=" + temporary, "XDG_RUNTIME_DIR=" + folder.path(), folder.path() + "/penwright"});
        for (const auto& [window, keys] : steps) {
            QTRY_VERIFY_WITH_TIMEOUT(isActive(program.processId(), window), 20'000);
            QTest::qWait(100);
            readOutput("xdotool", QStringList("key") + keys.split(' '));
        }
        if (isHanging) {
            QTest::qWait(400);
            hangSuites(temporary);
        }
        QTest::qWait(delay);
        QElapsedTimer since;
        since.start();
        QCOMPARE(program.sendSignal(signal), 0);
        // Once more while the first is handled; the program may have ended already.
        program.sendSignal(signal);
        QVERIFY(program.waitForFinished());
        const bool isKilled = signal == SIGKILL;
        QVERIFY2(since.elapsed() < 4000, qPrintable(QString::number(since.elapsed())));
        QCOMPARE(program.exitStatus(), isKilled ? QProcess::CrashExit : QProcess::NormalExit);
        QCOMPARE(program.exitCode(), isKilled ? SIGKILL : 0);
        const auto files = [&] { return QDir(temporary).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); };
        if (!isKilled)
            QCOMPARE(files(), QStringList());
        QTRY_COMPARE_WITH_TIMEOUT(suitesBelow(temporary).values() + files(), QStringList(), isKilled ? 10'000 : 1000);
        QTRY_COMPARE(deadPipes(), pipesBefore);
    }
};

QTEST_GUILESS_MAIN(TestLeave)
#include "tst_leave.moc"
