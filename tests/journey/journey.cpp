#include "journey.h"

#include "ui/eventGuard.h"
#include "values/clock.h"
#include "values/dates.h"

using namespace Qt::StringLiterals;

bool Journey::start(const QString& programFolder)
{
    m_user = std::make_unique<User>(qApp->devicePixelRatio() > 1 ? TOUR_FOLDER "/150" : TOUR_FOLDER);
    ui::setProgramEnd([this](int code) { m_ends << code; });
    m_window = modMain::Main(programFolder);
    return QTest::qWaitForWindowActive(m_window.get());
}

bool Journey::play(const std::function<void()>& story)
{
    const QString failure = m_user->play(story);
    if (!failure.isEmpty())
        qWarning("%s", qPrintable(failure));
    return failure.isEmpty();
}

void Journey::storeOneJob(const QString& reference) const
{
    m_folder.run("insert into jobacct(acctname)values('Riverside Clinic')");
    m_folder.run(
        "insert into accttype(acctid,accttype,acctrate,acctcharline,acctunit)values(1,'Notes',1.25,65,'Line')");
    m_folder.run(u"insert into jobs(jobdate,jobacctid,jobtypeid,jobreference)values(#%1#,1,1,'%2')"_s.arg(
        values::dateText(values::dateTime(values::today())), reference));
}
