// Takes a picture of every window, full of a busy person's work, on the display and in the look of the environment. Not
// a test: scripts/gallery runs it for people to look at.
#include "journey.h"

#include "store/connection.h"
#include "store/connectionStrings.h"
#include "support/files.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

constexpr char busyYear[] = R"(
BEGIN;
INSERT INTO jobacct(acctname)
    WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 30)
    SELECT CASE i % 5 WHEN 0 THEN 'Riverside Orthopaedic Clinic and Associated Practices of the Northern Valley '
                      WHEN 1 THEN 'Dr. Obi & Partners ' WHEN 2 THEN 'Law Office Harbour Street '
                      WHEN 3 THEN 'Ärztehaus am Park ' ELSE 'Clinic ' END || i FROM n;
INSERT INTO accttype(acctid,accttype,acctrate,acctunit,acctcharline)
    WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 80)
    SELECT 1 + i % 30,
           CASE i % 4 WHEN 0 THEN 'Dictated letters and memoranda of the whole department ' WHEN 1 THEN 'Discharge summary '
                      WHEN 2 THEN 'Consultation ' ELSE 'Court records ' END || i,
           CASE i % 4 WHEN 0 THEN 32.5 WHEN 1 THEN 0.085 WHEN 2 THEN 4.5 ELSE 1234.5678 END,
           CASE i % 4 WHEN 0 THEN 'Hourly' WHEN 1 THEN 'Line' WHEN 2 THEN 'Report' ELSE 'Misc' END, 65 * (i % 4 = 1)
    FROM n;
INSERT INTO jobs(jobdate,jobacctid,jobtypeid,jobreference,jobstart,jobchar,joblines,joblength,jobuploaded)
    WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000)
    SELECT datetime('now', 'start of day', '-' || (i / 40) || ' days'), acctid, accttype.id,
           CASE i % 7 WHEN 0 THEN 'Smith & Sons v. Harbour Authority, second hearing ' ELSE 'A-' END || i,
           datetime('now', 'start of day', '-' || (i / 40) || ' days', (i % 600) || ' minutes'), 65 * (i % 300),
           i % 300, CASE i % 3 WHEN 0 THEN '1:5:7' WHEN 1 THEN '51:47' ELSE '0:9' END,
           CASE WHEN i > 60 THEN date('now', '-' || (i / 40) || ' days') ELSE '.' END
    FROM n JOIN accttype ON accttype.id = 1 + i % 80;
INSERT INTO template(tempname,tempref,tempdesc,temppath)
    WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 20)
    SELECT 'Template ' || i, 'CX' || i, 'Chest, two views, with a comparison to an earlier examination ' || i,
           '\Radiology\chest-x-ray' || i || '.doc' FROM n;
COMMIT;
)";

} // namespace

class Gallery : public Journey {
    Q_OBJECT

private Q_SLOTS:
    void takeAll()
    {
        store::Connection(modMain::DBConnString).runNative(busyYear);
        QDir(m_folder.path()).mkpath("templates");
        QDir(m_folder.path()).mkpath("reports");
        QVERIFY(start(m_folder.path()));
        QVERIFY(play([this] {
            shoot("main");
            press("F7");
            waitForText("txtCount", "39");
            shoot("jobs");
            press("alt+g Down Down");
            shoot("jobs-row");
            shootDialog("new-job", "frmAddJob", "F6");
            shootDialog("submit", "frmUpload", "F8");
            shootDialog("call", "frmCallTemp", "F2");
            shootDialog("report", "frmReport", "F4");
            shootDialog("client", "frmAddAcct", QStringList{"Data", "Clients", "Add"});
            shootDialog("type", "frmAddType", QStringList{"Data", "Acct/type", "Add"});
            shootDialog("backup", "frmBackup", QStringList{"File", "Backup"});
            shootDialog("about", "frmAbout", QStringList{"Help", "About"});
            choose({"Data", "Clients", "List"});
            shoot("clients");
            choose({"Data", "Acct/type", "List"});
            shoot("types");
            press("F3");
            waitFor("the panel", [] { return control("frTemp") != nullptr; });
            shoot("templates");
            clickRow(2);
            shoot("template-edit");
            shootJobs();
        }));
    }

private:
    void shoot(const QString& name) { takePicture(name, Area::Display); }
    template <typename Way>
    void shootDialog(const QString& name, const QString& form, const Way& way)
    {
        open(form, way);
        shoot(name);
        leave();
    }
    void shootJobs()
    {
        press("F7");
        clickRow(1);
        waitFor("the panel", [] { return control("frJob") != nullptr; });
        shoot("job");
        press("alt+a");
        shoot("job-runs");
        for (const char* label : {"lblJob_2", "lblJob_7", "lblJob_10"})
            editValue(label);
        press("alt+l");
        // A job by the hour, and the message that deleting it asks for.
        clickRow(4);
        waitFor("the panel", [] { return control("frJob") != nullptr; });
        shoot("job-other");
        press("alt+j");
        shoot("question");
        leave();
        press("alt+l");
    }
    void editValue(const QString& label)
    {
        click(label);
        waitForWindow("frmEditJob");
        shoot("edit-" + label.section(u'_', 1));
        leave();
    }
};

JOURNEY_MAIN(Gallery)
#include "gallery.moc"
