#pragma once

#include "answers.h"
#include "endOfProgram.h"
#include "fakeShell.h"
#include "scratchFolder.h"

#include "values/clock.h"

/// What stands around a form under test: a program folder, the main window, the user's answers, and the time.
struct Bench {
    Bench()
    {
        values::setClock([this] { return now; });
    }
    ~Bench() { values::setClock({}); }
    Bench(const Bench&) = delete;
    Bench& operator=(const Bench&) = delete;

    QDateTime now = values::dateTime(QDate(2004, 8, 18), QTime(9, 30));
    ScratchFolder folder;
    FakeShell shell;
    Answers answers;
    EndOfProgram end;
};
