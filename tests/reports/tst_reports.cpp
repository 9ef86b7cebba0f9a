// Reports from the dialog to the workbook, which another program than ours reads back.
#include "reports/frmReport.h"
#include "reports/reportFile.h"

#include "office/suite.h"
#include "support/bench.h"
#include "support/files.h"
#include "support/find.h"

#include <QDir>
#include <QProcess>
#include <QProgressDialog>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace {

const QString noEntry = u"You must select from the list."_s;

const QString count = u"[$-409]#,##0"_s;
const QString lines = u"|[$-409]#,##0.00"_s;
const QString rate = u"|[$-409]\\$#,##0.00##;\"($\"#,##0.00##\\)"_s;
const QString amount = u"|[$-409]\\$#,##0.00;\"($\"#,##0.00\\)"_s;
const QString dateTime = u"[$-409]m/d/yyyy\\ h:mm:ss\\ AM/PM"_s;

/// The dialog over the sample data, in a program folder with the template workbook.
struct Reports : Bench {
    explicit Reports(const QStringList& statements = {})
    {
        for (const QString& statement : statements)
            folder.run(statement);
        QDir(folder.path()).mkpath(u"reports"_s);
        QDir(folder.path()).mkpath(u"templates"_s);
        QVERIFY(
            QFile::copy(QStringLiteral(STAGED_TEMPLATES "/Report.xls"), folder.path() + u"/templates/Report.xls"_s));
        form.emplace(nullptr);
        form->show();
    }

    QStringList made() const
    {
        return QDir(folder.path() + u"/reports"_s).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    /// Ticks, chooses, has the report made and saved; what is said of it beside that.
    void create(const QStringList& clicks, const char* combo, const QString& entry, const QString& said = {})
    {
        answers.expectBox(u"Save"_s);
        if (!said.isEmpty())
            answers.expectBox(said);
        for (const QString& control : clicks)
            ::click(*form, control.toLatin1().constData());
        choose(*form, combo, entry);
        ::click(*form, "cmdProcess");
    }

    QString read(const QString& name) const
    {
        QProcess reader;
        reader.start(u"/usr/bin/python3"_s,
                     {QStringLiteral(WORKBOOK_READER), folder.path() + u"/reports/"_s + name, u"Report"_s});
        reader.waitForFinished();
        return QString::fromUtf8(reader.readAllStandardOutput() + reader.readAllStandardError());
    }

    std::optional<reports::frmReport> form;
};

QString enabled(const QWidget& form)
{
    QStringList names;
    for (const char* name : {"cmbClientSumm", "cmbAcctSumm", "cmbClientDet", "cmbAcctDet", "frInclude", "txtPrint"}) {
        if (find<QWidget>(form, name).isEnabled())
            names << QLatin1String(name);
    }
    return names.join(u' ');
}

} // namespace

