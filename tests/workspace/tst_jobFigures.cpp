#include "support/errorOf.h"
#include "support/table.h"
#include "workspace/jobFigures.h"
#include "workspace/jobTimer.h"

using namespace Qt::StringLiterals;
using namespace workspace;

/// The text that the action gives, or the error that it ends with.
template <typename Action>
static QString resultOf(Action action)
{
    QString result;
    const int fault = faultOf([&] { result = action(); });
    return fault == 0 ? result : u"error %1"_s.arg(fault);
}

class TestJobFigures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void lines_data()
    {
        table({{"characters", "perLine", "lines"},
               {"down", "1000", "65", "15"},
               {"12.5 to the even number", "25", "2", "12"},
               {"13.5 to the even number", "27", "2", "14"},
               {"digits grouped", "6,500", "65", "100"},
               {"empty", "", "65", "error 13"},
               {"beyond 32 bits", "3000000000", "1", "error 6"}});
    }

    void lines()
    {
        const auto lines = [] { return QString::number(linesOf(cell("characters"), cell("perLine").toInt())); };
        QTEST(resultOf(lines), "lines");
    }

    void totals_data()
    {
        table({{"before", "after"},
               {"line", "Line|16|1.25|0", "Line|16|$1.25|$20.00"},
               {"rate from currency", "Line|2|$1,250.00|", "Line|2|$1,250.00|$2,500.00"},
               {"rate to the cent", "Line|1000|0.126|", "Line|1000|$0.13|$126.00"},
               {"then as shown", "Line|1000|$0.13|$126.00", "Line|1000|$0.13|$130.00"},
               {"report", "Report|0|4.5|", "Report|1|$4.50|$4.50"},
               {"hourly keeps its total", "Hourly|3|30|1234.5", "Hourly|3|$30.00|$1,234.50"},
               {"unit is exact", "LINE|3|30|7", "LINE|3|$30.00|$7.00"},
               {"empty total", "Misc|0|30|", "error 13"},
               {"lines are no number", "Line|many|30|0", "error 13"},
               {"beyond currency", "Line|1e12|1e9|0", "error 6"}});
    }

    void totals()
    {
        const QStringList parts = cell("before").split(u'|');
        const auto after = [&] {
            const JobFigures figures = calculated({parts[0], parts[1], parts[2], parts[3]});
            return QStringList{figures.unit, figures.lines, figures.rate, figures.total}.join(u'|');
        };
        QTEST(resultOf(after), "after");
    }

    void lengths()
    {
        const std::pair<int, QString> lengths[] = {
            {59, u"0:59"_s}, {729, u"12:9"_s}, {3599, u"59:59"_s}, {3600, u"1:0:0"_s}, {90001, u"25:0:1"_s}};
        for (const auto& [seconds, text] : lengths) {
            JobTimer timer;
            timer.start();
            for (int i = 0; i < seconds; ++i)
                timer.tick();
            QCOMPARE(timer.lengthText(), text);
        }
    }
};

QTEST_APPLESS_MAIN(TestJobFigures)
#include "tst_jobFigures.moc"
