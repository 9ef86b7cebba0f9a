#pragma once

#include <QObject>

namespace ui {

/// Tells, once, that the program is about to end, whatever the reason: who holds a person's work keeps it now. What is
/// connected must not throw, and must not show anything.
class ProgramEnd : public QObject {
    Q_OBJECT

public:
    static ProgramEnd& instance();

Q_SIGNALS:
    void coming();
};

} // namespace ui
