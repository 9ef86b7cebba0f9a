// Reports from the dialog to the workbook, which another program reads back.
#include "reports/frmReport.h"
#include "reports/reportFile.h"

#include "support/bench.h"
#include "support/files.h"

#include <QDir>
#include <QProcess>
#include <QProgressDialog>

using namespace Qt::StringLiterals;

namespace {

/// The dialog over the sample data, in a program folder with the template workbook.
struct Reports : Bench {
    explicit Reports(const QStringList& statements = {})
    {
        for (const QString& statement : statements)
            folder.run(statement);
        QDir(folder.path()).mkpath("reports");
        QDir(folder.path()).mkpath("templates");
        QVERIFY(QFile::copy(STAGED_TEMPLATES "/Report.xls", folder.path() + "/templates/Report.xls"));
        form.emplace(nullptr);
        form->show();
    }

    QStringList savedFiles() const
    {
        return QDir(folder.path() + "/reports").entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    /// Presses "Create Report", which must bring these boxes.
    void process(const QStringList& boxes)
    {
        for (const QString& text : boxes)
            answers.expectBox(text);
        click(*form, "cmdProcess");
    }

    /// Clicks, chooses, and has the report made and saved.
    void create(const QStringList& clicks, const char* combo, const QString& entry)
    {
        for (const QString& control : clicks)
            click(*form, qPrintable(control));
        choose(*form, combo, entry);
        process({"Save"});
    }

    QString read(const QString& name) const
    {
        QProcess reader;
        reader.start("/usr/bin/python3", {WORKBOOK_READER, folder.path() + "/reports/" + name, "Report"});
        reader.waitForFinished();
        return QString::fromUtf8(reader.readAllStandardOutput() + reader.readAllStandardError());
    }

    std::optional<reports::frmReport> form;
};

} // namespace

class TestReports : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void namesFiles()
    {
        const QDate day(2004, 8, 20);
        QCOMPARE(reports::reportFileName("..x/\\:*?\"<>|\n\x7F", day), "_.x____________0820.xls");
        QCOMPARE(reports::reportFileName(QString(300, u'ü'), day), QString(95, u'ü') + "_0820.xls");
    }

    void enablesWhatIsChosen()
    {
        Reports bench;
        QCOMPARE(entries(*bench.form, "cmbClientDet"), (QStringList{"Zed Clinic", "Adams", "Brown"}));
        choose(*bench.form, "cmbAcctSumm", "Letters");
        QVERIFY(find<QAbstractButton>(*bench.form, "optAcct_0").isChecked());
        const auto isEnabled = [&](const char* name) { return find<QWidget>(*bench.form, name).isEnabled(); };
        QVERIFY(!isEnabled("cmbClientDet") && !isEnabled("frInclude") && !isEnabled("txtPrint"));
        click(*bench.form, "optDetail");
        click(*bench.form, "optPrintSave");
        QVERIFY(!isEnabled("cmbClientSumm") && isEnabled("frInclude") && isEnabled("txtPrint"));
    }

    void refuses()
    {
        Reports bench;
        click(*bench.form, "optDetail");
        click(*bench.form, "optAcct_1");
        bench.process({"You must select from the list."});
        QCOMPARE(bench.form->focusWidget()->objectName(), "cmbAcctDet");
        choose(*bench.form, "cmbClientDet", "Brown");
        click(*bench.form, "optPrintSave");
        for (const char* copies : {"", "x", "0", "100", "1.5", "-1"}) {
            find<QLineEdit>(*bench.form, "txtPrint").setText(QLatin1String(copies));
            bench.process({"Please enter a number ONLY."});
            QCOMPARE(bench.form->focusWidget()->objectName(), "txtPrint");
        }
        click(*bench.form, "optSave");
        bench.process({"Save", "The search criteria you enter returned no results."});
        click(*bench.form, "optSummary");
        bench.process({"You must select from the list."});
        QCOMPARE(bench.savedFiles(), QStringList());
        QVERIFY(bench.form->isVisible());
    }

    // A job without a reference is not counted, but its amount is added.
    void reportsTotals()
    {
        Reports bench({"insert into jobs(jobdate,jobacctid,jobtypeid,joblines)values(#8/9/2004#,1,2,1.5)"});
        bench.create({"optRange_2", "optSave"}, "cmbClientSumm", "Zed Clinic");
        QCOMPARE(bench.read("Zed Clinic Summary_0818.xls"),
                 "\"Zed Clinic Summary Report\"||\n\"Period: 8/1/2004 - 8/31/2004\"||\n"
                 "|\"Job Count\"|\"Total Jobs\"\n|4|18.75\n"
                 "@|[$-409]#,##0|[$-409]\\$#,##0.00;\"($\"#,##0.00\\)\nbold [1, 3]\n");
        bench.create({"optDetail", "optAcct_1", "chkTotal"}, "cmbAcctDet", "Letters");
        const QString rows = bench.read("Letters Detail_0818.xls");
        QVERIFY2(rows.contains("\n\"Reference ID\"|\"Total\"\n"), qPrintable(rows));
        for (const char* row : {"\n|6.75\n", "\n\"R\"|4.5\n", "\n\"R\"|0\n"})
            QCOMPARE(rows.count(row), 1);
    }

