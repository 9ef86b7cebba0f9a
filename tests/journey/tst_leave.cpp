// The real program is asked to end, or killed, while it fetches a template: nothing of its suite is left behind.
#include "printed.h"
#include "program.h"

#include "support/files.h"
#include "support/scratchFolder.h"

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

bool isShown(qint64 process, const QString& title)
{
    const QStringList search{"search", "--onlyvisible", "--all", "--pid", QString::number(process), "--name", title};
    return !readOutput("xdotool", search).isEmpty();
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
        // The number of moments tried during a call; the first call takes about a second.
        const int moments = std::max(qEnvironmentVariableIntValue("MOMENTS"), 1);
        for (const auto& [name, signal] :
             {std::pair("SIGTERM", SIGTERM), {"SIGINT", SIGINT}, {"SIGHUP", SIGHUP}, {"SIGKILL", SIGKILL}}) {
            for (int moment = 0; moment < moments; ++moment) {
                const int delay = 100 + 1100 * moment / moments + 50 * signal;
                QTest::addRow("%s after %d ms", name, delay) << signal << delay << false;
            }
        }
        QTest::newRow("SIGTERM while the box waits") << SIGTERM << 1500 << true;
        QTest::newRow("SIGKILL while the box waits") << SIGKILL << 1500 << true;
    }
    void leavesNothingBehindDuringACall()
    {
        QFETCH(int, signal);
        QFETCH(int, delay);
        QFETCH(bool, isHanging);
        ScratchFolder folder;
        const QString temporary = folder.path() + "/tmp";
        const QString executable = folder.path() + "/penwright";
        QVERIFY(QFile::copy(PENWRIGHT, executable) &&
                QFile::copy(PENWRIGHT_OFFICE, folder.path() + "/penwright-office.so") && QDir().mkpath(temporary) &&
                QDir(folder.path()).mkpath("templates/T"));
        writeFile(folder.path() + "/templates/T/a.txt", "text");
        folder.run("insert into template(tempref,temppath)values('CXR','\\T\\a.txt')");
        Program program({"env", "TMPDIR=" + temporary, executable});
        for (const auto& [window, keys] : {std::pair("^Penwright$", "F2"), {"^Call Template$", "c x r Return"}}) {
            // A search fails while any window vanishes, so it is enough to find this one once.
            QVERIFY(QTest::qWaitFor([&, title = window] { return isShown(program.processId(), title); }, 20'000));
            QTest::qWait(100);
            readOutput("xdotool", QStringList("key") + QString(keys).split(' '));
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
        const auto folders = [&] { return QDir(temporary).entryList({"penwright-office-*"}, QDir::Dirs); };
        if (!isKilled)
            QCOMPARE(folders(), QStringList());
        QTRY_COMPARE_WITH_TIMEOUT(suitesBelow(temporary).values() + folders(), QStringList(), isKilled ? 10'000 : 1000);
    }
};

QTEST_GUILESS_MAIN(TestLeave)
#include "tst_leave.moc"
