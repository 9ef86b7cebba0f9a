#include "everyWindow.h"

#include "store/connection.h"
#include "store/connectionStrings.h"

#include <QDir>
#include <QMessageBox>

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

bool EveryWindow::begin()
{
    store::Connection(modMain::DBConnString).runNative(busyYear);
    QDir(m_folder.path()).mkpath("templates");
    QDir(m_folder.path()).mkpath("reports");
    return start(m_folder.path());
}

void EveryWindow::visitAll()
{
    look("main");
    press("F7");
    waitForText("txtCount", "39");
    look("jobs");
    press("alt+g Down Down");
    look("jobs-row");
    open("frmAddJob", "F6");
    // Tab refuses to leave the box while no client is chosen.
    press("alt+c Down alt+d");
    look("new-job");
    leave();
    visit("submit", "frmUpload", "F8");
    visit("call", "frmCallTemp", "F2");
    open("frmReport", "F4");
    look("report");
    press("alt+d");
    look("report-detail");
    leave();
    visit("client", "frmAddAcct", QStringList{"Data", "Clients", "Add"});
    visit("type", "frmAddType", QStringList{"Data", "Acct/type", "Add"});
    open("frmBackup", QStringList{"File", "Backup"});
    look("backup");
    press("alt+p");
    waitFor("the advice", [] {
        const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        return box && box->isActiveWindow();
    });
    look("backup-advice");
    visitFileDialog("backup-path", "objBD", "alt+n");
    leave();
    visit("about", "frmAbout", QStringList{"Help", "About"});
    choose({"Data", "Clients", "List"});
    look("clients");
    choose({"Data", "Acct/type", "List"});
    look("types");
    press("F3");
    waitFor("the panel", [] { return control("frTemp") != nullptr; });
    look("templates");
    clickRow(2);
    look("template-edit");
    visitFileDialog("template-path", "CommonDialog1", "alt+p");
    visitJobs();
}

void EveryWindow::visitFileDialog(const QString& window, const QString& dialog, const QString& keys)
{
    open(dialog, keys);
    look(window);
    press("Escape");
}

void EveryWindow::visitJobs()
{
    press("F7");
    clickRow(1);
    waitFor("the panel", [] { return control("frJob") != nullptr; });
    look("job");
    press("alt+a");
    look("job-runs");
    for (const char* label : {"lblJob_0", "lblJob_2", "lblJob_7", "lblJob_8", "lblJob_9", "lblJob_10"})
        visitValue(label);
    press("alt+l");
    // A job by the hour, and the message that deleting it asks for.
    clickRow(4);
    waitFor("the panel", [] { return control("frJob") != nullptr; });
    look("job-other");
    press("alt+j");
    look("question");
    leave();
    press("alt+l");
}

void EveryWindow::visitValue(const QString& label)
{
    click(label);
    waitForWindow("frmEditJob");
    look("edit-" + label.section(u'_', 1));
    leave();
}
