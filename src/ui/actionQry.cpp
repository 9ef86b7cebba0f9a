#include "actionQry.h"

#include "errorTrap.h"
#include "waitCursor.h"

#include "store/command.h"
#include "store/connectionStrings.h"

namespace modMain {

void ActionQry(const QString& statement)
{
    ui::trap(QStringLiteral("ActionQry"), QStringLiteral("Module modMain"), [&] {
        const ui::WaitCursor wait;
        store::Connection connection(DBConnString);
        store::Command(connection, statement).execute();
    });
}

} // namespace modMain
