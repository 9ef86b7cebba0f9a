#pragma once

#include <QStringList>

namespace about {

/// A program that shows a file, or the state of the system, in its own window.
struct Viewer {
    QString program;
    QStringList arguments;
};

/// Starts the first of these that is installed, as a separate process, and does not wait for it. False when none is
/// installed.
bool startFirstInstalled(const QList<Viewer>& viewers);

} // namespace about
