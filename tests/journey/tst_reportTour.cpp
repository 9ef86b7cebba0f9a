// Reports in the real window with the real office suite: opened, printed by a real queue, saved.
#include "journey.h"
#include "printed.h"

#include <QDir>

using namespace Qt::StringLiterals;

const QStringList people{"Riverside Clinic", "Dr. Amelia Ortiz-Hernández"};

class ReportTour : public Journey {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(QDir(m_folder.path()).mkpath("templates") && QDir(m_folder.path()).mkpath("reports"));
        QVERIFY(QFile::copy(STAGED_TEMPLATES "/Report.xls", m_folder.path() + "/templates/Report.xls"));
        for (const QString& name : people)
            storeClient(name);
        for (int i = 1; i <= 70; ++i)
            m_folder.run(u"insert into jobs(jobdate,jobacctid,jobtypeid,jobreference,jobchar,joblines,jobstart,"
                         "joblength,jobuploaded)values(#%1#,1,1,'MR-%2',%3,%4,#%1 8:%5#,'0:%6:12','%7')"_s.arg(today())
                             .arg(4100 + i)
                             .arg(i * 731)
                             .arg(i * 731 / 65.0)
                             .arg(i % 60, 2, 10, QLatin1Char('0'))
                             .arg(i % 60)
                             .arg(i % 3 ? today() + " 17:00" : "."));
        QVERIFY(start(m_folder.path()));
    }

    void printAndSave()
    {
        QVERIFY(play([&] {
            open("frmReport", "F4");
            takePicture("report-manager-new");
            click("optDetail");
            for (const char* field :
                 {"chkChar", "chkLine", "chkRate", "chkTotal", "chkStart", "chkLength", "chkSubmitted"})
                click(field);
            press("alt+n");
            chooseFirst("cmbClientDet");
            waitForText("cmbClientDet", people[0]);
            fill("txtPrint", "3");
            takePicture("report-manager");
            create("Both");
            waitFor(
                "the saved report", [&] { return !saved().isEmpty(); }, 30'000);
            closeDialog();
        }));
        QCOMPARE(saved(), QStringList(u"Riverside Clinic Detail_%1.xls"_s.arg(values::today().toString("MMdd"))));
        const QString printed = takePrinted(TOUR_FOLDER "/report-printed");
        QVERIFY2(printed.startsWith("Riverside Clinic Detail Report"), qPrintable(printed));
        QVERIFY2(printed.contains("Page 1 of 2"), qPrintable(printed));
        // The headings stand on both pages.
        QCOMPARE(printed.count("Reference ID"), 2);
        QCOMPARE(countLastPages(), 3 * 2);
    }

    void printOrOpenWithoutSaving()
    {
        QImage opened;
        QVERIFY(play([&] {
            open("frmReport", "F4");
            click("optRange_2");
            click("optPrint");
            click("cmdProcess");
            waitForWindow("You must select from the list.");
            takePicture("report-no-entry");
            press("Return");
            chooseFirst("cmbClientSumm");
            create("Print");
            closeDialog();
            open("frmReport", "F4");
            chooseFirst("cmbAcctSumm");
            create("Open");
            QVERIFY(waitForOtherWindow("Untitled"));
            opened = takePicture("report-open", Area::Display);
            QVERIFY(closeOtherWindow("Untitled"));
            click("cmdCancel");
            waitForNoWindow();
        }));
        const QString printed = takePrinted(TOUR_FOLDER "/report-printed-summary");
        QVERIFY2(printed.contains("Riverside Clinic Summary Report"), qPrintable(printed));
        QCOMPARE(countLastPages(), 1);
        QCOMPARE(saved().size(), 1);
        QVERIFY2(!hasBarOfMessages(opened), "the suite says something above the sheet");
    }

    void cleanupTestCase() { m_window->close(); }

private:
    /// Presses "Create Report" and confirms the box with this word.
    void create(const QString& word)
    {
        click("cmdProcess");
        answer(word);
    }

    /// Whether there is a bar of the suite's own, which is yellow.
    static bool hasBarOfMessages(const QImage& picture)
    {
        int height = 0;
        for (int y = 0; y < picture.height(); ++y) {
            const QColor middle = picture.pixelColor(picture.width() / 2, y);
            height += middle.lightness() > 200 && middle.hslHue() > 40 && middle.hslHue() < 60 &&
                      middle.hslSaturation() > 150;
        }
        return height > 10;
    }

    void chooseFirst(const QString& combo)
    {
        click(combo);
        press("Home Return");
    }

    // Waits for a report that is still being made.
    void closeDialog()
    {
        waitForWindow("frmReport", 30'000);
        leave();
    }

    QStringList saved() const { return QDir(m_folder.path() + "/reports").entryList(QDir::Files); }
};

JOURNEY_MAIN(ReportTour)
#include "tst_reportTour.moc"
