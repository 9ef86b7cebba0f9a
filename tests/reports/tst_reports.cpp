// Reports from the dialog to the workbook, which another program than ours reads back.
#include "reports/frmReport.h"
#include "reports/reportFile.h"

#include "office/suite.h"
#include "support/bench.h"
#include "support/errorOf.h"
#include "support/find.h"

#include <QDir>
#include <QProcess>
#include <QProgressDialog>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;
using reports::Field;

namespace {

const QString noEntry = u"You must select from the list."_s;
const QString noRows = u"The search criteria you enter returned no results."_s;
const QString noNumber = u"Please enter a number ONLY."_s;
const QString fromJobs = u" from jobs,accttype where jobs.jobtypeid=accttype.id"_s;

const QString bold = u"|bold"_s;
const QString plain = u"|plain"_s;
const QString count = u"[$-409]#,##0"_s;
const QString lines = u"[$-409]#,##0.00"_s;
const QString rate = u"[$-409]\\$#,##0.00##;\"($\"#,##0.00##\\)"_s;
const QString amount = u"[$-409]\\$#,##0.00;\"($\"#,##0.00\\)"_s;
const QString dateTime = u"[$-409]m/d/yyyy\\ h:mm:ss\\ AM/PM"_s;

/// The dialog over the sample data, in a program folder with the template workbook.
struct Reports : Bench {
    Reports()
    {
        QDir(folder.path()).mkpath(u"reports"_s);
        QDir(folder.path()).mkpath(u"templates"_s);
        QVERIFY(QFile::copy(QStringLiteral(STAGED_TEMPLATES "/Report.xls"), templateFile()));
        form = std::make_unique<reports::frmReport>(nullptr);
        form->show();
    }

    QString templateFile() const { return folder.path() + u"/templates/Report.xls"_s; }
    QStringList made() const
    {
        return QDir(folder.path() + u"/reports"_s).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    /// Ticks, chooses and presses "Create Report".
    void create(const QStringList& clicks, const char* combo, const QString& entry)
    {
        for (const QString& control : clicks)
            ::click(*form, control.toLatin1().constData());
        if (!entry.isEmpty())
            choose(*form, combo, entry);
        ::click(*form, "cmdProcess");
    }

    QStringList cells(const QString& name) const
    {
        QProcess reader;
        reader.start(u"/usr/bin/python3"_s,
                     {QStringLiteral(WORKBOOK_READER), folder.path() + u"/reports/"_s + name, u"Report"_s});
        reader.waitForFinished();
        return QString::fromUtf8(reader.readAllStandardOutput() + reader.readAllStandardError())
            .split(u'\n', Qt::SkipEmptyParts);
    }

    std::unique_ptr<reports::frmReport> form;
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

    void statements()
    {
        const values::PeriodChoice day{values::Range::Other, {}, {}, {2004, 2, 29}};
        const values::PeriodChoice days{values::Range::FromTo, {2004, 9, 30}, {2004, 9, 1}, {}};
        const reports::Subject client{reports::Subject::Kind::Client, 3};
        const reports::Subject type{reports::Subject::Kind::Type, 7};
        QCOMPARE(reports::selectSummary(day, client),
                 u"SELECT count(jobs.jobreference),sum(jobs.joblines * accttype.acctrate) "_s + fromJobs +
                     u" AND jobdate=#2/29/2004# AND jobs.jobacctid=3"_s);
        values::setClock([] { return values::dateTime(QDate(2004, 2, 29)); });
        QCOMPARE(reports::selectDetail({values::Range::Today, {}, {}, {}}, type, {}),
                 u"SELECT jobs.jobreference"_s + fromJobs + u" AND jobs.jobdate=#2/29/2004# AND jobs.jobtypeid=7"_s);
        values::setClock({});
        QCOMPARE(reports::selectDetail(days, type,
                                       {Field::Characters, Field::Lines, Field::Rate, Field::Total, Field::Start,
                                        Field::Length, Field::Submitted}),
                 u"SELECT jobs.jobreference,jobs.jobchar,jobs.joblines,accttype.acctrate,jobs.joblines * "
                 "accttype.acctrate,jobs.jobstart,jobs.joblength,jobs.jobuploaded"_s +
                     fromJobs + u" AND jobdate Between #9/30/2004# and #9/1/2004# AND jobs.jobtypeid=7"_s);
    }

    void fileNames_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("name");
        QTest::newRow("plain") << u"Zed Clinic Summary"_s << u"Zed Clinic Summary_0820.xls"_s;
        QTest::newRow("refused") << u"a/b\\c:d*e?f\"g<h>i|j\n\x7F"_s << u"a_b_c_d_e_f_g_h_i_j___0820.xls"_s;
        QTest::newRow("hidden") << u"..x"_s << u"_.x_0820.xls"_s;
        QTest::newRow("long") << QString(300, u'x') << QString(191, u'x') + u"_0820.xls"_s;
        QTest::newRow("long, two bytes each") << QString(300, u'ü') << QString(95, u'ü') + u"_0820.xls"_s;
    }
    void fileNames()
    {
        QFETCH(QString, title);
        QTEST(reports::reportFileName(title, {2004, 8, 20}), "name");
    }

