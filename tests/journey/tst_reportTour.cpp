// Reports in the real window with the real office suite: opened, printed by a real queue, saved.
#include "printed.h"
#include "user.h"

#include "app/start.h"
#include "support/scratchFolder.h"
#include "ui/eventGuard.h"
#include "values/clock.h"
#include "values/dates.h"

#include <QDir>
#include <QTest>
#include <QThread>

namespace {

const char* const people[] = {"Riverside Clinic", "Dr. Amelia Ortiz-Hernández"};

} // namespace

class ReportTour : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void printAndSave();
    void printOnly();
    void openToEdit();
    void cleanupTestCase() { m_window->close(); }

private:
    void play(const std::function<void()>& story) { QCOMPARE(m_user->play(story), QString()); }
    /// Presses "Create Report" and agrees to the word that tells what becomes of it.
    void create(const QString& word);
    void chooseFirst(const QString& combo);
    void closeDialog();
    QStringList saved() const { return QDir(m_folder.path() + QStringLiteral("/reports")).entryList(QDir::Files); }

    ScratchFolder m_folder;
    QList<int> m_ends;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<User> m_user;
};

void ReportTour::initTestCase()
{
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("templates")) &&
            QDir(m_folder.path()).mkpath(QStringLiteral("reports")));
    QVERIFY(QFile::copy(QStringLiteral(STAGED_TEMPLATES "/Report.xls"),
                        m_folder.path() + QStringLiteral("/templates/Report.xls")));
    for (const char* name : people)
        m_folder.run(QStringLiteral("insert into jobacct(acctname)values('%1')").arg(QString::fromUtf8(name)));
    m_folder.run(QStringLiteral("insert into accttype(acctid,accttype,acctrate,acctcharline,acctunit)"
                                "values(1,'Progress notes',0.085,65,'Line')"));
    const QString today = values::dateText(values::dateTime(values::today()));
    for (int i = 1; i <= 70; ++i)
        m_folder.run(
            QStringLiteral("insert into jobs(jobdate,jobacctid,jobtypeid,jobreference,jobchar,joblines,jobstart,"
                           "joblength,jobuploaded)values(#%1#,1,1,'MR-%2',%3,%4,#%1 8:%5#,'0:%6:12','%7')")
                .arg(today)
                .arg(4100 + i)
                .arg(i * 731)
                .arg(i * 731 / 65.0)
                .arg(i % 60, 2, 10, QLatin1Char('0'))
                .arg(i % 60)
                .arg(i % 3 ? today + QStringLiteral(" 17:00") : QStringLiteral(".")));
    m_user = std::make_unique<User>(QStringLiteral(TOUR_FOLDER));
    // The end of the program shall not be that of the test.
    ui::setProgramEnd([this](int code) { m_ends << code; });
    m_window = modMain::Main(m_folder.path());
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void ReportTour::create(const QString& word)
{
    m_user->click(QStringLiteral("cmdProcess"));
    m_user->waitForWindow(word);
    m_user->press(QStringLiteral("Return"));
}

void ReportTour::chooseFirst(const QString& combo)
{
    m_user->click(combo);
    m_user->press(QStringLiteral("Home"));
    m_user->press(QStringLiteral("Return"));
}

// A report in the making is waited for.
void ReportTour::closeDialog()
{
    m_user->waitForWindow(QStringLiteral("frmReport"), 30'000);
    m_user->press(QStringLiteral("Escape"));
    m_user->waitForNoWindow();
}

void ReportTour::printAndSave()
{
    play([&] {
        m_user->press(QStringLiteral("F4"));
        m_user->waitForWindow(QStringLiteral("frmReport"));
        m_user->takePicture(QStringLiteral("report-manager-new"));
        m_user->click(QStringLiteral("optDetail"));
        for (const char* field : {"chkChar", "chkLine", "chkRate", "chkTotal", "chkStart", "chkLength", "chkSubmitted"})
            m_user->click(QLatin1String(field));
        m_user->press(QStringLiteral("alt+n"));
        chooseFirst(QStringLiteral("cmbClientDet"));
        m_user->waitForText(QStringLiteral("cmbClientDet"), QString::fromUtf8(people[0]));
        m_user->click(QStringLiteral("txtPrint"));
        m_user->type(QStringLiteral("3"));
        m_user->takePicture(QStringLiteral("report-manager"));
        create(QStringLiteral("Both"));
        m_user->waitFor(
            QStringLiteral("the saved report"), [&] { return !saved().isEmpty(); }, 30'000);
        closeDialog();
    });
    QCOMPARE(
        saved(),
        QStringList(
            QStringLiteral("Riverside Clinic Detail_%1.xls").arg(values::today().toString(QStringLiteral("MMdd")))));
    const QString printed = takePrinted(QStringLiteral(TOUR_FOLDER "/report-printed"));
    QVERIFY2(printed.startsWith(QStringLiteral("Riverside Clinic Detail Report")), qPrintable(printed));
    QVERIFY2(printed.contains(QStringLiteral("Page 1 of 2")), qPrintable(printed));
    // The headings stand on both pages.
    QCOMPARE(printed.count(QStringLiteral("Reference ID")), 2);
    QCOMPARE(lastPages(), 3 * 2);
}

void ReportTour::printOnly()
{
    play([&] {
        m_user->press(QStringLiteral("F4"));
        m_user->waitForWindow(QStringLiteral("frmReport"));
        m_user->click(QStringLiteral("optRange_2"));
        m_user->click(QStringLiteral("optPrint"));
        m_user->click(QStringLiteral("cmdProcess"));
        m_user->waitForWindow(QStringLiteral("You must select from the list."));
        m_user->takePicture(QStringLiteral("report-no-entry"));
        m_user->press(QStringLiteral("Return"));
        chooseFirst(QStringLiteral("cmbClientSumm"));
        create(QStringLiteral("Print"));
        closeDialog();
    });
    const QString printed = takePrinted(QStringLiteral(TOUR_FOLDER "/report-printed-summary"));
    QVERIFY2(printed.contains(QStringLiteral("Riverside Clinic Summary Report")), qPrintable(printed));
    QCOMPARE(lastPages(), 1);
    QCOMPARE(saved().size(), 1);
}

void ReportTour::openToEdit()
{
    play([&] {
        m_user->press(QStringLiteral("F4"));
        m_user->waitForWindow(QStringLiteral("frmReport"));
        chooseFirst(QStringLiteral("cmbAcctSumm"));
        create(QStringLiteral("Open"));
        QVERIFY(waitForOtherWindow(QStringLiteral("Untitled")));
        // Until the sheet is painted.
        QThread::sleep(1);
        m_user->takePictureOfDisplay(QStringLiteral("report-open"));
        QVERIFY(closeOtherWindow(QStringLiteral("Untitled")));
        m_user->click(QStringLiteral("cmdCancel"));
        m_user->waitForNoWindow();
    });
    QCOMPARE(saved().size(), 1);
}

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    modMain::setApplicationLook();
    ReportTour tour;
    return QTest::qExec(&tour, argc, argv);
}

#include "tst_reportTour.moc"
