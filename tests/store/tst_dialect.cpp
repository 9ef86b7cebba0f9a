#include "errorOf.h"
#include "support/scratchFolder.h"

#include "store/storeError.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int syntax = static_cast<int>(store::StoreFault::Syntax);
constexpr int unknownName = static_cast<int>(store::StoreFault::UnknownName);
constexpr int unknownTable = static_cast<int>(store::StoreFault::UnknownTable);
constexpr int typeMismatch = static_cast<int>(store::StoreFault::TypeMismatch);
constexpr int unspecified = static_cast<int>(store::StoreFault::Unspecified);
constexpr int overflow = static_cast<int>(values::Fault::Overflow);

} // namespace

class TestDialect : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<ScratchFolder>(); }

    void storesValues_data();
    void storesValues();
    void storesTextAsTyped_data();
    void storesTextAsTyped();
    void refuses_data();
    void refuses();
    void selectsByDate();
    void sortsAndFindsWithoutCase();

private:
    std::unique_ptr<ScratchFolder> m_folder;
};

void TestDialect::storesValues_data()
{
    QTest::addColumn<QString>("column");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char* expression, const char* column, const char* shown) {
        QTest::newRow(expression) << QString::fromLatin1(column) << QString::fromLatin1(shown);
    };
    row("#8/16/2004#", "jobdate", "8/16/2004");
    row("#1/2/2004#", "jobdate", "1/2/2004");
    row("#16/8/2004#", "jobdate", "8/16/2004");
    row("#8/16/29#", "jobdate", "8/16/2029");
    row("#8/16/30#", "jobdate", "8/16/1930");
    row("#2004-08-16#", "jobdate", "8/16/2004");
    row("#8/16/2004 2:30:05 PM#", "jobdate", "8/16/2004 2:30:05 PM");
    row("'16 Aug 2004'", "jobdate", "8/16/2004");
    row("#2:30 PM#", "jobstart", "2:30:00 PM");
    row("null", "jobdate", "(null)");
    row("5--3", "jobchar", "8");
    row("2.5", "jobchar", "2");
    row("3.5", "jobchar", "4");
    row("-2.5", "jobchar", "-2");
    row("-2147483648", "jobchar", "-2147483648");
    row("'1,234'", "jobchar", "1234");
    row("7/2", "joblines", "3.5");
    row("(1+2)*3", "joblines", "9");
    row("1.5e1", "joblines", "15");
    row("\"$12.50\"", "joblines", "12.5");
    row("\"say \"\"hi\"\"\"", "jobreference", "say \"hi\"");
    row("'a' & 'b'", "jobreference", "ab");
    row("True", "jobchar", "1");
    row("FALSE", "jobchar", "0");
}

void TestDialect::storesValues()
{
    QFETCH(QString, column);
    QFETCH(QString, shown);
    const QString expression = QString::fromLatin1(QTest::currentDataTag());
    m_folder->run(u"insert into jobs (%1) values (%2)"_s.arg(column, expression));
    m_folder->run(u"insert into jobs (joblength) values ('second')"_s);
    m_folder->run(u"Update Jobs Set %1 = %2 Where joblength = 'second';"_s.arg(column, expression));
    QCOMPARE(m_folder->rows(u"select %1 from jobs"_s.arg(column)), QStringList({shown, shown}));
}

void TestDialect::storesTextAsTyped_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"a; b", "a -- b", "/* a", "a */", "#1/1/2004#", "no. #1", "Smith \"Joe\" & Co", "?", ":x",
                             "True", "a\nb", " "})
        QTest::newRow(text) << QString::fromLatin1(text);
    QTest::newRow("two quotes for one") << u"O''Brien"_s;
    QTest::newRow("beyond Latin") << u"Ünal Привет \U0001F600"_s;
    QTest::newRow("the longest") << QString(255, u'ä');
}

void TestDialect::storesTextAsTyped()
{
    QFETCH(QString, text);
    m_folder->run(u"insert into jobacct (acctname) values ('%1')"_s.arg(text));
    QCOMPARE(m_folder->rows(u"select acctname from jobacct where acctname = '%1'"_s.arg(text)),
             QStringList(QString(text).replace(u"''"_s, u"'"_s)));
}

