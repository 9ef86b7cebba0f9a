#include "faultOf.h"
#include "values/money.h"
#include "values/numbers.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace values;

namespace {
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
} // namespace

class TestNumbers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void readsNumbers_data();
    void readsNumbers();
    void rejects_data();
    void rejects();
    void tooLargeOverflows();
    void roundsToWhole_data();
    void roundsToWhole();
    void showsNumbers_data();
    void showsNumbers();

    void moneyRoundsToFourDecimals_data();
    void moneyRoundsToFourDecimals();
    void moneyHasLimits();
    void moneyFromText();
    void moneyShowsCents_data();
    void moneyShowsCents();
    void moneyAddsUp();

    void errorsSayWhatIsWrong();
};

void TestNumbers::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::German));
}

void TestNumbers::readsNumbers_data()
{
    QTest::addColumn<double>("expected");
    for (const char* text : {"1234.5", "1,234.5", "$1,234.50", " $ 1234.5 ", "+1234.5", "12,34.5", "1,234,.5",
                             "1.2345e3", "12345E-1", "1234.5+"})
        QTest::newRow(text) << 1234.5;
    for (const char* text : {"-5", "5-", "($5.00)", "(5)", "( $ 5 )", "-$5", "$-5", "- 5", "$5-", "-5.", "-.5e+1"})
        QTest::newRow(text) << -5.0;
    QTest::newRow(".5") << 0.5;
    QTest::newRow("007") << 7.0;
    QTest::newRow("1e-400") << 0.0;
}

void TestNumbers::readsNumbers()
{
    QFETCH(double, expected);
    const QString text = QString::fromLatin1(QTest::currentDataTag());
    QVERIFY(isNumeric(text));
    QCOMPARE(toDouble(text), expected);
}

void TestNumbers::rejects_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text :
         {"",    " ",   ".",     "-",       "$",   "()",       "(",   ")",    "1.2.3", "--5", "+-5",  "-5-",
          "(5",  "5)",  "(-5)",  "(5-)",    "$$5", "5$",       ",5",  "-,5",  "1.2,3", ".,5", "e3",   "1e",
          "1e+", "1e-", "1e1.5", "1e1,000", "abc", "5 apples", "1 2", "1 e3", "inf",   "nan", "0x10", "1.234,5.6"})
        QTest::addRow("'%s'", text) << QString::fromLatin1(text);
    QTest::newRow("digits of another script") << u"\u0661\u0662"_s;
}

void TestNumbers::rejects()
{
    QFETCH(QString, text);
    QVERIFY(!isNumeric(text));
    QCOMPARE(faultOf([&] { toDouble(text); }), typeMismatch);
}

void TestNumbers::tooLargeOverflows()
{
    QVERIFY(!isNumeric(u"-1e400"_s));
    QCOMPARE(faultOf([] { toDouble(u"-1e400"_s); }), overflow);
    QCOMPARE(faultOf([] { toDouble(QString(400, u'9')); }), overflow);
}

void TestNumbers::roundsToWhole_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("rounded");
    QTest::addColumn<bool>("fitsInteger");
    QTest::addColumn<bool>("fitsLong");
    QTest::newRow("half to even, down") << 2.5 << 2 << true << true;
    QTest::newRow("half to even, up") << 3.5 << 4 << true << true;
    QTest::newRow("negative half") << -2.5 << -2 << true << true;
    QTest::newRow("just below half") << 0.49999999999999994 << 0 << true << true;
    QTest::newRow("integer top") << 32767.4 << 32767 << true << true;
    QTest::newRow("integer beyond top") << 32767.5 << 32768 << false << true;
    QTest::newRow("integer bottom") << -32768.5 << -32768 << true << true;
    QTest::newRow("integer beyond bottom") << -32768.6 << -32769 << false << true;
    QTest::newRow("long top") << 2147483647.4 << 2147483647 << false << true;
    QTest::newRow("long beyond top") << 2147483647.5 << 0 << false << false;
    QTest::newRow("long bottom") << -2147483648.5 << std::numeric_limits<int>::min() << false << true;
    QTest::newRow("long beyond bottom") << -2147483649.0 << 0 << false << false;
    QTest::newRow("infinite") << -infinity << 0 << false << false;
    QTest::newRow("not a number") << notANumber << 0 << false << false;
}

void TestNumbers::roundsToWhole()
{
    QFETCH(double, value);
    QFETCH(int, rounded);
    QFETCH(bool, fitsInteger);
    QFETCH(bool, fitsLong);
    QCOMPARE(faultOf([&] { QCOMPARE(int{toInteger(value)}, rounded); }), fitsInteger ? 0 : overflow);
    QCOMPARE(faultOf([&] { QCOMPARE(toLong(value), rounded); }), fitsLong ? 0 : overflow);
}

