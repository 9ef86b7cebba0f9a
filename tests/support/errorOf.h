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

/// The number of the run-time error that the action ends with; 0 when it ends well.
template <typename Action>
int faultOf(Action action)
{
    return errorOf(action).number();
}

inline constexpr int overflow = 6;
inline constexpr int typeMismatch = 13;