class TestReports : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { office::endSuite(); }

    void fileNames()
    {
        const auto name = [](const QString& title) { return reports::reportFileName(title, {2004, 8, 20}); };
        QCOMPARE(name(u"Zed Clinic"_s), u"Zed Clinic_0820.xls"_s);
        QCOMPARE(name(u"..x/\\:*?\"<>|\n\x7F"_s), u"_.x____________0820.xls"_s);
        QCOMPARE(name(QString(300, u'x')), QString(191, u'x') + u"_0820.xls"_s);
        QCOMPARE(name(QString(300, u'ü')), QString(95, u'ü') + u"_0820.xls"_s);
    }

    void designedState()
    {
        Reports bench;
        QCOMPARE(shown(*bench.form, "txtPrint"), u"1"_s);
        QCOMPARE(entries(*bench.form, "cmbClientDet"), (QStringList{u"Zed Clinic"_s, u"Adams"_s, u"Brown"_s}));
        QCOMPARE(enabled(*bench.form), u"cmbClientSumm cmbAcctSumm"_s);
        choose(*bench.form, "cmbAcctSumm", u"Letters"_s);
        QVERIFY(find<QAbstractButton>(*bench.form, "optAcct_0").isChecked());
        click(*bench.form, "optPrintSave");
        click(*bench.form, "optDetail");
        QCOMPARE(enabled(*bench.form), u"cmbClientDet cmbAcctDet frInclude txtPrint"_s);
        click(*bench.form, "optPrint");
        QCOMPARE(enabled(*bench.form), u"cmbClientDet cmbAcctDet frInclude"_s);
        click(*bench.form, "cmdCancel");
        QVERIFY(!bench.form->isVisible());
    }

    void refuses()
    {
        Reports bench;
        const auto refuse = [&](const QStringList& boxes) {
            for (const QString& text : boxes)
                bench.answers.expectBox(text);
            click(*bench.form, "cmdProcess");
            QCOMPARE(bench.answers.differences(), QStringList());
        };
        click(*bench.form, "optDetail");
        click(*bench.form, "optAcct_1");
        refuse({noEntry});
        QCOMPARE(bench.form->focusWidget()->objectName(), u"cmbAcctDet"_s);
        choose(*bench.form, "cmbClientDet", u"Brown"_s);
        click(*bench.form, "optPrintSave");
        for (const char* copies : {"", "x", "0", "100", "1.5", "-1"}) {
            find<QLineEdit>(*bench.form, "txtPrint").setText(QLatin1String(copies));
            refuse({u"Please enter a number ONLY."_s});
            QCOMPARE(bench.form->focusWidget()->objectName(), u"txtPrint"_s);
        }
        click(*bench.form, "optSave");
        refuse({u"Save"_s, u"The search criteria you enter returned no results."_s});
        click(*bench.form, "optSummary");
        refuse({noEntry});
        QCOMPARE(bench.made(), QStringList());
        QVERIFY(bench.form->isVisible());
    }

    // A job without a reference is none that is counted, but its money is.
    void summary()
    {
        Reports bench({u"insert into jobs(jobdate,jobacctid,jobtypeid,joblines)values(#8/9/2004#,1,2,1.5)"_s});
        bench.create({u"optRange_2"_s, u"optSave"_s}, "cmbClientSumm", u"Zed Clinic"_s);
        QCOMPARE(bench.made(), QStringList(u"Zed Clinic Summary_0818.xls"_s));
        QCOMPARE(bench.read(bench.made().first()),
                 u"\"Zed Clinic Summary Report\"||\n\"Period: 8/1/2004 - 8/31/2004\"||\n"
                 "|\"Job Count\"|\"Total Jobs\"\n|4|18.75\n"_s +
                     u"@|"_s + count + amount + u"\nbold [1, 3]\n"_s);
    }

    // What the workbooks say of two thousand jobs is what the jobs come to one by one.
    void agreesWithTheData()
    {
        QRandomGenerator random(20040818);
        QString jobs = u"BEGIN;DELETE FROM jobs;"_s;
        double expected = 0;
        int expectedCount = 0;
        for (int i = 0; i < 2000; ++i) {
            const int type = random.bounded(1, 4);
            const QDate day = QDate(2004, 7, 25).addDays(random.bounded(45));
            const double joblines = random.bounded(100'000) / 100.0;
            if (day.month() == 8 && i % 2 == 0) {
                expected += joblines * (type == 1 ? 0.12 : type == 2 ? 4.5 : 30);
                ++expectedCount;
            }
            jobs += u"INSERT INTO jobs(jobdate,jobacctid,jobtypeid,jobreference,joblines)"
                    "VALUES('%1 00:00:00',%2,%3,'R',%4);"_s.arg(day.toString(Qt::ISODate))
                        .arg(1 + i % 2)
                        .arg(type)
                        .arg(joblines);
        }
        Reports bench;
        store::Connection(modMain::DBConnString).runNative((jobs + u"COMMIT"_s).toUtf8().constData());
        bench.create({u"optRange_2"_s, u"optSave"_s}, "cmbClientSumm", u"Zed Clinic"_s);
        const QString summary = bench.read(u"Zed Clinic Summary_0818.xls"_s).section(u'\n', 3, 3);
        QCOMPARE(summary.section(u'|', 1, 1).toInt(), expectedCount);
        QVERIFY(qAbs(summary.section(u'|', 2, 2).toDouble() - expected) < 1e-6);
        bench.create({u"optDetail"_s, u"chkTotal"_s}, "cmbClientDet", u"Zed Clinic"_s);
        const QStringList rows = bench.read(u"Zed Clinic Detail_0818.xls"_s).split(u'\n').filter(u"\"R\"|"_s);
        double sum = 0;
        for (const QString& row : rows)
            sum += row.section(u'|', 1, 1).toDouble();
        QCOMPARE(rows.size(), expectedCount);
        QVERIFY(qAbs(sum - expected) < 1e-6);
    }

    // Every value as what it is, whatever it begins with; what is null stays empty.
    void detail()
    {
        Reports bench({u"update jobacct set acctname='=\"Größe\" & +Co/KG' where id=1"_s,
                       u"insert into jobs(jobdate,jobacctid,jobtypeid,jobreference,joblines,joblength,jobuploaded)"
                       "values(#8/18/2004#,1,2,'=1+1',5000000,'@sum','8/19/2004')"_s,
                       u"insert into jobs(jobdate,jobacctid,jobtypeid,jobreference,jobstart,joblength)"
                       "values(#8/18/2004#,1,2,'007',#8/18/2004 2:05 PM#,'-')"_s});
        bench.create({u"optDetail"_s, u"chkChar"_s, u"chkLine"_s, u"chkRate"_s, u"chkTotal"_s, u"chkStart"_s,
                      u"chkLength"_s, u"chkSubmitted"_s, u"optSave"_s},
                     "cmbClientDet", u"=\"Größe\" & +Co/KG"_s);
        QCOMPARE(bench.read(u"=_Größe_ & +Co_KG Detail_0818.xls"_s),
                 u"\"=\"Größe\" & +Co/KG Detail Report\"|||||||\n\"Period: 8/18/2004\"|||||||\n"
                 "\"Reference ID\"|\"Char #\"|\"Lines\"|\"Rate\"|\"Job Total\"|\"Job Start\"|\"Job Length\"|"
                 "\"Submitted\"\n"
                 "\"R\"|6500|100|0.12|12|8/18/2004 8:05:30|\"1:5:7\"|\".\"\n"
                 "\"=1+1\"|0|5000000|4.5|22500000||\"@sum\"|\"8/19/2004\"\n"
                 "\"007\"|0|0|4.5|0|8/18/2004 14:05:00|\"-\"|\".\"\n"_s +
                     u"@|"_s + count + lines + rate + amount + u"|"_s + dateTime + u"|@|@\nbold [1, 3]\n"_s);
    }

    void totalHeading()
    {
        Reports bench;
        bench.create({u"optDetail"_s, u"optAcct_1"_s, u"chkTotal"_s, u"optSave"_s}, "cmbAcctDet", u"Letters"_s);
        QVERIFY(bench.read(u"Letters Detail_0818.xls"_s).contains(u"\"Reference ID\"|\"Total\"\n\"R\"|4.5\n@|"_s));
    }

    void faults()
    {
        Reports bench;
        const auto fail = [&](const QString& missing, const QString& runTimeError) {
            const QString path = bench.folder.path() + missing;
            QVERIFY(QFile::rename(path, bench.folder.path() + u"/moved"_s));
            bench.expectedEnds << EXIT_FAILURE;
            bench.create({u"optSave"_s}, "cmbClientSumm", u"Adams"_s, runTimeError);
            QVERIFY(QFile::rename(bench.folder.path() + u"/moved"_s, path));
            QCOMPARE(bench.made(), QStringList());
        };
        fail(u"/templates/Report.xls"_s, u"Run-time error '53':\n\nFile not found"_s);
        fail(u"/reports"_s, u"Run-time error '76':\n\nPath not found"_s);
    }

    // More rows than a workbook of this kind holds are refused before anything is written; a long report can be
    // cancelled, and then leaves the earlier one as it was.
    void longReports()
    {
        Reports bench;
        bench.folder.run(u"delete from jobs"_s);
        store::Connection(modMain::DBConnString)
            .runNative(
                "INSERT INTO jobs(jobdate,jobacctid,jobtypeid,jobreference) WITH RECURSIVE n(i) AS (SELECT 1 UNION "
                "ALL SELECT i+1 FROM n WHERE i<65534) SELECT '2004-08-18 00:00:00',1,1,'R'||i FROM n");
        bench.create({u"optDetail"_s, u"optSave"_s}, "cmbClientDet", u"Zed Clinic"_s,
                     u"The report would have 65534 rows, and a workbook holds 65533. Choose a shorter period."_s);
        QCOMPARE(bench.made(), QStringList());
        bench.folder.run(u"delete from jobs where id=100"_s);
        const QString report = bench.folder.path() + u"/reports/Zed Clinic Detail_0818.xls"_s;
        writeFile(report, "earlier");
        bench.answers.expectBox(u"Save"_s);
        QTimer cancel;
        connect(&cancel, &QTimer::timeout, &cancel, [] {
            if (auto* progress = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget()))
                QTest::keyClick(progress, Qt::Key_Escape);
        });
        cancel.start(20);
        for (const char* field : {"chkChar", "chkLine", "chkRate", "chkTotal"})
            click(*bench.form, field);
        click(*bench.form, "cmdProcess");
        cancel.stop();
        QCOMPARE(bench.made(), QStringList(u"Zed Clinic Detail_0818.xls"_s));
        QCOMPARE(contentOf(report), "earlier");
        bench.answers.expectBox(u"Save"_s);
        click(*bench.form, "cmdProcess");
        const QStringList rows = bench.read(u"Zed Clinic Detail_0818.xls"_s).split(u'\n');
        QVERIFY(rows.value(2003).startsWith(u"\"R2002\"|0|0|0.12|0"));
        QVERIFY(rows.value(65535).startsWith(u"\"R65534\"|") && rows.value(65536).startsWith(u'@'));
    }
};

QTEST_MAIN(TestReports)
#include "tst_reports.moc"
