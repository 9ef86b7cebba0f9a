// Reports in the real window with the real office suite: opened, printed by a real queue, saved.
#include "journey.h"
#include "printed.h"

#include "values/clock.h"
#include "values/dates.h"

#include <QDir>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

const char* const people[] = {"Riverside Clinic", "Dr. Amelia Ortiz-Hernández"};

} // namespace

class ReportTour : public Journey {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void printAndSave();
    void printOnly();
    void openToEdit();
    void cleanupTestCase() { m_window->close(); }

private:
    /// Presses "Create Report" and agrees to the word that tells what becomes of it.
    void create(const QString& word);
    void chooseFirst(const QString& combo);
    void closeDialog();
    QStringList saved() const { return QDir(m_folder.path() + "/reports").entryList(QDir::Files); }
};

void ReportTour::initTestCase()
{
    QVERIFY(QDir(m_folder.path()).mkpath("templates") && QDir(m_folder.path()).mkpath("reports"));
    QVERIFY(QFile::copy(STAGED_TEMPLATES "/Report.xls", m_folder.path() + "/templates/Report.xls"));
    for (const char* name : people)
        m_folder.run(u"insert into jobacct(acctname)values('%1')"_s.arg(QString::fromUtf8(name)));
    m_folder.run("insert into accttype(acctid,accttype,acctrate,acctcharline,acctunit)"
                 "values(1,'Progress notes',0.085,65,'Line')");
    const QString today = values::dateText(values::dateTime(values::today()));
    for (int i = 1; i <= 70; ++i)
        m_folder.run(u"insert into jobs(jobdate,jobacctid,jobtypeid,jobreference,jobchar,joblines,jobstart,"
                     "joblength,jobuploaded)values(#%1#,1,1,'MR-%2',%3,%4,#%1 8:%5#,'0:%6:12','%7')"_s.arg(today)
                         .arg(4100 + i)
                         .arg(i * 731)
                         .arg(i * 731 / 65.0)
                         .arg(i % 60, 2, 10, QLatin1Char('0'))
                         .arg(i % 60)
                         .arg(i % 3 ? today + " 17:00" : "."));
    QVERIFY(start(m_folder.path()));
}

void ReportTour::create(const QString& word)
{
    m_user->click("cmdProcess");
    m_user->waitForWindow(word);
    m_user->press("Return");
}

void ReportTour::chooseFirst(const QString& combo)
{
    m_user->click(combo);
    m_user->press("Home");
    m_user->press("Return");
}

// A report in the making is waited for.
void ReportTour::closeDialog()
{
    m_user->waitForWindow("frmReport", 30'000);
    m_user->press("Escape");
    m_user->waitForNoWindow();
}

void ReportTour::printAndSave()
{
    QVERIFY(play([&] {
        m_user->press("F4");
        m_user->waitForWindow("frmReport");
        m_user->takePicture("report-manager-new");
        m_user->click("optDetail");
        for (const char* field : {"chkChar", "chkLine", "chkRate", "chkTotal", "chkStart", "chkLength", "chkSubmitted"})
            m_user->click(QLatin1String(field));
        m_user->press("alt+n");
        chooseFirst("cmbClientDet");
        m_user->waitForText("cmbClientDet", QString::fromUtf8(people[0]));
        m_user->click("txtPrint");
        m_user->type("3");
        m_user->takePicture("report-manager");
        create("Both");
        m_user->waitFor(
            "the saved report", [&] { return !saved().isEmpty(); }, 30'000);
        closeDialog();
    }));
    QCOMPARE(saved(), QStringList(u"Riverside Clinic Detail_%1.xls"_s.arg(values::today().toString("MMdd"))));
    const QString printed = takePrinted(TOUR_FOLDER "/report-printed");
    QVERIFY2(printed.startsWith("Riverside Clinic Detail Report"), qPrintable(printed));
    QVERIFY2(printed.contains("Page 1 of 2"), qPrintable(printed));
    // The headings stand on both pages.
    QCOMPARE(printed.count("Reference ID"), 2);
    QCOMPARE(lastPages(), 3 * 2);
}

void ReportTour::printOnly()
{
    QVERIFY(play([&] {
        m_user->press("F4");
        m_user->waitForWindow("frmReport");
        m_user->click("optRange_2");
        m_user->click("optPrint");
        m_user->click("cmdProcess");
        m_user->waitForWindow("You must select from the list.");
        m_user->takePicture("report-no-entry");
        m_user->press("Return");
        chooseFirst("cmbClientSumm");
        create("Print");
        closeDialog();
    }));
    const QString printed = takePrinted(TOUR_FOLDER "/report-printed-summary");
    QVERIFY2(printed.contains("Riverside Clinic Summary Report"), qPrintable(printed));
    QCOMPARE(lastPages(), 1);
    QCOMPARE(saved().size(), 1);
}

void ReportTour::openToEdit()
{
    QVERIFY(play([&] {
        m_user->press("F4");
        m_user->waitForWindow("frmReport");
        chooseFirst("cmbAcctSumm");
        create("Open");
        QVERIFY(waitForOtherWindow("Untitled"));
        // Until the sheet is painted.
        QThread::sleep(1);
        m_user->takePictureOfDisplay("report-open");
        QVERIFY(closeOtherWindow("Untitled"));
        m_user->click("cmdCancel");
        m_user->waitForNoWindow();
    }));
    QCOMPARE(saved().size(), 1);
}

int main(int argc, char* argv[])
{
    return runJourney<ReportTour>(argc, argv);
}

#include "tst_reportTour.moc"
