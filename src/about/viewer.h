#pragma once

#include <QStringList>

namespace about {

/// A program that shows something in a window of its own.
struct Viewer {
    QString program;
    QStringList arguments;
};

/// Starts the first of these that is installed as a separate process and does not wait for it. False when none is.
bool startFirstInstalled(const QList<Viewer>& viewers);

} // namespace about