void TestNumbers::showsNumbers_data()
{
    QTest::addColumn<double>("value");
    QTest::newRow("20") << 20.0;
    QTest::newRow("0.12") << 0.12;
    QTest::newRow("-1.5") << -1.5;
    QTest::newRow("0") << -0.0;
    QTest::newRow("0.3") << 0.1 + 0.2;
    QTest::newRow("0.333333333333333") << 1.0 / 3;
    QTest::newRow("10") << 9.9999999999999996;
    QTest::newRow("0.00001") << 1e-5;
    QTest::newRow("-0.0000123456789012346") << -1.23456789012345678e-5;
    QTest::newRow("123456789012346") << 123456789012345.6;
    QTest::newRow("1000000000000000") << 1e15;
    QTest::newRow("1E+20") << 1e20;
}

void TestNumbers::showsNumbers()
{
    QFETCH(double, value);
    QCOMPARE(numberText(value), QString::fromLatin1(QTest::currentDataTag()));
}

void TestNumbers::moneyRoundsToFourDecimals_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << 20.0 << u"20"_s;
    QTest::newRow("hundreds keep their zeros") << -1200.0 << u"-1200"_s;
    QTest::newRow("four decimals") << 1.2345 << u"1.2345"_s;
    QTest::newRow("zeros after the point") << -0.0501 << u"-0.0501"_s;
    QTest::newRow("half to even, down") << 1.00005 << u"1"_s;
    QTest::newRow("half to even, up") << 1.00015 << u"1.0002"_s;
    QTest::newRow("negative half") << -1.00015 << u"-1.0002"_s;
    QTest::newRow("half with a noisy product") << 1.00005 * 3 << u"3.0002"_s;
    QTest::newRow("more than half") << 1.0000501 << u"1.0001"_s;
    QTest::newRow("less than half") << 1.0001499 << u"1.0001"_s;
    QTest::newRow("carry") << 9.99996 << u"10"_s;
    QTest::newRow("negative that vanishes") << -0.00001 << u"0"_s;
    QTest::newRow("half in a large number") << 100000000000.03125 << u"100000000000.0312"_s;
    QTest::newRow("many digits") << 123456789012.1234 << u"123456789012.1234"_s;
}

void TestNumbers::moneyRoundsToFourDecimals()
{
    QFETCH(double, value);
    QFETCH(QString, text);
    const Money money = Money::fromDouble(value);
    QCOMPARE(money.text(), text);
    QCOMPARE(numberText(money.toDouble()), numberText(text.toDouble()));
}

void TestNumbers::moneyHasLimits()
{
    QCOMPARE(Money::fromDouble(-922337203685477.5).text(), u"-922337203685477.5"_s);
    for (const double value : {922337203685477.625, -922337203685478.0, 1e300, infinity, notANumber})
        QCOMPARE(faultOf([&] { Money::fromDouble(value); }), overflow);
}

void TestNumbers::moneyFromText()
{
    QCOMPARE(Money::fromText(u"($1,234.56785)"_s).text(), u"-1234.5678"_s);
    QCOMPARE(faultOf([] { Money::fromText(u"a lot"_s); }), typeMismatch);
    QCOMPARE(faultOf([] { Money::fromText(u"1e15"_s); }), overflow);
}

void TestNumbers::moneyShowsCents_data()
{
    QTest::addColumn<QString>("text");
    const auto row = [](const char* amount, const QString& text) { QTest::newRow(amount) << text; };
    row("0", u"$0.00"_s);
    row("0.125", u"$0.12"_s);
    row("0.135", u"$0.14"_s);
    row("0.1251", u"$0.13"_s);
    row("0.1249", u"$0.12"_s);
    row("0.05", u"$0.05"_s);
    row("9.996", u"$10.00"_s);
    row("999.5", u"$999.50"_s);
    row("1234.5", u"$1,234.50"_s);
    row("1234567", u"$1,234,567.00"_s);
    row("-1234.5", u"($1,234.50)"_s);
    row("-0.135", u"($0.14)"_s);
    row("-0.005", u"$0.00"_s);
}

void TestNumbers::moneyShowsCents()
{
    QFETCH(QString, text);
    QCOMPARE(Money::fromText(QString::fromLatin1(QTest::currentDataTag())).currencyText(), text);
}

void TestNumbers::moneyAddsUp()
{
    Money sum;
    for (int i = 0; i < 10; ++i)
        sum += Money::fromDouble(0.1);
    QCOMPARE(sum, Money::fromDouble(1));
    QVERIFY(Money::fromDouble(-2) < Money::fromDouble(1.5));

    for (const double sign : {1.0, -1.0}) {
        Money full = Money::fromDouble(sign * 922337203685477.5);
        QCOMPARE(faultOf([&] { full += Money::fromDouble(sign * 0.0807); }), 0);
        const Money before = full;
        QCOMPARE(faultOf([&] { full += Money::fromDouble(sign * 0.0001); }), overflow);
        QCOMPARE(full, before);
    }
}

void TestNumbers::errorsSayWhatIsWrong()
{
    const RuntimeError classic(Fault::ReadOnlyText);
    QCOMPARE(classic.number(), 383);
    QCOMPARE(classic.description(), u"'Text' property is read-only"_s);
    QCOMPARE(QString::fromUtf8(RuntimeError(1001, u"Zeile für Zeile"_s).what()), u"1001: Zeile für Zeile"_s);
}

QTEST_APPLESS_MAIN(TestNumbers)
#include "tst_numbers.moc"
