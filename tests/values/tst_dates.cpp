#include "support/errorOf.h"
#include "support/table.h"
#include "support/textRows.h"

#include "values/clock.h"
#include "values/dates.h"
#include "values/period.h"

#include <functional>

using namespace Qt::StringLiterals;
using namespace values;

class TestDates : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { setClock(std::bind_front(dateTime, QDate(2004, 10, 20), QTime(9, 30))); }
    void cleanup() { setClock({}); }

    void readsDates_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDateTime>("meaning");
        const auto on = [](int year, int month, int day, auto... texts) {
            addTextRows(dateTime(QDate(year, month, day)), texts...);
        };
        on(2004, 8, 16, "8/16/2004", "8-16-04", "08/16/04", "8/16", "2004-08-16", "2004/8/16", "16/8/2004", "16/8",
           "16 Aug 2004", "16-aug-04", "Aug 16 2004", "August 16, 2004", "AUGUST 16 ,2004", "Aug 16", "16 August",
           "  8/16/2004\t", "8 / 16 / 2004");
        on(2004, 8, 1, "August 2004");
        on(2004, 9, 3, "Sept 3 2004", "sep 3 2004", "9/3/2004");
        on(2004, 12, 13, "12/13/2004", "13/12/2004");
        on(2029, 1, 1, "1/1/29");
        on(1930, 1, 1, "1/1/30");
        on(100, 1, 1, "1/1/100");

        const auto at = [](QTime time, auto... texts) { addTextRows(dateTime(timeOnlyDay, time), texts...); };
        at(QTime(14, 30), "14:30", "2:30 PM", "2:30pm");
        at(QTime(2, 5, 7), "2:05:07 AM", "2:05:07");
        at(QTime(0, 0), "0:00", "12 AM");
        at(QTime(12, 30), "12:30 pm");

        addTextRows(dateTime(QDate(2004, 8, 16), QTime(14, 30)), "8/16/2004   2:30 PM", "2004-08-16T14:30:00",
                    "2004-08-16 14:30", "14:30 8/16/2004", "August 16, 2004 2:30pm", "Aug 16 14:30", "14:30 16 Aug");
        addTextRows(dateTime(QDate(2004, 8, 16), QTime(14, 0)), "Aug 16 2 pm", "2 pm 16 Aug 2004");
    }

    void readsDates()
    {
        QVERIFY(isDate(cell("text")));
        QTEST(toDate(cell("text")), "meaning");
    }

    void rejectsOtherTexts()
    {
        const QString texts =
            u"|   |5|20040816|Aug|pm|T14:30|2004-08-16T|8/16/2004T14:30|16Aug2004|8/16/|8//16|8/16-2004|8 16 2004|"
            "8,16,2004|8.16.2004|2/29/2003|13/13/2004|0/5/2004|2004-13-05|1/1/99999|1/1/099|24:00|14:60|14:30:60|"
            "13 PM|0 AM|14:|2:30 pm pm|8/16/2004 24:00|on 8/16/04|8/16/2004 day|8/16 8/17|14:30 14:30|Juni 3 2004|"
            "16. August 2004|\u0668/\u0661\u0666/2004"_s;
        for (const QString& text : texts.split(u'|')) {
            QVERIFY2(!isDate(text), qPrintable(text));
            QCOMPARE(catchFault([&] { toDate(text); }), typeMismatch);
        }
    }

    void showsDates()
    {
        for (const char* text : {"8/20/2004", "8/2/2004 2:05:07 PM", "12/20/2004 12:00:00 PM", "2:05:07 AM",
                                 "12:00:00 AM", "3/28/2004 2:30:00 AM" /* an hour that Berlin skips */})
            QCOMPARE(dateText(toDate(text)), text);
        QCOMPARE(catchFault([] { dateText(QDateTime()); }), typeMismatch);
    }

    void followsTheClock()
    {
        QVERIFY(isDate("2/29"));
        setClock([] { return dateTime(QDate(2003, 10, 20)); });
        QVERIFY(!isDate("2/29"));
        QCOMPARE(toDate("8/16"), dateTime(QDate(2003, 8, 16)));

        setClock([] { return QDateTime(QDate(2004, 7, 31), QTime(23, 59, 59, 999)); });
        QCOMPARE(now(), dateTime(QDate(2004, 7, 31), QTime(23, 59, 59)));
        QCOMPARE(today(), QDate(2004, 7, 31));

        setClock({});
        const QDateTime before = QDateTime::currentDateTime();
        const qint64 elapsed = dateTime(before.date(), before.time()).msecsTo(now());
        QVERIFY(elapsed > -1000 && elapsed < 60'000);
    }

    void findsWeeksAndMonths()
    {
        const auto text = [](Period period) { return period.first.toString("d.M. - ") + period.last.toString("d.M."); };
        for (const int day : {15, 16, 21})
            QCOMPARE(text(weekOf(QDate(2004, 8, day))), "15.8. - 21.8.");
        QCOMPARE(text(weekOf(QDate(2005, 1, 1))), "26.12. - 1.1.");
        QCOMPARE(text(monthOf(QDate(2004, 2, 29))), "1.2. - 28.2.");
        // The ends stay as they were typed.
        QCOMPARE(text(*periodOf({Range::FromTo, {2004, 9, 30}, {2004, 9, 1}, {}})), "30.9. - 1.9.");
        QStringList lasts;
        for (const char* month : {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "02", " 4", "13", ""})
            lasts << FindLast(month);
        QCOMPARE(lasts.join(' '), "31 28 31 30 31 30 31 31 30 31 30 31 31 31 31 31");
    }
};

QTEST_APPLESS_MAIN(TestDates)
#include "tst_dates.moc"
