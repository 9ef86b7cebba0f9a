#include "values/clock.h"
#include "values/dates.h"
#include "workspace/jobStatements.h"
#include "workspace/listStatements.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace workspace;
using enum values::Range;

Q_DECLARE_METATYPE(JobFilter)

static const QString allJobs =
    u"select jobs.id,jobs.jobdate,jobs.jobacctid,jobs.jobtypeid,jobs.jobreference,jobs.jobstart,"
    "jobs.joblength,jobs.jobuploaded,jobs.joblines,jobs.joblines * accttype.acctrate "
    "from jobs,accttype where jobs.jobtypeid=accttype.id"_s;
static const QString inOrder = u" order by jobs.ID asc"_s;

class TestStatements : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { values::setClock({}); }

    void jobsOfADay()
    {
        QCOMPARE(selectJobsOf(values::dateTime(QDate(2004, 8, 20))), allJobs + u" AND jobdate=#8/20/2004#"_s + inOrder);
    }

    void jobsByFilter_data()
    {
        QTest::addColumn<QDate>("today");
        QTest::addColumn<JobFilter>("filter");
        QTest::addColumn<QString>("conditions");
        const auto row = [](const char* name, QDate today, std::optional<values::Range> range,
                            std::optional<qint32> client, std::optional<qint32> type, const char* conditions) {
            const JobFilter filter{range, {2004, 9, 30}, {2004, 9, 1}, {2004, 12, 5}, client, type};
            QTest::newRow(name) << today << filter << QString::fromLatin1(conditions);
        };
        const QDate day(2004, 8, 18);
        row("no condition", day, {}, {}, {}, "");
        row("from later than to", day, FromTo, {}, {}, " AND jobdate Between #9/30/2004# and #9/1/2004#");
        row("other day", day, Other, {}, {}, " AND jobdate=#12/5/2004#");
        row("type only", day, {}, {}, 7, " AND jobtypeid=7");
        row("all, in order", day, Today, 3, 7, " AND jobdate=#8/18/2004# AND jobacctid=3 AND jobtypeid=7");
        row("Sunday", {2004, 8, 15}, ThisWeek, {}, {}, " AND jobdate Between #8/15/2004# and #8/21/2004#");
        row("Saturday", {2004, 8, 21}, ThisWeek, {}, {}, " AND jobdate Between #8/15/2004# and #8/21/2004#");
        row("new year", {2004, 12, 31}, ThisWeek, {}, {}, " AND jobdate Between #12/26/2004# and #1/1/2005#");
        row("leap year", {2004, 2, 29}, ThisMonth, {}, {}, " AND jobdate Between #2/1/2004# and #2/28/2004#");
        row("December", {2004, 12, 1}, ThisMonth, {}, {}, " AND jobdate Between #12/1/2004# and #12/31/2004#");
    }

    void jobsByFilter()
    {
        QFETCH(QDate, today);
        QFETCH(JobFilter, filter);
        QFETCH(QString, conditions);
        values::setClock([today] { return values::dateTime(today, QTime(23, 59)); });
        QCOMPARE(selectJobs(filter), allJobs + conditions + inOrder);
    }

    void savesJob_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("assignment");
        QTest::newRow("start") << u"8/20/2004 14:05"_s << u"jobstart=#8/20/2004 14:05#,"_s;
        QTest::newRow("no start") << QString() << QString();
        QTest::newRow("no such day") << u"2/30/2004 14:05"_s << QString();
    }

    void savesJob()
    {
        QFETCH(QString, start);
        QFETCH(QString, assignment);
        const JobEntry job{42, u"8/20/2004"_s, 3, 7, u"A-114"_s, start, u"5210"_s, u"80"_s, u"1:5:7"_s, u"."_s};
        QCOMPARE(updateJob(job),
                 u"UPDATE jobs set jobdate=#8/20/2004#,jobacctid=3,jobtypeid=7,jobreference='A-114',"_s + assignment +
                     u"jobchar=5210,joblines=80,joblength='1:5:7',jobuploaded='.' where id=42"_s);
    }
};

QTEST_APPLESS_MAIN(TestStatements)
#include "tst_statements.moc"
