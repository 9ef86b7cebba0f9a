#pragma once

#include "values/runtimeError.h"

/// The number of the run-time error that the action ends with; 0 when it ends well.
template <typename Action>
int faultOf(Action action)
{
    try {
        action();
    } catch (const values::RuntimeError& error) {
        return error.number();
    }
    return 0;
}

inline constexpr int overflow = 6;
inline constexpr int typeMismatch = 13;