void TestDialect::refuses_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("says");
    const auto row = [](const char* statement, int number, const char* says = "") {
        QTest::newRow(statement) << QString::fromLatin1(statement) << number << QString::fromLatin1(says);
    };
    row("insert into jobacct (acctname) values ('a'); delete from jobacct", syntax, "delete from jobacct");
    row("insert into jobacct (acctname) values ('a'); delete from jobacct --')", syntax, "; delete from jobacct --')");
    row("insert into jobacct (acctname) values ('O'Brien')", syntax, "Syntax error in string in query expression '')'");
    row("update jobacct set acctname = 'a' where acctname = '' or 1=1 --'", syntax);
    row("delete from jobacct /* where id = 1 */", syntax, "/* where id = 1 */");
    row("insert into jobs (jobchar) values (?)", syntax, "?)");
    row("update jobs set jobchar = :x", syntax, ":x");
    row("update jobs set jobchar = @x", syntax, "@x");
    row("update jobs set jobchar = 65abc", syntax, "65abc");
    row("update jobs set jobchar = 0x41", syntax, "0x41");
    row("update jobs set jobchar = 1.2.3", syntax, "1.2.3");
    row("update jobs set jobdate = #13/13/2004#", syntax, "#13/13/2004#");
    row("update jobs set jobdate = #1/1/2004", syntax, "#1/1/2004");
    row("update jobs set jobchar = , joblines = 1", syntax);
    row("update jobs set jobchar = 1 2", syntax);
    row("update jobs set", syntax, "not complete");
    row("insert into jobs (jobchar, joblines, joblength) values (1, , 'x')", syntax);
    row("insert into jobs (jobchar, joblines) values (1)", syntax, "Number of query values");
    row("insert into jobs (jobchar) values (1, 2)", syntax, "Number of query values");
    row("insert into jobs (nobody) values (1)", syntax, "'nobody'");
    row("drop table jobacct", syntax);
    row("", syntax);
    row("insert into jobs (jobchar) values (abc)", unknownName, "No value given for one or more required parameters.");
    row("update jobs set nobody = 1", unknownName);
    row("delete from jobs where nobody = 1", unknownName);
    row("insert into nowhere (jobchar) values (1)", unknownTable, "'nowhere'");
    row("update nowhere set jobchar = 1", unknownTable, "'nowhere'");
    row("delete from nowhere", unknownTable, "'nowhere'");
    row("update jobs set jobchar = 'abc'", typeMismatch, "Data type mismatch");
    row("update jobs set joblines = ''", typeMismatch);
    row("update jobs set jobdate = 'someday'", typeMismatch);
    row("update jobs set jobdate = 5", typeMismatch);
    // The first row would take it, the second refuses: neither may have it.
    row("update jobs set jobchar = jobreference", typeMismatch);
    row("update jobs set jobchar = 2147483648", overflow, "Overflow");
    row("insert into jobs (jobchar) values ('-2147483649')", overflow);
    row("update jobs set joblines = 1e400", overflow);
    QTest::newRow("256 characters") << u"update jobs set jobreference = '%1'"_s.arg(QString(256, u'a')) << unspecified
                                    << u"too small"_s;
}

void TestDialect::refuses()
{
    QFETCH(QString, statement);
    QFETCH(int, number);
    QFETCH(QString, says);
    m_folder->run(u"insert into jobacct (acctname) values ('Anna')"_s);
    m_folder->run(u"insert into jobs (jobreference) values ('17')"_s);
    m_folder->run(u"insert into jobs (jobreference) values ('x')"_s);
    const auto content = [&] {
        return m_folder->rows(u"select * from jobacct"_s) + m_folder->rows(u"select * from jobs"_s);
    };
    const QStringList before = content();

    const values::RuntimeError error = errorOf([&] { m_folder->run(statement); });
    QCOMPARE(error.number(), number);
    QVERIFY2(error.description().contains(says), qPrintable(error.description()));
    QCOMPARE(content(), before);
}

void TestDialect::selectsByDate()
{
    for (const char* time : {"8/15/2004 11:59:59 PM", "8/16/2004", "8/31/2004 5:00 PM", "9/1/2004", "10/1/2003"})
        m_folder->run(u"insert into jobs (jobdate) values (#%1#)"_s.arg(QString::fromLatin1(time)));
    QCOMPARE(m_folder->rows(u"select jobdate from jobs where jobdate >= #8/16/04# and jobdate < #2004-09-01#"_s),
             QStringList({u"8/16/2004"_s, u"8/31/2004 5:00:00 PM"_s}));
}

void TestDialect::sortsAndFindsWithoutCase()
{
    const QStringList sorted{u"10"_s,  u"adam"_s,  u"Anna"_s, u"anna b"_s, u"ANNE"_s,  u"Strauß"_s, u"zoe"_s,
                             u"Zoé"_s, u"Ärzte"_s, u"éa"_s,   u"Éb"_s,     u"Борис"_s, u"ваня"_s};
    for (qsizetype i = 0; i < sorted.size(); ++i)
        m_folder->run(u"insert into jobacct (acctname) values ('%1')"_s.arg(sorted[(i * 5) % sorted.size()]));
    QCOMPARE(m_folder->rows(u"select acctname from jobacct order by acctname"_s), sorted);

    const QString select = u"select acctname from jobacct where acctname = '%1'"_s;
    for (const char16_t* name : {u"ANNA", u"anne", u"ÉA", u"éB", u"äRZTE", u"БОРИС", u"STRAUẞ"})
        QCOMPARE(m_folder->rows(select.arg(QStringView(name))).size(), 1);
    for (const char16_t* name : {u"Arzte", u"ann", u"Strauss", u"Борис "})
        QCOMPARE(m_folder->rows(select.arg(QStringView(name))), QStringList());
}

QTEST_GUILESS_MAIN(TestDialect)
#include "tst_dialect.moc"
