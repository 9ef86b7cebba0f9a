#include "journey.h"

#include "ui/eventGuard.h"

using namespace Qt::StringLiterals;

Journey::Journey()
    : User(qEnvironmentVariable("PICTURES", qApp->devicePixelRatio() > 1 ? TOUR_FOLDER "/150" : TOUR_FOLDER))
{
}

bool Journey::start(const QString& programFolder)
{
    ui::setProgramEnd([this](int code) { m_exitCodes << code; });
    m_window = modMain::Main(programFolder);
    return QTest::qWaitForWindowActive(m_window.get());
}

void Journey::storeClient(const QString& name) const
{
    m_folder.run(u"insert into jobacct(acctname)values('%1')"_s.arg(name));
    m_folder.run(
        "insert into accttype(acctid,accttype,acctrate,acctcharline,acctunit)values(1,'Notes',1.25,65,'Line')");
}

void Journey::storeJob(const QString& reference, const QString& day) const
{
    m_folder.run(
        u"insert into jobs(jobdate,jobacctid,jobtypeid,jobreference)values(#%1#,1,1,'%2')"_s.arg(day, reference));
}

void Journey::openFirstJob(const QString& reference)
{
    press("F7");
    clickRow(0);
    waitForText("lblJob_10", reference);
}
