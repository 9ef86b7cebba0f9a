// The real program is told to end, or killed, while it calls a template: nothing of its suite stays behind.
#include "support/files.h"
#include "support/scratchFolder.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QProcess>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

/// The processes of a suite that works below this folder.
QStringList suitesBelow(const QString& folder)
{
    QStringList found;
    for (QDirIterator it(u"/proc"_s, QDir::Dirs); it.hasNext();) {
        const QByteArray command = contentOf(it.next() + u"/cmdline"_s);
        if (command.contains((folder + u"/penwright-office-"_s).toUtf8()))
            found << QString::fromUtf8(command).replace(QChar(u'\0'), u' ');
    }
    return found;
}

/// The suite itself does not answer any more.
void hang(const QString& folder)
{
    for (QDirIterator it(u"/proc"_s, QDir::Dirs); it.hasNext();) {
        const QString process = it.next();
        const QByteArray command = contentOf(process + u"/cmdline"_s);
        if (command.contains("soffice.bin") && command.contains(folder.toUtf8()) && !command.startsWith("/bin/sh"))
            ::kill(process.section(u'/', -1).toInt(), SIGSTOP);
    }
}

bool isShown(qint64 process, const QString& title)
{
    QProcess search;
    search.start(u"xdotool"_s, {u"search"_s, u"--onlyvisible"_s, u"--all"_s, u"--pid"_s, QString::number(process),
                                u"--name"_s, title});
    return search.waitForFinished() && !search.readAllStandardOutput().isEmpty();
}

void press(const QStringList& arguments)
{
    if (QProcess::execute(u"xdotool"_s, arguments) != 0)
        qFatal("xdotool failed");
}

} // namespace

class TestLeave : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void duringACall_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<int>("delay");
        QTest::addColumn<bool>("hangs");
        // At how many moments of a call, which takes about a second when it is the first.
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
    void duringACall()
    {
        QFETCH(int, signal);
        QFETCH(int, delay);
        QFETCH(bool, hangs);
        ScratchFolder folder;
        const QString temporary = folder.path() + u"/tmp"_s;
        QVERIFY(QFile::copy(QStringLiteral(PENWRIGHT), folder.path() + u"/penwright"_s) &&
                QFile::copy(QStringLiteral(PENWRIGHT_OFFICE), folder.path() + u"/penwright-office.so"_s) &&
                QDir(folder.path()).mkpath(u"tmp"_s) && QDir(folder.path()).mkpath(u"templates/T"_s));
        writeFile(folder.path() + u"/templates/T/a.txt"_s, "text");
        folder.run(u"insert into template(tempref,temppath)values('CXR','\\T\\a.txt')"_s);
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"TMPDIR"_s, temporary);
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        // However this test was started.
        program.setChildProcessModifier([] {
            for (const int each : {SIGINT, SIGHUP})
                ::signal(each, SIG_DFL);
        });
        program.start(folder.path() + u"/penwright"_s, QStringList());
        QTRY_VERIFY_WITH_TIMEOUT(isShown(program.processId(), u"^Penwright$"_s), 20'000);
        QTest::qWait(100);
        press({u"key"_s, u"F2"_s});
        QTRY_VERIFY_WITH_TIMEOUT(isShown(program.processId(), u"^Call Template$"_s), 20'000);
        QTest::qWait(100);
        press({u"type"_s, u"CXR"_s});
        press({u"key"_s, u"Return"_s});
        if (hangs) {
            QTest::qWait(400);
            hang(temporary);
        }
        QTest::qWait(delay);
        QElapsedTimer since;
        since.start();
        QCOMPARE(::kill(static_cast<pid_t>(program.processId()), signal), 0);
        // Once more while the first is handled; it may be too late.
        ::kill(static_cast<pid_t>(program.processId()), signal);
        QVERIFY(program.waitForFinished());
        const bool isKilled = signal == SIGKILL;
        QVERIFY2(since.elapsed() < 4000, qPrintable(QString::number(since.elapsed())));
        QCOMPARE(program.exitStatus(), isKilled ? QProcess::CrashExit : QProcess::NormalExit);
        QCOMPARE(program.exitCode(), isKilled ? SIGKILL : 0);
        const auto folders = [&] { return QDir(temporary).entryList({u"penwright-office-*"_s}, QDir::Dirs); };
        if (!isKilled)
            QCOMPARE(folders(), QStringList());
        QTRY_COMPARE_WITH_TIMEOUT(suitesBelow(temporary) + folders(), QStringList(), isKilled ? 10'000 : 1000);
    }
};

QTEST_GUILESS_MAIN(TestLeave)
#include "tst_leave.moc"
