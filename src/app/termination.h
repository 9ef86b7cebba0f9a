#pragma once

#include <QObject>

#include <functional>

namespace app {

/// Calls the handler, from the event loop, when the system asks the program to end (SIGTERM). Until `context` goes.
void onTermination(QObject& context, std::function<void()> handler);

} // namespace app
