#pragma once

#include <QObject>

#include <functional>

namespace app {

/// Calls the handler, from the event loop, when the program is asked to end: by the system (SIGTERM), by Ctrl+C
/// (SIGINT), by a terminal that closes (SIGHUP). Until `context` goes.
void onTermination(QObject& context, std::function<void()> handler);

} // namespace app
