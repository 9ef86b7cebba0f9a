// A program that is killed at any moment of a timed, edited job loses ten seconds of the clock at most.
#include "leftBench.h"

#include "store/openJobs.h"
#include "workspace/panelContent.h"

#include <QApplication>
#include <QProcess>
#include <QRandomGenerator>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// The characters, the reference and the seconds on the clock.
struct Progress {
    int characters = 0;
    QString reference;
    int seconds = 0;

    bool operator==(const Progress&) const = default;
};

Progress readProgress(const QByteArray& line)
{
    const QList<QByteArray> parts = line.split('|');
    return {parts[0].toInt(), QString::fromUtf8(parts[1]), parts[2].toInt()};
}

Progress keptProgress()
{
    const auto content = workspace::readPanelContent(store::readOpenJobs().at(0).content);
    const workspace::JobTimer& timer = content->timer;
    return {content->characters.toInt(), content->captions[workspace::jobValue::Reference],
            timer.hours() * 3600 + timer.minutes() * 60 + timer.seconds()};
}

/// Works on the first job until it is killed, and goes on where it was killed before. Tells of each step that it did.
[[noreturn]] void workUntilKilled(const QString& programFolder)
{
    LeftBench bench;
    modMain::setConnectionStrings(programFolder);
    bench.start();
    const auto tell = [&bench] {
        int seconds = 0;
        for (const char* counter : {"lblHr", "lblMin", "lblSec"})
            seconds = seconds * 60 + textOf(*bench.form, counter).toInt();
        std::printf("%s|%s|%d\n", qPrintable(textOf(*bench.form, "txtChar")),
                    qPrintable(textOf(*bench.form, "lblJob_10")), seconds);
        std::fflush(stdout);
    };
    bench.open(0);
    if (!bench.offers().isEmpty())
        bench.press("cmdTakeUp_0");
    tell();
    auto& characters = find<QWidget>(*bench.form, "txtChar");
    characters.setFocus();
    bench.press("cmdStart");
    for (int step = textOf(*bench.form, "txtChar").toInt() + 1;; ++step) {
        QTest::keyClick(&characters, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&characters, static_cast<Qt::Key>(Qt::Key_0 + step % 10));
        tell();
        if (step % 4 == 0)
            bench.correctReference(u"A-%1"_s.arg(step));
        for (int second = 0; second < 13; ++second) {
            tick(*bench.form, 1);
            tell();
        }
    }
}

} // namespace

class TestKilledJobs : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // MOMENTS=300 looks at more moments.
    void losesTenSecondsAtMostWhenKilled()
    {
        const int moments = std::max(qEnvironmentVariableIntValue("MOMENTS"), 10);
        Bench bench;
        Progress kept{6500, u"R"_s, 0};
        for (int moment = 0; moment < moments; ++moment) {
            QProcess worker;
            worker.setStandardErrorFile(QProcess::nullDevice());
            worker.start("env", {"TMPDIR=" + bench.folder.path(), "QT_QPA_PLATFORM=offscreen",
                                 QCoreApplication::applicationFilePath(), "--work", bench.folder.path()});
            QVERIFY(worker.waitForReadyRead());
            QTest::qSleep(QRandomGenerator::global()->bounded(400));
            worker.kill();
            QVERIFY(worker.waitForFinished());
            QCOMPARE(worker.exitStatus(), QProcess::CrashExit);
            QList<QByteArray> steps = worker.readAllStandardOutput().split('\n');
            steps.removeLast();
            QVERIFY(readProgress(steps.first()) == kept);
            const Progress last = readProgress(steps.last());
            kept = keptProgress();
            const QString told = QString::fromUtf8(steps.last()) +
                                 u" but kept %1|%2|%3"_s.arg(kept.characters).arg(kept.reference).arg(kept.seconds);
            QVERIFY2(kept.characters == last.characters || kept.characters == (last.characters + 1) % 10,
                     qPrintable(told));
            QVERIFY2(kept.reference == last.reference || last.characters % 2 == 0, qPrintable(told));
            QVERIFY2(kept.seconds > last.seconds - 10 && kept.seconds <= last.seconds + 1, qPrintable(told));
            QCOMPARE(store::readOpenJobs().size(), 1u);
        }
    }
};

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == "--work")
        workUntilKilled(QString::fromLocal8Bit(argv[2]));
    TestKilledJobs test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_killedJobs.moc"
