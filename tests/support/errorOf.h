#pragma once

#include "values/runtimeError.h"

/// Runs an action and gives its error; number 0 when it succeeds.
template <typename Action>
values::RuntimeError catchError(Action action)
{
    try {
        action();
    } catch (const values::RuntimeError& error) {
        return error;
    }
    return {0, QString()};
}

/// The same, only the number of the error.
template <typename Action>
int catchFault(Action action)
{
    return catchError(action).number();
}

inline constexpr int overflow = 6;
inline constexpr int typeMismatch = 13;
