#include "values/clock.h"
#include "values/dates.h"
#include "workspace/jobTimer.h"

#include <QTest>

using namespace Qt::StringLiterals;
using workspace::JobTimer;

static void tick(JobTimer& timer, int seconds)
{
    for (int i = 0; i < seconds; ++i)
        timer.tick();
}

class TestJobTimer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void countsOnlyWhileRunning()
    {
        JobTimer timer;
        timer.stop();
        tick(timer, 2);
        QVERIFY(!timer.wasUsed());
        timer.start();
        tick(timer, 3);
        timer.start();
        tick(timer, 5);
        timer.stop();
        QCOMPARE(timer.lengthText(), u"0:3"_s);
        timer.start();
        tick(timer, 1);
        timer.stop();
        tick(timer, 5);
        QCOMPARE(timer.lengthText(), u"0:4"_s);
    }

    void resetZeroesAndKeepsTheStart()
    {
        const QDateTime start = values::dateTime(QDate(2004, 8, 18), QTime(9, 30));
        values::setClock([start] { return start; });
        JobTimer timer;
        timer.start();
        tick(timer, 4000);
        timer.reset();
        tick(timer, 1);
        QCOMPARE(timer.lengthText(), u"0:0"_s);
        values::setClock({});
        timer.start();
        QCOMPARE(timer.startTime(), start);
    }

    void lengths()
    {
        const std::pair<int, QString> lengths[] = {{59, u"0:59"_s},    {60, u"1:0"_s},      {729, u"12:9"_s},
                                                   {3599, u"59:59"_s}, {3600, u"1:0:0"_s},  {3907, u"1:5:7"_s},
                                                   {7200, u"2:0:0"_s}, {90001, u"25:0:1"_s}};
        for (const auto& [seconds, text] : lengths) {
            JobTimer timer;
            timer.start();
            tick(timer, seconds);
            QCOMPARE(timer.lengthText(), text);
        }
    }
};

QTEST_APPLESS_MAIN(TestJobTimer)
#include "tst_jobTimer.moc"
