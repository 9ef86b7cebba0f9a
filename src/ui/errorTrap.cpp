#include "errorTrap.h"

#include "messages.h"

using namespace Qt::StringLiterals;

namespace ui {

void reportError(const values::RuntimeError& error, const QString& procedure, const QString& place)
{
    showMessage(u"Error "_s + QString::number(error.number()) + u" ("_s + error.description() + u") in procedure "_s +
                procedure + u" of "_s + place);
}

} // namespace ui
