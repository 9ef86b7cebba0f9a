#include "backUp.h"

#include "copyFolders.h"
#include "driveReady.h"
#include "due.h"
#include "statements.h"

#include "store/command.h"
#include "store/connectionStrings.h"
#include "store/recordset.h"
#include "ui/errorTrap.h"
#include "ui/eventGuard.h"
#include "ui/longWork.h"
#include "ui/messages.h"
#include "values/clock.h"
#include "values/programFolder.h"

#include <QDir>

#include <cstdlib>
#include <optional>

using namespace Qt::StringLiterals;

namespace modMain {

namespace {

const QString place = u"Module modMain"_s;

struct Schedule {
    qint32 days;
    QDateTime lastBackup;
    QString path;
};

// The result sets are closed before the copying begins, which reads the same file.
std::optional<Schedule> readSchedule(store::Connection& connection)
{
    {
        const store::Recordset active(connection, backup::selectIsActive());
        if (active.field(0).isNull() || active.field(0).toLong() == 0)
            return std::nullopt;
    }
    const store::Recordset row(connection, backup::selectSchedule());
    return Schedule{row.field(0).toLong(), row.field(1).toDate(), row.field(2).toText()};
}

void backUpIfDue()
{
    store::Connection connection(BUConnString);
    std::optional<Schedule> schedule = readSchedule(connection);
    if (!schedule || !backup::isDue(schedule->lastBackup, schedule->days, values::now()))
        return;
    if (BackUpFolders(schedule->path)) {
        store::Command(connection, backup::updateLastBackup(values::today())).execute();
        ui::showMessage(u"Backup was successful."_s);
    } else {
        ui::showMessage(u"Backup failed - please check your backup settings."_s);
    }
}

} // namespace

bool BackUpFolders(QString& path)
{
    bool isCopied = false;
    ui::trap(u"BackUpFolders"_s, place, [&] {
        if (path.isEmpty())
            throw values::RuntimeError(values::Fault::PathNotFound);
        path.replace(u'\\', QDir::separator());
        if (!path.endsWith(QDir::separator()))
            path += QDir::separator();
        if (!backup::isDriveReady(path)) {
            ui::showMessage(u"Drive is not ready"_s);
            return;
        }
        ui::doBesideBox({.text = u"Backing up"_s, .stopping = u"Stopping the backup"_s},
                        [&path, &isCopied](QPromise<void>& promise) {
                            backup::copyFolders(ProgramFolder, path, promise);
                            isCopied = true;
                        });
    });
    return isCopied;
}

void GetBackUpInfo()
{
    ui::trap(u"GetBackUpInfo"_s, place, [] {
        ui::stopLongWork();
        backUpIfDue();
        ui::endProgram(EXIT_SUCCESS);
    });
}

} // namespace modMain
