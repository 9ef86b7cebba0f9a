#include "faultOf.h"
#include "values/clock.h"
#include "values/dates.h"
#include "values/period.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace values;

class TestDates : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void readsDates_data();
    void readsDates();
    void readsTimes_data();
    void readsTimes();
    void readsDateAndTime_data();
    void readsDateAndTime();
    void rejects_data();
    void rejects();
    void missingYearFollowsTheCalendar();
    void showsDates_data();
    void showsDates();
    void invalidDateHasNoText();
    void clockIsTheWallClock();
    void clockCanBeReplaced();
    void weeks_data();
    void weeks();
    void months_data();
    void months();
    void findLast_data();
    void findLast();
};

void TestDates::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::German));
}

void TestDates::init()
{
    setClock([] { return dateTime(QDate(2004, 10, 20), QTime(9, 30)); });
}

void TestDates::cleanup()
{
    setClock({});
}

void TestDates::readsDates_data()
{
    QTest::addColumn<QDate>("expected");
    const auto row = [](const char* text, int year, int month, int day) {
        QTest::newRow(text) << QDate(year, month, day);
    };
    for (const char* text : {"8/16/2004", "8-16-04",     "08/16/04",    "16 Aug 2004",     "16-Aug-2004",
                             "16-aug-04", "Aug 16 2004", "Aug-16-2004", "August 16, 2004", "AUGUST 16 ,2004",
                             "8/16",      "8-16",        "Aug 16",      "16 August",       "2004-08-16",
                             "2004/8/16", "16/8/2004",   "16/8",        "  8/16/2004\t",   "8 / 16 / 2004"})
        row(text, 2004, 8, 16);
    row("August 2004", 2004, 8, 1);
    row("Sept 3 2004", 2004, 9, 3);
    row("sep 3 2004", 2004, 9, 3);
    row("May 3 2004", 2004, 5, 3);
    row("12/13/2004", 2004, 12, 13);
    row("13/5/2004", 2004, 5, 13);
    row("5/4/2004", 2004, 5, 4);
    row("2/29/2004", 2004, 2, 29);
    row("1/1/29", 2029, 1, 1);
    row("1/1/30", 1930, 1, 1);
    row("1/1/99", 1999, 1, 1);
    row("1/1/00", 2000, 1, 1);
    row("1/1/100", 100, 1, 1);
    row("12/31/9999", 9999, 12, 31);
}

void TestDates::readsDates()
{
    QFETCH(QDate, expected);
    QCOMPARE(toDate(QString::fromLatin1(QTest::currentDataTag())), dateTime(expected));
}

void TestDates::readsTimes_data()
{
    QTest::addColumn<QTime>("expected");
    QTest::newRow("14:30") << QTime(14, 30);
    QTest::newRow("14:30:05") << QTime(14, 30, 5);
    QTest::newRow("0:00") << QTime(0, 0);
    QTest::newRow("23:59:59") << QTime(23, 59, 59);
    QTest::newRow("2:30 PM") << QTime(14, 30);
    QTest::newRow("2:30:05 pm") << QTime(14, 30, 5);
    QTest::newRow("2 pm") << QTime(14, 0);
    QTest::newRow("2:30pm") << QTime(14, 30);
    QTest::newRow("2:30 AM") << QTime(2, 30);
    QTest::newRow("12 AM") << QTime(0, 0);
    QTest::newRow("12:00:00 AM") << QTime(0, 0);
    QTest::newRow("12:00 PM") << QTime(12, 0);
    QTest::newRow("12:30 am") << QTime(0, 30);
}

void TestDates::readsTimes()
{
    QFETCH(QTime, expected);
    QCOMPARE(toDate(QString::fromLatin1(QTest::currentDataTag())), dateTime(timeOnlyDay, expected));
}

void TestDates::readsDateAndTime_data()
{
    QTest::addColumn<QTime>("expected");
    for (const char* text :
         {"8/16/2004 14:30", "8/16/2004   2:30 PM", "2004-08-16T14:30:00", "2004-08-16 14:30", "14:30 8/16/2004",
          "2:30 pm August 16, 2004", "August 16, 2004 2:30pm", "16-Aug-2004 14:30:00", "Aug 16 14:30", "14:30 16 Aug"})
        QTest::newRow(text) << QTime(14, 30);
    QTest::newRow("Aug 16 2 pm") << QTime(14, 0);
    QTest::newRow("2 pm 16 Aug 2004") << QTime(14, 0);
    QTest::newRow("8/16/2004 12:00:00 AM") << QTime(0, 0);
}

void TestDates::readsDateAndTime()
{
    QFETCH(QTime, expected);
    QCOMPARE(toDate(QString::fromLatin1(QTest::currentDataTag())), dateTime(QDate(2004, 8, 16), expected));
}

void TestDates::rejects_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"",
                             "   ",
                             "5",
                             "20040816",
                             "Aug",
                             "pm",
                             "T",
                             "T14:30",
                             "8/16/",
                             "/8/16",
                             "8//16",
                             "8/16-2004",
                             "8 16 2004",
                             "8,16,2004",
                             "8.16.2004",
                             "2/29/2003",
                             "2/30/2004",
                             "13/13/2004",
                             "0/5/2004",
                             "2004-13-05",
                             "1/1/99999",
                             "1/1/0099",
                             "1/1/099",
                             "Juni 3 2004",
                             "16. August 2004",
                             "24:00",
                             "14:60",
                             "14:30:60",
                             "13 PM",
                             "0 AM",
                             "14:",
                             "2:30 pm pm",
                             "Aug:16",
                             "8/16/2004T14:30",
                             "2004-08-16T",
                             "on 8/16/04",
                             "8/16/2004 day",
                             "8/16 8/17",
                             "14:30 14:30",
                             "8/16/2004 24:00",
                             "Feb 30",
                             "16Aug2004"})
        QTest::addRow("'%s'", text) << QString::fromLatin1(text);
    QTest::newRow("digits of another script") << u"\u0668/\u0661\u0666/2004"_s;
}

