#include "errorTrap.h"

#include "messages.h"

namespace ui {

void reportError(const values::RuntimeError& error, const QString& procedure, const QString& place)
{
    showMessage(QStringLiteral("Error ") + QString::number(error.number()) + QStringLiteral(" (") +
                error.description() + QStringLiteral(") in procedure ") + procedure + QStringLiteral(" of ") + place);
}

} // namespace ui
