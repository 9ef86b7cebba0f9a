#include "support/errorOf.h"
#include "support/scratchFolder.h"
#include "support/table.h"

#include "store/storeError.h"

class TestDialect : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<ScratchFolder>(); }

    void storesValues_data()
    {
        addRows({{"column", "shown"},
                 {"#8/16/2004#", "jobdate", "8/16/2004"},
                 {"#8/16/2004 2:30:05 PM#", "jobdate", "8/16/2004 2:30:05 PM"},
                 {"#2:30 PM#", "jobstart", "2:30:00 PM"},
                 {"5--3", "jobchar", "8"},
                 {"2.5", "jobchar", "2"},
                 {"-2147483648", "jobchar", "-2147483648"},
                 {"(1+6)/2 - -1*((2))", "joblines", "5.5"},
                 {R"("say ""hi""")", "jobreference", R"(say "hi")"},
                 {"'a' & 'b' + \"c\"", "jobreference", "abc"}});
    }

    void storesValues()
    {
        const QString column = cell("column"), shown = cell("shown"), expression = QTest::currentDataTag();
        m_folder->run("insert into jobs (" + column + ") values (" + expression + ')');
        m_folder->run("insert into jobs (joblength) values ('second')");
        m_folder->run("Update Jobs Set " + column + " = " + expression + " Where joblength = 'second';");
        QCOMPARE(m_folder->rows("select " + column + " from jobs"), QStringList({shown, shown}));
    }

    void storesTextAsTyped()
    {
        QStringList texts{"a; b", "a -- b", "/* a", "a */", "#1/1/2004#",         "no. #1",   "?",
                          ":x",   "True",   "a\nb", " ",    "Smith \"Joe\" & Co", "O''Brien", "Ünal Привет \U0001F600"};
        for (QString& text : texts << QString(255, u'ä')) {
            m_folder->addClient(text);
            const QStringList found = m_folder->clients("where acctname = '" + text + '\'');
            QCOMPARE(found, QStringList(text.replace("''", "'")));
        }
    }

    void refusesOtherStatements_data()
    {
        using enum store::StoreFault;
        QTest::addColumn<QString>("statement");
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("says");
        const auto row = [](const QByteArray& statement, auto number, const QByteArray& says = {}) {
            QTest::newRow(statement.constData()) << QString(statement) << int(number) << QString(says);
        };
        row("insert into jobacct (acctname) values ('a'); delete from jobacct --')", Syntax, "; delete from");
        row("insert into jobacct (acctname) values ('O'Brien')", Syntax, "in string in query expression '')'");
        row("delete from jobacct /* where id = 1 */", Syntax, "/* where id = 1 */");
        row("insert into jobs (jobchar) values (?)", Syntax, "?)");
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
        row("update jobacct set acctname = 'x', AcctName = 'y'", Syntax, "'AcctName'");
        // As typed into a rate, a client's name and the time of a submission.
        row("update jobs set joblines = 5, id = 7", Syntax, "near 'id'");
        row("update jobacct set acctname = 'x', rowid = '7'", Syntax, "near 'rowid'");
        row("update jobs set jobuploaded = 'x', jobreference = 'y'", Syntax, "near 'jobreference'");
        row("select * from jobacct where acctname = 'x' or '1'='1'", Syntax, "near 'or ");
        row("update jobs set joblines = 1 + random()", Syntax, "Undefined function 'random'");
        row("update jobs set joblines = (select max(id) from jobs)", Syntax, "near 'select max(id) from jobs)'.");
        row("select length(jobreference) from jobs", Syntax, "Undefined function 'length'");
        const QByteArray brackets(30'000, '('), nearby = "near '" + brackets.first(100) + "...'.";
        row("update jobs set jobchar = " + brackets, Syntax, nearby);
        row("", Syntax);
        row("insert into jobs (jobchar) values (abc)", UnknownName, "No value given for one or more required");
        row("delete from nowhere", UnknownTable, "'nowhere'");
        row("update jobs set jobchar = 'abc'", TypeMismatch, "Data type mismatch");
        for (const char* value : {"True", "null", "jobreference", "'1' & '2'", "#1/1/2004#"})
            row(QByteArray("update jobs set joblines = 2*") + value, TypeMismatch);
        row("update jobacct set acctname = 'a' & 5", TypeMismatch);
        row("update jobs set joblines = 5/(1-1)", 11, "Division by zero");
        row("update jobs set jobchar = 2147483648", overflow, "Overflow");
        row("update jobs set joblines = 1e400", overflow);
        row("update accttype set acctrate = 922337203685477.9", overflow);
        row("update jobs set jobreference = '" + QByteArray(256, 'a') + '\'', Unspecified, "too small");
    }

    void refusesOtherStatements()
    {
        m_folder->addClient("Anna");
        m_folder->run("insert into jobs (jobreference) values ('17')");
        const auto content = [&] { return m_folder->clients() + m_folder->rows("select * from jobs"); };
        const QStringList before = content();
        const values::RuntimeError error = catchError([&] { m_folder->run(cell("statement")); });
        QTEST(error.number(), "number");
        QVERIFY2(error.description().contains(cell("says")), qPrintable(error.description()));
        QCOMPARE(content(), before);
    }

    void sortsAndFindsWithoutCase()
    {
        const QStringList sorted{"10",     "adam",   "Anna",   "anna b", "ANNE", "Arnold",  "Ärzte",
                                 "D’Or",   "D'Or B", "D’Or C", "éa",     "Éb",   "O'Brien", "Obama",
                                 "Strauß", "zoe",    "Zoé",    "Борис",  "ваня"};
        for (qsizetype i = 0; i < sorted.size(); ++i)
            m_folder->addClient(QString(sorted[(i * 7) % sorted.size()]).replace("'", "''"));
        QCOMPARE(m_folder->clients("order by acctname"), sorted);
        QCOMPARE(m_folder->clients("order by jobacct.acctname desc,id"), QStringList(sorted.rbegin(), sorted.rend()));

        QList<qsizetype> found;
        for (const char* name :
             {"ANNA", "anne", "ÉA", "éB", "äRZTE", "БОРИС", "STRAUẞ", "Arzte", "ann", "Strauss", "Борис "})
            found << m_folder->clients(QString("where acctname = '%1'").arg(name)).size();
        QCOMPARE(found, QList<qsizetype>({1, 1, 1, 1, 1, 1, 1, 0, 0, 0, 0}));
    }

private:
    std::unique_ptr<ScratchFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestDialect)
#include "tst_dialect.moc"
