#pragma once

#include <QPromise>
#include <QString>

#include <functional>

namespace ui {

/// Long work as a person sees it.
struct LongWork {
    /// What is being done. Empty: no box comes, and input waits to the end.
    QString text{};
    /// What the box says from Cancel on, until the work has stopped. Empty: it stays as it was.
    QString stopping{};
    /// When the box comes, in milliseconds.
    int boxAfter = 500;
    /// How many steps the work has; 0: nobody can say yet how far it is.
    int steps = 0;
    /// Called when the person cancels, for work that does not look at its promise.
    std::function<void()> stop{};
};

/// Does work on a thread of its own and returns when it has ended, so that the program's clocks go on. Input waits
/// until a box shows what is done and how far it is (what the work tells its promise: range, value and text), with
/// Cancel, which the promise tells the work. The box stays until the work has really stopped. Throws what the
/// work throws, unless it was cancelled before.
void doBesideBox(const LongWork& shown, const std::function<void(QPromise<void>&)>& work);

/// The same for work that needs the windows' own thread: does the steps one by one (it gets their numbers, from 0) and
/// lets the box live in between. How many were done, fewer than all when it was cancelled. Throws what a step throws.
int doStepByStep(const LongWork& shown, const std::function<void(int)>& doStep);

/// Cancels the work that goes on, if any; work on a thread of its own has ended then. For the end of the program.
void stopLongWork();

} // namespace ui
