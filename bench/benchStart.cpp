// The time from the start of a process to its window on the screen: the program beside an empty main window.
#include "stopwatch.h"

#include <QProcess>
#include <QStringList>

#include <X11/Xlib.h>

#include <cstdio>

namespace {

// The display reports when a top-level window (the window manager's frame) appears.
void startAndWait(Display* display, const QString& program)
{
    QProcess process;
    process.start(program, QStringList());
    XEvent event{};
    while (event.type != MapNotify)
        XNextEvent(display, &event);
    process.kill();
    process.waitForFinished();
    while (event.type != DestroyNotify)
        XNextEvent(display, &event);
}

} // namespace

int main(int argc, char* argv[])
{
    Display* display = XOpenDisplay(nullptr);
    if (argc != 3 || !display) {
        std::fputs("Usage, on a display: benchStart EMPTY-WINDOW PENWRIGHT\n", stderr);
        return 2;
    }
    XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
    compare(
        "start to the window on screen", 25, 1.05, [&] { startAndWait(display, QString::fromLocal8Bit(argv[1])); },
        [&] { startAndWait(display, QString::fromLocal8Bit(argv[2])); });
    XCloseDisplay(display);
    return 0;
}
