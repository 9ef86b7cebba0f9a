#include "support/errorOf.h"
#include "support/scratchFolder.h"
#include "support/table.h"

#include "store/connection.h"
#include "store/connectionStrings.h"
#include "store/storeError.h"

using namespace Qt::StringLiterals;

class TestDialect : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<ScratchFolder>(); }

    void storesValues_data()
    {
        table({{"column", "shown"},
               {"#8/16/2004#", "jobdate", "8/16/2004"},
               {"#8/16/2004 2:30:05 PM#", "jobdate", "8/16/2004 2:30:05 PM"},
               {"#16 Aug 2004#", "jobdate", "8/16/2004"},
               {"#2:30 PM#", "jobstart", "2:30:00 PM"},
               {"5--3", "jobchar", "8"},
               {"2.5", "jobchar", "2"},
               {"3.5", "jobchar", "4"},
               {"-2147483648", "jobchar", "-2147483648"},
               {"(1+6)/2 - -1*((2))", "joblines", "5.5"},
               {R"("say ""hi""")", "jobreference", R"(say "hi")"},
               {"'a' & 'b' + \"c\"", "jobreference", "abc"}});
    }

    void storesValues()
    {
        QFETCH(QString, column);
        QFETCH(QString, shown);
        const QString expression = QString::fromLatin1(QTest::currentDataTag());
        m_folder->run(u"insert into jobs (%1) values (%2)"_s.arg(column, expression));
        m_folder->run(u"insert into jobs (joblength) values ('second')"_s);
        m_folder->run(u"Update Jobs Set %1 = %2 Where joblength = 'second';"_s.arg(column, expression));
        QCOMPARE(m_folder->rows(u"select %1 from jobs"_s.arg(column)), QStringList({shown, shown}));
    }

    void storesTextAsTyped()
    {
        QStringList texts{QString(255, u'ä')};
        for (const char* text : {"a; b", "a -- b", "/* a", "a */", "#1/1/2004#", "no. #1", "Smith \"Joe\" & Co", "?",
                                 ":x", "True", "a\nb", " ", "O''Brien", "Ünal Привет \U0001F600"})
            texts << QString::fromUtf8(text);
        for (const QString& text : texts) {
            addClient(text);
            QCOMPARE(clients(u"where acctname = '%1'"_s.arg(text)),
                     QStringList(QString(text).replace(u"''"_s, u"'"_s)));
        }
    }

    void refuses_data()
    {
        using enum store::StoreFault;
        QTest::addColumn<QString>("statement");
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("says");
        const auto row = [](const char* statement, auto number, const char* says = "") {
            QTest::newRow(statement) << QString::fromLatin1(statement) << int(number) << QString::fromLatin1(says);
        };
        row("insert into jobacct (acctname) values ('a'); delete from jobacct --')", Syntax,
            "; delete from jobacct --')");
        row("insert into jobacct (acctname) values ('O'Brien')", Syntax,
            "Syntax error in string in query expression '')'");
        row("delete from jobacct /* where id = 1 */", Syntax, "/* where id = 1 */");
        row("insert into jobs (jobchar) values (?)", Syntax, "?)");
        row("update jobs set jobchar = :x", Syntax, ":x");
        row("update jobs set jobchar = 1.2.3", Syntax, "1.2.3");
        row("update jobs set jobdate = #13/13/2004#", Syntax, "#13/13/2004#");
        row("update jobs set jobdate = #1/1/2004", Syntax, "#1/1/2004");
        row("update jobs set jobchar = , joblines = 1", Syntax);
        row("update jobs set", Syntax, "not complete");
        row("insert into jobs (jobchar, joblines) values (1)", Syntax, "Number of query values");
        row("insert into jobs (nobody) values (1)", Syntax, "'nobody'");
        row("drop table jobacct", Syntax);
        row("select * from sqlite_master", Syntax, "sqlite_master");
        row("update jobacct set acctname = 'Jack' and 'Jill'", Syntax, "near 'and 'Jill''.");
        row("update jobacct set acctname = 'x' or '1'='1'  where id=1", Syntax, "near 'or '1'='1'  where id=1'.");
        row("update jobacct set acctname = 'x' where id=1 and acctname <> '' where id=2", Syntax, "near 'and ");
        row("update jobacct set acctname = 'x', AcctName = 'y'", Syntax, "'AcctName'");
        row("delete from jobacct where acctname = 'x' & 'y'", Syntax, "near '& 'y''.");
        row("select * from jobacct where acctname = 'x' or '1'='1'", Syntax, "near 'or ");
        row("update jobs set joblines = 1 + random()", Syntax, "Undefined function 'random'");
        row("update jobs set joblines = (select max(id) from jobs)", Syntax, "near 'select max(id) from jobs)'.");
        row("select length(jobreference) from jobs", Syntax, "Undefined function 'length'");
        row("update jobs set jobdate = #1/1/2004# + #1/1/2004#", Syntax, "near '+ #1/1/2004#'.");
        QTest::newRow("brackets") << u"update jobs set jobchar = "_s + QString(30'000, u'(') << int(Syntax)
                                  << u"near '%1...'."_s.arg(QString(100, u'('));
        row("", Syntax);
        row("insert into jobs (jobchar) values (abc)", UnknownName,
            "No value given for one or more required parameters.");
        row("delete from nowhere", UnknownTable, "'nowhere'");
        row("update jobs set jobchar = 'abc'", TypeMismatch, "Data type mismatch");
        row("update jobs set joblines = '1'", TypeMismatch);
        for (const char* value : {"True", "null", "jobreference", "'1' & '2'", "#1/1/2004#"})
            QTest::newRow(value) << u"update jobs set joblines = 2*%1"_s.arg(QLatin1String(value)) << int(TypeMismatch)
                                 << QString();
        row("update jobacct set acctname = 'a' & 5", TypeMismatch);
        row("update jobacct set acctname = acctname", TypeMismatch);
        row("update jobs set joblines = 5/(1-1)", 11, "Division by zero");
        row("update jobs set jobdate = '1/1/2004'", TypeMismatch);
        row("update jobs set jobchar = 2147483648", overflow, "Overflow");
        row("update jobs set joblines = 1e400", overflow);
        row("update accttype set acctrate = 922337203685477.9", overflow);
        row("update accttype set acctrate = -922337203685478", overflow);
        const QByteArray tooLong = "update jobs set jobreference = '" + QByteArray(256, 'a') + '\'';
        row(tooLong.constData(), Unspecified, "too small");
    }

    void refuses()
    {
        QFETCH(QString, statement);
        QFETCH(QString, says);
        addClient(u"Anna"_s);
        for (const char* reference : {"17", "x"})
            m_folder->run(u"insert into jobs (jobreference) values ('%1')"_s.arg(QLatin1String(reference)));
        const auto content = [&] { return clients() + m_folder->rows(u"select * from jobs"_s); };
        const QStringList before = content();

        const values::RuntimeError error = errorOf([&] { m_folder->run(statement); });
        QTEST(error.number(), "number");
        QVERIFY2(error.description().contains(says), qPrintable(error.description()));
        QCOMPARE(content(), before);
    }

    void selectsByDate()
    {
        for (const char* time : {"8/15/2004 11:59:59 PM", "8/16/2004", "8/31/2004 5:00 PM", "9/1/2004", "10/1/2003"})
            m_folder->run(u"insert into jobs (jobdate) values (#%1#)"_s.arg(QString::fromLatin1(time)));
        QCOMPARE(m_folder->rows(u"select jobdate from jobs where jobdate >= #8/16/04# and jobdate < #2004-09-01#"_s),
                 QStringList({u"8/16/2004"_s, u"8/31/2004 5:00:00 PM"_s}));
    }

    // A rate from before there was a limit.
    void keepsTooLargeARateReadable()
    {
        store::Connection(modMain::DBConnString)
            .runNative("insert into accttype (acctrate) values (4e15);"
                       "insert into jobs (jobtypeid, joblines) values (1, 1e10)");
        QCOMPARE(m_folder->rows(u"select acctrate from accttype"_s), QStringList(u"4E+15"_s));
        const auto total = [&] {
            return m_folder->rows(u"select sum(jobs.joblines * accttype.acctrate) from jobs,accttype where "
                                  "jobs.jobtypeid=accttype.id"_s);
        };
        QCOMPARE(total(), QStringList(u"4E+25"_s));
        m_folder->run(u"update accttype set acctrate=0.12345 where ID=1"_s);
        QCOMPARE(total(), QStringList(u"1234500000"_s));
        m_folder->run(u"DELETE from accttype where id=1"_s);
        QCOMPARE(m_folder->rows(u"select * from accttype"_s), QStringList());
    }

    void sortsAndFindsWithoutCase()
    {
        QStringList sorted;
        for (const char* name : {"10", "adam", "Anna", "anna b", "ANNE", "Arnold", "Ärzte", "D’Or", "D'Or B", "D’Or C",
                                 "éa", "Éb", "O'Brien", "Obama", "Strauß", "zoe", "Zoé", "Борис", "ваня"})
            sorted << QString::fromUtf8(name);
        for (qsizetype i = 0; i < sorted.size(); ++i)
            addClient(QString(sorted[(i * 7) % sorted.size()]).replace(u'\'', u"''"_s));
        QCOMPARE(clients(u"order by acctname"_s), sorted);
        const QStringList backwards(sorted.rbegin(), sorted.rend());
        QCOMPARE(clients(u"order by jobacct.acctname desc,id"_s), backwards);

        const auto found = [&](const char16_t* name) {
            return clients(u"where acctname = '%1'"_s.arg(QStringView(name))).size();
        };
        for (const char16_t* name : {u"ANNA", u"anne", u"ÉA", u"éB", u"äRZTE", u"БОРИС", u"STRAUẞ"})
            QCOMPARE(found(name), 1);
        for (const char16_t* name : {u"Arzte", u"ann", u"Strauss", u"Борис "})
            QCOMPARE(found(name), 0);
    }

private:
    QStringList clients(const QString& condition = {}) const
    {
        return m_folder->rows(u"select acctname from jobacct "_s + condition);
    }
    void addClient(const QString& name) const
    {
        m_folder->run(u"insert into jobacct (acctname) values ('%1')"_s.arg(name));
    }

    std::unique_ptr<ScratchFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestDialect)
#include "tst_dialect.moc"
