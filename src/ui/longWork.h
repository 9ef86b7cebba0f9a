#pragma once

#include <QPromise>
#include <QString>

#include <functional>

namespace ui {

/// Long work as a person sees it.
struct LongWork {
    /// What is being done. Empty: no box comes, and input waits to the end.
    QString text{};
    /// When the box comes, in milliseconds.
    int boxAfter = 500;
    /// How many steps the work has; 0: nobody can say how far it is.
    int steps = 0;
    /// Called when the person cancels, for work that does not look at its promise.
    std::function<void()> stop{};
};

/// Does work on a thread of its own and returns when it has ended, so that the program's clocks go on. Input waits
/// until a box shows what is done and how far it is (what the work tells its promise), with Cancel, which the promise
/// tells the work. The box stays until the work has really stopped. False when it was cancelled. Throws what the work
/// throws.
bool doBesideBox(const LongWork& shown, const std::function<void(QPromise<void>&)>& work);

} // namespace ui