    // Texts stay texts, whatever they begin with, and nulls stay empty.
    void reportsDetails()
    {
        Reports bench({"update jobacct set acctname='=\"Größe\" & +Co/KG' where id=1",
                       u"insert into jobs(jobdate,jobacctid,jobtypeid,jobreference,joblines,joblength,jobuploaded)"
                       "values(#8/18/2004#,1,2,'=1+1',5000000,'@sum','8/19/2004')"_s,
                       u"insert into jobs(jobdate,jobacctid,jobtypeid,jobreference,jobstart,joblength)"
                       "values(#8/18/2004#,1,2,'007',#8/18/2004 2:05 PM#,'-')"_s});
        bench.create({"optDetail", "chkChar", "chkLine", "chkRate", "chkTotal", "chkStart", "chkLength", "chkSubmitted",
                      "optSave"},
                     "cmbClientDet", "=\"Größe\" & +Co/KG");
        QCOMPARE(bench.read("=_Größe_ & +Co_KG Detail_0818.xls"),
                 "\"=\"Größe\" & +Co/KG Detail Report\"|||||||\n\"Period: 8/18/2004\"|||||||\n"
                 "\"Reference ID\"|\"Char #\"|\"Lines\"|\"Rate\"|\"Job Total\"|\"Job Start\"|\"Job Length\"|"
                 "\"Submitted\"\n"
                 "\"R\"|6500|100|0.12|12|8/18/2004 8:05:30|\"1:5:7\"|\".\"\n"
                 "\"=1+1\"|0|5000000|4.5|22500000||\"@sum\"|\"8/19/2004\"\n"
                 "\"007\"|0|0|4.5|0|8/18/2004 14:05:00|\"-\"|\".\"\n"
                 "@|[$-409]#,##0|[$-409]General|[$-409]\\$#,##0.00##;\"($\"#,##0.00##\\)|"
                 "[$-409]\\$#,##0.00;\"($\"#,##0.00\\)|[$-409]m/d/yyyy\\ h:mm:ss\\ AM/PM|@|@\nbold [1, 3]\n");
    }

    // More rows than such a workbook can hold are refused before anything is written. A long report can be cancelled,
    // and the earlier one then stays unchanged.
    void refusesAndCancelsLongReports()
    {
        Reports bench;
        bench.folder.run("delete from jobs");
        store::Connection(modMain::DBConnString)
            .runNative(
                "INSERT INTO jobs(jobdate,jobacctid,jobtypeid,jobreference) WITH RECURSIVE n(i) AS (SELECT 1 UNION "
                "ALL SELECT i+1 FROM n WHERE i<65534) SELECT '2004-08-18 00:00:00',1,1,'R'||i FROM n");
        for (const char* choice : {"optDetail", "optSave", "chkChar", "chkLine", "chkRate", "chkTotal"})
            click(*bench.form, choice);
        choose(*bench.form, "cmbClientDet", "Zed Clinic");
        bench.process(
            {"Save", "The report would have 65534 rows, and a workbook holds 65533. Choose a shorter period."});
        QCOMPARE(bench.savedFiles(), QStringList());
        bench.folder.run("delete from jobs where id=100");
        const QString report = bench.folder.path() + "/reports/Zed Clinic Detail_0818.xls";
        writeFile(report, "earlier");
        QTimer cancel;
        cancel.callOnTimeout([] {
            if (auto* progress = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget()))
                QTest::keyClick(progress, Qt::Key_Escape);
        });
        cancel.start(20);
        bench.process({"Save"});
        cancel.stop();
        QCOMPARE(bench.savedFiles(), QStringList("Zed Clinic Detail_0818.xls"));
        QCOMPARE(readFile(report), "earlier");
        bench.process({"Save"});
        const QStringList rows = bench.read("Zed Clinic Detail_0818.xls").split('\n');
        QVERIFY(rows.value(2003).startsWith("\"R2002\"|0|0|0.12|0"));
        QVERIFY(rows.value(65535).startsWith("\"R65534\"|") && rows.value(65536).startsWith('@'));
    }
};

QTEST_MAIN(TestReports)
#include "tst_reports.moc"
