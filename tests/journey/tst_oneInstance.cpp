// The real program is started again in a folder in which one is open.
#include "printed.h"
#include "program.h"

#include "app/oneInstance.h"
#include "support/scratchFolder.h"

#include <QDateTime>
#include <QDir>
#include <QTest>

#include <unistd.h>

namespace {

QString windowOf(const Program& program, const QString& title)
{
    return QString::number(program.processId()) + '\n' + title;
}

/// The process and the title of the window that has the focus.
QString activeWindow()
{
    return readOutput("xdotool", {"getactivewindow", "getwindowpid", "getwindowname"}).trimmed();
}

void actOnDisplay(const QString& action)
{
    QTest::qWait(100);
    QCOMPARE(QProcess::execute("xdotool", action.split(u' ')), 0);
    QTest::qWait(200);
}

} // namespace

class TestOneInstance : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        for (const QString& folder : {m_folder.path(), m_otherFolder.path()}) {
            QFile::copy(PENWRIGHT, folder + "/penwright");
            // For another user, too.
            QFile::setPermissions(folder, QFile::Permissions(0x7755));
        }
        QFile::link(m_folder.path(), m_otherFolder.path() + "/link");
    }

    void bringsTheFirstToTheFront_data()
    {
        QTest::addColumn<QStringList>("actions");
        QTest::addColumn<QString>("title");
        QTest::newRow("main window") << QStringList() << "Penwright";
        QTest::newRow("minimised") << QStringList{"getactivewindow windowminimize"} << "Penwright";
        QTest::newRow("dialog") << QStringList{"key F2"} << "Call Template";
        QTest::newRow("minimised dialog") << QStringList{"key F2", "getactivewindow windowminimize"} << "Call Template";
    }
    void bringsTheFirstToTheFront()
    {
        QFETCH(QStringList, actions);
        QFETCH(QString, title);
        const QDateTime changed = QFileInfo(m_folder.path()).lastModified();
        Program first({m_program});
        QTRY_COMPARE(activeWindow(), windowOf(first, "Penwright"));
        for (const QString& action : actions)
            actOnDisplay(action);
        for (const QString& way : {m_program, m_otherFolder.path() + "/link/penwright"}) {
            Program other({m_otherFolder.path() + "/penwright"});
            QTRY_COMPARE(activeWindow(), windowOf(other, "Penwright"));
            actOnDisplay("key F10");
            QVERIFY(Program({way}).endsWell());
            QTRY_COMPARE(activeWindow(), windowOf(first, title));
        }
        QCOMPARE(QFileInfo(m_folder.path()).lastModified(), changed);
    }

    void opensOnceWhenStartedTwiceAtOnce()
    {
        for (int i = 0; i < 20; ++i) {
            Program one({m_program});
            Program two({m_program});
            QTRY_VERIFY(one.hasEnded() != two.hasEnded());
            QVERIFY((one.hasEnded() ? one : two).endsWell());
            const Program& first = one.hasEnded() ? two : one;
            QTRY_COMPARE(activeWindow(), windowOf(first, "Penwright"));
        }
    }

    void saysWhyItDoesNotOpen_data()
    {
        QTest::addColumn<QStringList>("starter");
        QTest::addColumn<QString>("reason");
        QTest::newRow("stopped") << QStringList() << "but does not answer";
        const QStringList asOther = geteuid() == 0 ? QStringList{"setpriv", "--reuid=nobody", "--clear-groups"}
                                                   : QStringList{"sudo", "-n", "-u", "nobody"};
        QTest::newRow("another user's") << asOther + QStringList{"env", "DISPLAY=" + qEnvironmentVariable("DISPLAY")}
                                        << "started by nobody.";
    }
    void saysWhyItDoesNotOpen()
    {
        QFETCH(QStringList, starter);
        QFETCH(QString, reason);
        Program first(starter + QStringList{m_program});
        QTRY_VERIFY(activeWindow().endsWith("\nPenwright"));
        if (starter.isEmpty())
            first.sendSignal(SIGSTOP);
        else
            actOnDisplay("getactivewindow windowminimize");
        const QString told = app::OneInstance(m_folder.path()).refusal();
        QVERIFY2(told.contains(reason), qPrintable(told));
        Program second({m_program});
        QTRY_COMPARE(activeWindow(), windowOf(second, "Penwright"));
        actOnDisplay("key Return");
        QVERIFY(second.endsWell());
        QTest::qWait(300);
        QVERIFY(starter.isEmpty() || activeWindow().isEmpty());
    }

private:
    ScratchFolder m_folder;
    ScratchFolder m_otherFolder;
    const QString m_program = m_folder.path() + "/penwright";
};

QTEST_GUILESS_MAIN(TestOneInstance)
#include "tst_oneInstance.moc"
