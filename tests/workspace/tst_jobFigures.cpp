#include "support/errorOf.h"
#include "workspace/jobFigures.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace workspace;

class TestJobFigures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void lines_data()
    {
        QTest::addColumn<QString>("characters");
        QTest::addColumn<int>("charactersPerLine");
        QTest::addColumn<int>("lines");
        QTest::addColumn<int>("fault");
        QTest::newRow("down") << u"1000"_s << 65 << 15 << 0;
        QTest::newRow("exact") << u"1040"_s << 65 << 16 << 0;
        QTest::newRow("12.5 to the even number") << u"25"_s << 2 << 12 << 0;
        QTest::newRow("13.5 to the even number") << u"27"_s << 2 << 14 << 0;
        QTest::newRow("digits grouped") << u"6,500"_s << 65 << 100 << 0;
        QTest::newRow("no characters per line") << u"1000"_s << 0 << 0 << 11;
        QTest::newRow("letters") << u"many"_s << 65 << 0 << 13;
        QTest::newRow("empty") << QString() << 65 << 0 << 13;
        QTest::newRow("beyond 32 bits") << u"3000000000"_s << 1 << 0 << 6;
    }

    void lines()
    {
        QFETCH(QString, characters);
        QFETCH(int, charactersPerLine);
        int result = 0;
        QTEST(faultOf([&] { result = linesOf(characters, charactersPerLine); }), "fault");
        QTEST(result, "lines");
    }

    void totals_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::addColumn<int>("fault");
        QTest::newRow("line") << u"Line|16|1.25|0"_s << u"Line|16|$1.25|$20.00"_s << 0;
        QTest::newRow("rate from currency") << u"Line|2|$1,250.00|"_s << u"Line|2|$1,250.00|$2,500.00"_s << 0;
        QTest::newRow("rate to the cent") << u"Line|1000|0.126|"_s << u"Line|1000|$0.13|$126.00"_s << 0;
        QTest::newRow("then as shown") << u"Line|1000|$0.13|$126.00"_s << u"Line|1000|$0.13|$130.00"_s << 0;
        QTest::newRow("report") << u"Report|0|4.5|"_s << u"Report|1|$4.50|$4.50"_s << 0;
        QTest::newRow("hourly keeps its total") << u"Hourly|3|30|1234.5"_s << u"Hourly|3|$30.00|$1,234.50"_s << 0;
        QTest::newRow("unit is exact") << u"LINE|3|30|7"_s << u"LINE|3|$30.00|$7.00"_s << 0;
        QTest::newRow("empty total") << u"Misc|0|30|"_s << QString() << 13;
        QTest::newRow("lines are no number") << u"Line|many|30|0"_s << QString() << 13;
        QTest::newRow("beyond currency") << u"Line|1e12|1e9|0"_s << QString() << 6;
    }

    void totals()
    {
        QFETCH(QString, before);
        const QStringList parts = before.split(u'|');
        QString result;
        QTEST(faultOf([&] {
                  const JobFigures figures = calculated({parts[0], parts[1], parts[2], parts[3]});
                  result = QStringList{figures.unit, figures.lines, figures.rate, figures.total}.join(u'|');
              }),
              "fault");
        QTEST(result, "after");
    }
};

QTEST_APPLESS_MAIN(TestJobFigures)
#include "tst_jobFigures.moc"
