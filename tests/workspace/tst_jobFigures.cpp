#include "support/errorOf.h"
#include "support/table.h"
#include "workspace/jobFigures.h"
#include "workspace/jobTimer.h"

using namespace Qt::StringLiterals;
using namespace workspace;

/// The text that the action gives, or its error.
template <typename Action>
static QString resultOf(Action action)
{
    QString result;
    const int fault = catchFault([&] { result = action(); });
    return fault == 0 ? result : u"error %1"_s.arg(fault);
}

class TestJobFigures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void lines_data()
    {
        addRows({{"characters", "perLine", "lines"},
                 {"12.5 to the even number", "25", "2", "12"},
                 {"13.5 to the even number", "27", "2", "14"},
                 {"digits grouped", "6,500", "65", "100"},
                 {"none per line", "1040", "0", "error 11"},
                 {"empty", "", "65", "error 13"},
                 {"beyond 32 bits", "3000000000", "1", "error 6"}});
    }

    void lines()
    {
        const auto lines = [] { return QString::number(calculateLines(cell("characters"), cell("perLine").toInt())); };
        QTEST(resultOf(lines), "lines");
    }

    void money_data()
    {
        addRows({{"rate", "lines", "shownRate", "total"},
                 {"read back as shown", "$1,250.085", "2", "$1,250.085", "$2,500.17"},
                 {"half a cent", "0.125", "1", "$0.125", "$0.13"},
                 {"no number", "1", "many", "$1.00", "error 13"},
                 {"beyond money", "1e12", "1e9", "$1,000,000,000,000.00", "error 6"},
                 {"rate beyond money", "1e15", "1", "error 6", "error 6"}});
    }

    void money()
    {
        QTEST(resultOf([] { return formatRate(cell("rate")); }), "shownRate");
        QTEST(resultOf([] { return formatTotal(calculateTotal(cell("rate"), cell("lines"))); }), "total");
    }

    void showsLengths()
    {
        JobTimer timer;
        timer.start();
        int seconds = 0;
        for (const auto& [end, text] :
             {std::pair(59, "0:59"), {729, "12:9"}, {3599, "59:59"}, {3600, "1:0:0"}, {90001, "25:0:1"}}) {
            for (; seconds < end; ++seconds)
                timer.tick();
            QCOMPARE(timer.lengthText(), text);
        }
    }
};

QTEST_APPLESS_MAIN(TestJobFigures)
#include "tst_jobFigures.moc"