void TestDates::rejects()
{
    QFETCH(QString, text);
    QVERIFY(!isDate(text));
    QCOMPARE(faultOf([&] { toDate(text); }), typeMismatch);
}

void TestDates::missingYearFollowsTheCalendar()
{
    QVERIFY(isDate(u"2/29"_s));
    setClock([] { return dateTime(QDate(2003, 10, 20)); });
    QVERIFY(!isDate(u"2/29"_s));
    QCOMPARE(toDate(u"8/16"_s), dateTime(QDate(2003, 8, 16)));
}

void TestDates::showsDates_data()
{
    QTest::addColumn<QDateTime>("value");
    QTest::newRow("8/20/2004") << dateTime(QDate(2004, 8, 20));
    QTest::newRow("8/20/2004 2:05:07 PM") << dateTime(QDate(2004, 8, 20), QTime(14, 5, 7));
    QTest::newRow("8/2/2004 12:00:00 PM") << dateTime(QDate(2004, 8, 2), QTime(12, 0));
    QTest::newRow("12/20/2004 12:05:00 AM") << dateTime(QDate(2004, 12, 20), QTime(0, 5));
    QTest::newRow("3/28/2004 2:30:00 AM") << dateTime(QDate(2004, 3, 28), QTime(2, 30)); // an hour that Berlin skips
    QTest::newRow("2:05:07 AM") << dateTime(timeOnlyDay, QTime(2, 5, 7));
    QTest::newRow("12:00:00 AM") << dateTime(timeOnlyDay);
}

void TestDates::showsDates()
{
    QFETCH(QDateTime, value);
    const QString text = dateText(value);
    QCOMPARE(text, QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(toDate(text), value);
}

void TestDates::invalidDateHasNoText()
{
    QCOMPARE(faultOf([] { dateText(QDateTime()); }), typeMismatch);
}

void TestDates::clockIsTheWallClock()
{
    setClock({});
    const QDateTime before = QDateTime::currentDateTime();
    const QDateTime shown = now();
    QCOMPARE(shown.timeSpec(), Qt::UTC);
    QCOMPARE(shown.time().msec(), 0);
    const qint64 elapsed = dateTime(before.date(), before.time()).msecsTo(shown);
    QVERIFY2(elapsed > -1000 && elapsed < 60'000, qPrintable(QString::number(elapsed)));
}

void TestDates::clockCanBeReplaced()
{
    setClock([] { return QDateTime(QDate(2004, 7, 31), QTime(23, 59, 59, 999), Qt::LocalTime); });
    QCOMPARE(now(), dateTime(QDate(2004, 7, 31), QTime(23, 59, 59)));
    QCOMPARE(today(), QDate(2004, 7, 31));
}

void TestDates::weeks_data()
{
    QTest::addColumn<QDate>("day");
    QTest::addColumn<QDate>("sunday");
    QTest::newRow("Sunday") << QDate(2004, 8, 15) << QDate(2004, 8, 15);
    QTest::newRow("Monday") << QDate(2004, 8, 16) << QDate(2004, 8, 15);
    QTest::newRow("Saturday") << QDate(2004, 8, 21) << QDate(2004, 8, 15);
    QTest::newRow("across the new year") << QDate(2005, 1, 1) << QDate(2004, 12, 26);
}

void TestDates::weeks()
{
    QFETCH(QDate, day);
    QFETCH(QDate, sunday);
    const Period week = weekOf(day);
    QCOMPARE(week.first, sunday);
    QCOMPARE(week.last, sunday.addDays(6));
}

void TestDates::months_data()
{
    QTest::addColumn<QDate>("day");
    QTest::addColumn<QDate>("last");
    QTest::newRow("leap year") << QDate(2004, 2, 29) << QDate(2004, 2, 28);
    QTest::newRow("short month") << QDate(2004, 9, 30) << QDate(2004, 9, 30);
    QTest::newRow("long month") << QDate(2004, 12, 1) << QDate(2004, 12, 31);
}

void TestDates::months()
{
    QFETCH(QDate, day);
    QFETCH(QDate, last);
    const Period month = monthOf(day);
    QCOMPARE(month.first, QDate(day.year(), day.month(), 1));
    QCOMPARE(month.last, last);
}

void TestDates::findLast_data()
{
    QTest::addColumn<QString>("last");
    QTest::newRow("2") << u"28"_s;
    for (const char* month : {"4", "6", "9", "11"})
        QTest::newRow(month) << u"30"_s;
    for (const char* month : {"1", "3", "5", "7", "8", "10", "12", "02", " 4", "13", ""})
        QTest::newRow(month) << u"31"_s;
}

void TestDates::findLast()
{
    QFETCH(QString, last);
    QCOMPARE(FindLast(QString::fromLatin1(QTest::currentDataTag())), last);
}

QTEST_APPLESS_MAIN(TestDates)
#include "tst_dates.moc"