    void designedState()
    {
        Reports bench;
        for (const char* option : {"optSummary", "optClient_0", "optClient_1", "optRange_0", "optOpen"})
            QVERIFY2(find<QAbstractButton>(*bench.form, option).isChecked(), option);
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

    void refuses_data()
    {
        QTest::addColumn<QStringList>("clicks");
        QTest::addColumn<QString>("client");
        QTest::addColumn<QString>("copies");
        QTest::addColumn<QStringList>("boxes");
        const QStringList saved{u"optDetail"_s, u"optSave"_s};
        const QStringList both{u"optDetail"_s, u"optPrintSave"_s};
        QTest::newRow("no entry") << saved << QString() << u"1"_s << QStringList{noEntry};
        QTest::newRow("no entry of the type")
            << saved + QStringList{u"optAcct_1"_s} << QString() << u"1"_s << QStringList{noEntry};
        QTest::newRow("no rows") << saved << u"Brown"_s << u"x"_s << QStringList{u"Save"_s, noRows};
        for (const char* copies : {"", "x", "0", "100", "1.5", "-1"})
            QTest::addRow("copies %s", copies)
                << both << u"Adams"_s << QString::fromLatin1(copies) << QStringList{noNumber};
    }
    void refuses()
    {
        QFETCH(QStringList, clicks);
        QFETCH(QString, client);
        QFETCH(QString, copies);
        QFETCH(QStringList, boxes);
        Reports bench;
        find<QLineEdit>(*bench.form, "txtPrint").setText(copies);
        for (const QString& text : boxes)
            bench.answers.expectBox(text);
        bench.create(clicks, "cmbClientDet", client);
        QCOMPARE(bench.made(), QStringList());
        QCOMPARE(bench.form->focusWidget() == &find<QWidget>(*bench.form, "txtPrint"), boxes.contains(noNumber));
        QVERIFY(bench.form->isVisible());
    }

    void summary()
    {
        Reports bench;
        bench.answers.expectBox(u"Save"_s);
        bench.create({u"optRange_2"_s, u"optSave"_s}, "cmbClientSumm", u"Zed Clinic"_s);
        QCOMPARE(bench.made(), QStringList(u"Zed Clinic Summary_0818.xls"_s));
        QCOMPARE(bench.cells(bench.made().first()),
                 (QStringList{u"A1|text|Zed Clinic Summary Report|@|bold"_s,
                              u"A2|text|Period: 8/1/2004 - 8/31/2004|@|plain"_s, u"B3|text|Job Count|"_s + count + bold,
                              u"C3|text|Total Jobs|"_s + amount + bold, u"B4|number|4|"_s + count + plain,
                              u"C4|number|12|"_s + amount + plain}));
    }

    // Every value as what it is, whatever it begins with; what is null stays empty.
    void detail()
    {
        Reports bench;
        bench.folder.run(u"update jobacct set acctname='=\"Größe\" & +Co/KG' where id=1"_s);
        bench.folder.run(u"insert into jobs(jobdate,jobacctid,jobtypeid,jobreference,joblines,joblength,jobuploaded)"
                         "values(#8/18/2004#,1,2,'=1+1',5000000,'@sum','8/19/2004')"_s);
        bench.form = std::make_unique<reports::frmReport>(nullptr);
        bench.form->show();
        bench.answers.expectBox(u"Save"_s);
        bench.create({u"optDetail"_s, u"chkChar"_s, u"chkLine"_s, u"chkRate"_s, u"chkTotal"_s, u"chkStart"_s,
                      u"chkLength"_s, u"chkSubmitted"_s, u"optSave"_s},
                     "cmbClientDet", u"=\"Größe\" & +Co/KG"_s);
        QCOMPARE(bench.cells(u"=_Größe_ & +Co_KG Detail_0818.xls"_s),
                 (QStringList{u"A1|text|=\"Größe\" & +Co/KG Detail Report|@|bold"_s,
                              u"A2|text|Period: 8/18/2004|@|plain"_s,
                              u"A3|text|Reference ID|@|bold"_s,
                              u"B3|text|Char #|"_s + count + bold,
                              u"C3|text|Lines|"_s + lines + bold,
                              u"D3|text|Rate|"_s + rate + bold,
                              u"E3|text|Job Total|"_s + amount + bold,
                              u"F3|text|Job Start|"_s + dateTime + bold,
                              u"G3|text|Job Length|@|bold"_s,
                              u"H3|text|Submitted|@|bold"_s,
                              u"A4|text|R|@|plain"_s,
                              u"B4|number|6500|"_s + count + plain,
                              u"C4|number|100|"_s + lines + plain,
                              u"D4|number|0.12|"_s + rate + plain,
                              u"E4|number|12|"_s + amount + plain,
                              u"F4|date|8/18/2004 8:05:30|"_s + dateTime + plain,
                              u"G4|text|1:5:7|@|plain"_s,
                              u"H4|text|.|@|plain"_s,
                              u"A5|text|=1+1|@|plain"_s,
                              u"B5|number|0|"_s + count + plain,
                              u"C5|number|5000000|"_s + lines + plain,
                              u"D5|number|4.5|"_s + rate + plain,
                              u"E5|number|22500000|"_s + amount + plain,
                              u"G5|text|@sum|@|plain"_s,
                              u"H5|text|8/19/2004|@|plain"_s}));
    }

    void totalHeading()
    {
        Reports bench;
        bench.answers.expectBox(u"Save"_s);
        bench.create({u"optDetail"_s, u"optAcct_1"_s, u"chkTotal"_s, u"optSave"_s}, "cmbAcctDet", u"Letters"_s);
        const QStringList cells = bench.cells(u"Letters Detail_0818.xls"_s);
        QCOMPARE(cells.mid(2, 2), (QStringList{u"A3|text|Reference ID|@|bold"_s, u"B3|text|Total|"_s + amount + bold}));
        QCOMPARE(cells.mid(4), (QStringList{u"A4|text|R|@|plain"_s, u"B4|number|4.5|"_s + amount + plain}));
    }

    // What the workbooks say of two thousand jobs is what the data file says, summed here job by job.
    void agreesWithTheData()
    {
        Reports bench;
        bench.folder.run(u"delete from jobs"_s);
        QRandomGenerator random(20040818);
        QString jobs;
        double expected = 0;
        int expectedCount = 0;
        for (int i = 0; i < 2000; ++i) {
            const int type = random.bounded(1, 4);
            const QDate day = QDate(2004, 7, 25).addDays(random.bounded(45));
            const double joblines = random.bounded(100'000) / 100.0;
            const bool isCounted = day.month() == 8 && i % 2 == 0;
            expected += isCounted ? joblines * (type == 1 ? 0.12 : type == 2 ? 4.5 : 30) : 0;
            expectedCount += isCounted ? 1 : 0;
            jobs += u"INSERT INTO jobs(jobdate,jobacctid,jobtypeid,jobreference,joblines) VALUES('%1 "
                    "00:00:00',%2,%3,'R%4',%5);"_s.arg(day.toString(Qt::ISODate))
                        .arg(1 + i % 2)
                        .arg(type)
                        .arg(i)
                        .arg(joblines);
        }
        store::Connection(modMain::DBConnString).runNative(("BEGIN;" + jobs + "COMMIT;").toUtf8().constData());
        bench.answers.expectBox(u"Save"_s);
        bench.create({u"optRange_2"_s, u"optSave"_s}, "cmbClientSumm", u"Zed Clinic"_s);
        const QStringList summary = bench.cells(u"Zed Clinic Summary_0818.xls"_s);
        QCOMPARE(summary.value(4).section(u'|', 2, 2).toInt(), expectedCount);
        QVERIFY(qAbs(summary.value(5).section(u'|', 2, 2).toDouble() - expected) < 1e-6);
        bench.answers.expectBox(u"Save"_s);
        bench.create({u"optDetail"_s, u"chkTotal"_s}, "cmbClientDet", u"Zed Clinic"_s);
        double sum = 0;
        int rowCount = 0;
        for (const QString& cell : bench.cells(u"Zed Clinic Detail_0818.xls"_s).filter(u"|number|"_s)) {
            sum += cell.section(u'|', 2, 2).toDouble();
            ++rowCount;
        }
        QCOMPARE(rowCount, expectedCount);
        QVERIFY(qAbs(sum - expected) < 1e-6);
    }

    void faults_data()
    {
        QTest::addColumn<QString>("missing");
        QTest::addColumn<int>("number");
        QTest::addColumn<QByteArray>("description");
        QTest::newRow("no template") << u"templates/Report.xls"_s << 53 << "File not found"_ba;
        QTest::newRow("no reports folder") << u"reports"_s << 76 << "Path not found"_ba;
    }
    void faults()
    {
        QFETCH(QString, missing);
        QFETCH(int, number);
        QFETCH(QByteArray, description);
        Reports bench;
        const QString path = bench.folder.path() + u'/' + missing;
        QVERIFY(QFile::rename(path, bench.folder.path() + u"/moved"_s));
        bench.answers.expectBox(u"Save"_s);
        bench.expectEnd(number, description.constData());
        bench.create({u"optSave"_s}, "cmbClientSumm", u"Adams"_s);
        QCOMPARE(bench.made(), QStringList());
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
        bench.answers.expectBox(u"Save"_s);
        bench.answers.expectBox(
            u"The report would have 65534 rows, and a workbook holds 65533. Choose a shorter period."_s);
        bench.create({u"optDetail"_s, u"optSave"_s}, "cmbClientDet", u"Zed Clinic"_s);
        QCOMPARE(bench.made(), QStringList());
        bench.folder.run(u"delete from jobs where id=100"_s);
        QFile earlier(bench.folder.path() + u"/reports/Zed Clinic Detail_0818.xls"_s);
        QVERIFY(earlier.open(QIODevice::WriteOnly) && earlier.write("earlier") == 7);
        earlier.close();
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
        QCOMPARE(QFileInfo(earlier).size(), 7);
        bench.answers.expectBox(u"Save"_s);
        click(*bench.form, "cmdProcess");
        QVERIFY(bench.cells(u"Zed Clinic Detail_0818.xls"_s).contains(u"A65536|text|R65534|@|plain"_s));
    }
};

QTEST_MAIN(TestReports)
#include "tst_reports.moc"
