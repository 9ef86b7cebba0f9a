// The program ends with a job open, in each way that there is, and the job is taken up in the next run.
#include "journey.h"
#include "printed.h"
#include "program.h"

#include "store/connection.h"
#include "store/connectionStrings.h"
#include "store/faults.h"
#include "store/openJobs.h"
#include "support/files.h"
#include "workspace/panelContent.h"

using namespace Qt::StringLiterals;

namespace {

void pressInOrder(const QString& keys)
{
    for (const QString& key : keys.split(u' ')) {
        QTest::qWait(key == "wait" ? 3000 : 150);
        if (key != "wait")
            QCOMPARE(QProcess::execute("xdotool", {"key", key}), 0);
    }
    QTest::qWait(150);
}

} // namespace

class LeftJobTour : public Journey {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        storeClient();
        storeJob("A-114");
        m_folder.run("insert into template(tempref,temppath)values('X','\\T\\lost.txt')");
        QVERIFY(QFile::copy(PENWRIGHT, m_folder.path() + "/penwright"));
    }

    void losesNothingWhenTheProgramEnds_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<int>("signal");
        QTest::addColumn<int>("exitCode");
        QTest::newRow("close box") << "alt+F4" << 0 << 0;
        QTest::newRow("SIGTERM") << "" << SIGTERM << 0;
        QTest::newRow("end of the terminal") << "" << SIGHUP << 0;
        QTest::newRow("dialog open") << "alt+c" << SIGTERM << 0;
        QTest::newRow("typing error") << "x Tab wait Return" << 0 << 1;
        QTest::newRow("template is missing") << "alt+k x Return wait Return" << 0 << 1;
        QTest::newRow("locked data file") << "lock alt+s wait Return" << 0 << 1;
    }
    void losesNothingWhenTheProgramEnds()
    {
        QFETCH(QString, keys);
        QFETCH(int, signal);
        QFETCH(int, exitCode);
        QFile::remove(m_folder.path() + "/data/open.mdb");
        Program program({m_folder.path() + "/penwright"});
        QTRY_COMPARE(readOutput("xdotool", {"getactivewindow", "getwindowpid"}), QString::number(program.processId()));
        pressInOrder("F7 Down Return alt+a alt+c 5 2 1");
        QTest::qWait(2500);
        std::optional<store::Connection> lock;
        if (keys.startsWith("lock")) {
            lock.emplace(modMain::DBConnString);
            lock->runNative("BEGIN EXCLUSIVE");
        }
        if (!keys.isEmpty())
            pressInOrder(keys.remove("lock "));
        if (signal != 0)
            program.sendSignal(signal);
        QTRY_VERIFY(program.hasEnded());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), exitCode);
        const std::vector<store::OpenJob> left = store::readOpenJobs();
        QCOMPARE(left.size(), 1u);
        const auto content = workspace::readPanelContent(left[0].content);
        QVERIFY(content->timer.seconds() >= 2);
        QCOMPARE(content->characters, keys.startsWith("x") ? "521x" : "521");
    }

    void isTakenUp()
    {
        QVERIFY(start(m_folder.path()));
        QVERIFY(play([this] {
            press("F7");
            waitForText("cmdOpenLeft_0", "Open it");
            takePicture("left-job-line");
            click("cmdOpenLeft_0");
            waitForText("lblJob_10", "A-114");
            takePicture("left-job-offer");
            const QString offer = text("cmdTakeUp_0");
            click("cmdTakeUp_0");
            waitForText("txtChar", "521");
            takePicture("left-job-taken-up");
            press("alt+a");
            waitForText("cmdStart", "Pause");
        }));
        {
            const NoPrivileges readOnly;
            QVERIFY(play([this] {
                press("alt+c 4");
                waitFor("the line", [] { return control("lblNotKept") != nullptr; });
            }));
        }
        QVERIFY(play([this] {
            takePicture("left-job-not-kept");
            press("alt+s");
        }));
        QTRY_COMPARE(m_folder.rows("select jobchar from jobs"), QStringList("4"));
    }
};

JOURNEY_MAIN(LeftJobTour)
#include "tst_leftJob.moc"
