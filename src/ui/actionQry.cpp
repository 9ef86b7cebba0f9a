#include "actionQry.h"

#include "errorTrap.h"
#include "waitCursor.h"

#include "store/command.h"
#include "store/connectionStrings.h"

using namespace Qt::StringLiterals;

namespace modMain {

bool ActionQry(const QString& statement)
{
    return ui::trap(u"ActionQry"_s, u"Module modMain"_s, [&] {
        const ui::WaitCursor wait;
        store::Connection connection(DBConnString);
        store::Command(connection, statement).execute();
    });
}

} // namespace modMain
