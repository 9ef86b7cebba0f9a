// app: start-up, the main window with its menu bar, the routing of its commands, and closing. Main is the first of the
// shared routines (modMain).
#pragma once

#include <QApplication>
#include <QWidget>

#include <memory>

namespace modMain {

/// Sets what the whole application shows: title, icon, version.
void setApplicationLook();

/// Starts Penwright on a program folder (no separator at its end): sets the connection strings and shows the main
/// window, which the caller keeps until the program ends. Nothing is read and nothing else opens.
std::unique_ptr<QWidget> Main(const QString& programFolder);

} // namespace modMain
