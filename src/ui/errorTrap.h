#pragma once

#include "values/runtimeError.h"

#include <QString>

#include <utility>

namespace ui {

/// Shows the standard message of a trapped error. `place` is "Form frmX" or "Module modX".
void reportError(const values::RuntimeError& error, const QString& procedure, const QString& place);

/// Runs a routine; an error ends the routine and is shown with the standard message, and the caller goes on. True when
/// there was no error.
template <typename Routine>
bool trap(const QString& procedure, const QString& place, Routine&& routine)
{
    try {
        std::forward<Routine>(routine)();
        return true;
    } catch (const values::RuntimeError& error) {
        reportError(error, procedure, place);
        return false;
    }
}

} // namespace ui
