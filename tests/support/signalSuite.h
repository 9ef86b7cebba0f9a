#pragma once

#include "office/suite.h"

#include <QtGlobal>

#include <csignal>

/// Sends a signal to all processes of the office suite; ends the test when there is no suite.
inline void signalSuite(int signal)
{
    const auto suite = static_cast<pid_t>(office::suiteProcessId());
    // Without one the signal would go to this very test.
    if (suite <= 0 || ::kill(-suite, signal) != 0)
        qFatal("no suite to signal");
}
