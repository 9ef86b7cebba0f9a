#pragma once

#include "values/runtimeError.h"

/// The error that the action ends with; number 0 when it ends well.
template <typename Action>
values::RuntimeError errorOf(Action action)
{
    try {
        action();
    } catch (const values::RuntimeError& error) {
        return error;
    }
    return {0, QString()};
}
