#include "support/errorOf.h"
#include "support/table.h"
#include "support/textRows.h"

#include "values/money.h"
#include "values/numbers.h"

#include <limits>

using namespace Qt::StringLiterals;
using namespace values;

static constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

class TestNumbers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsNumbers_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("expected");
        addTextRows(1234.5, "1234.5", "1,234.5", "$1,234.50", " $ 1234.5 ", "+1234.5", "12,34.5", "1,234,.5",
                    "1.2345e3", "12345E-1", "1234.5+");
        addTextRows(-5.0, "-5", "5-", "($5.00)", "(5)", "( $ 5 )", "-$5", "$-5", "- 5", "$5-", "-5.", "-.5e+1");
        addTextRows(0.5, ".5", "00.5");
        addTextRows(0.0, "1e-400");
    }

    void readsNumbers()
    {
        QVERIFY(isNumeric(cell("text")));
        QTEST(toDouble(cell("text")), "expected");
    }

    void rejectsOtherTexts()
    {
        const QString texts = u"|.|-|$|()|(|abc|5 apples|inf|0x10|\u0661\u0662|--5|-5-|(5|5)|(-5)|(5-)|$$5|5$|1.2.3|,5|"
                              "1.2,3|1 2|e3|1e|1e+|1e1.5|1e1,000|1e400|-1e400"_s;
        for (const QString& text : texts.split(u'|')) {
            QVERIFY2(!isNumeric(text), qPrintable(text));
            QCOMPARE(catchFault([&] { toDouble(text); }), text.endsWith(u"400") ? overflow : typeMismatch);
        }
    }

    void roundsToWhole()
    {
        QList<qint16> integers;
        for (const double value : {2.5, 3.5, 0.49999999999999994, 32767.4, -32768.5})
            integers << toInteger(value);
        QCOMPARE(integers, QList<qint16>({2, 4, 0, 32767, -32768}));
        for (const double value : {32767.5, -32768.6, notANumber})
            QCOMPARE(catchFault([&] { toInteger(value); }), overflow);
        QCOMPARE(catchFault([] { toLong(-2147483649.0); }), overflow);
    }

    void showsNumbers()
    {
        QStringList texts;
        for (const double value : {20.0, -0.0, 0.1 + 0.2, -1.23456789012345678e-5, 123456789012345.6, 1e15, 1e20})
            texts << numberText(value);
        QCOMPARE(texts.join(' '), "20 0 0.3 -0.0000123456789012346 123456789012346 1000000000000000 1E+20");
        // What no amount of money can hold shows as a number.
        QCOMPARE(currencyText(922337203685477.5), "$922,337,203,685,477.50");
        QCOMPARE(currencyText(-922337203685478.0) + ' ' + rateText(1e15) + ' ' + rateText(1e300),
                 "-922337203685478 1000000000000000 1E+300");
    }

    void showsMoney_data()
    {
        addRows({{"value", "text", "currency", "rate"},
                 {"groups, and zeros that stay", "-1234500", "-1234500", "($1,234,500.00)", "($1,234,500.00)"},
                 {"zeros after the point", "-0.0501", "-0.0501", "($0.05)", "($0.0501)"},
                 {"half to even, down", "1.00005", "1", "$1.00", "$1.00"},
                 {"half to even, up", "-1.00015", "-1.0002", "($1.00)", "($1.0002)"},
                 {"half with a noisy product", "3.0001500000000005", "3.0002", "$3.00", "$3.0002"},
                 {"more than half", "1.0000501", "1.0001", "$1.00", "$1.0001"},
                 {"less than half", "1.0001499", "1.0001", "$1.00", "$1.0001"},
                 {"carry", "99.99996", "100", "$100.00", "$100.00"},
                 {"negative that vanishes", "-0.00001", "0", "$0.00", "$0.00"},
                 {"half in a large number", "100000000000.03125", "100000000000.0312", "$100,000,000,000.03",
                  "$100,000,000,000.0312"},
                 {"half a cent away from zero", "0.125", "0.125", "$0.13", "$0.125"},
                 {"carry of cents", "999.996", "999.996", "$1,000.00", "$999.996"},
                 {"negative cents that vanish", "-0.0049", "-0.0049", "$0.00", "($0.0049)"}});
    }

    void showsMoney()
    {
        const double value = cell("value").toDouble();
        const Money money = Money::fromDouble(value);
        QTEST(money.text(), "text");
        QCOMPARE(money.toDouble(), cell("text").toDouble());
        QTEST(money.currencyText(), "currency");
        QTEST(rateText(value), "rate");
    }

    void readsAndAddsMoney()
    {
        QCOMPARE(Money::fromText("($1,234.56785)").text(), "-1234.5678");
        QCOMPARE(catchFault([] { Money::fromText("a lot"); }), typeMismatch);
        for (const double value : {922337203685477.625, -922337203685478.0, 1e300, notANumber})
            QCOMPARE(catchFault([&] { Money::fromDouble(value); }), overflow);

        Money sum;
        for (int i = 0; i < 10; ++i)
            sum += Money::fromDouble(0.1);
        QCOMPARE(sum, Money::fromDouble(1));
        QVERIFY(Money::fromDouble(-2) < Money::fromDouble(1.5));
        for (const double sign : {1.0, -1.0}) {
            Money full = Money::fromDouble(sign * 922337203685477.5);
            QCOMPARE(catchFault([&] { full += Money::fromDouble(sign * 0.0807); }), 0);
            const Money before = full;
            QCOMPARE(catchFault([&] { full += Money::fromDouble(sign * 0.0001); }), overflow);
            QCOMPARE(full, before);
        }
    }
};

QTEST_APPLESS_MAIN(TestNumbers)
#include "tst_numbers.moc"
