#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace ui {

/// Shows the wait cursor as long as it exists: reading and writing may have to wait for another program.
class WaitCursor {
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor)); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

} // namespace ui
