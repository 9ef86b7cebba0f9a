#pragma once

#include <QList>

/// Notes the exit codes with which the program would have ended instead of ending the test.
class EndOfProgram {
public:
    EndOfProgram();
    ~EndOfProgram();
    EndOfProgram(const EndOfProgram&) = delete;
    EndOfProgram& operator=(const EndOfProgram&) = delete;

    const QList<int>& codes() const { return m_codes; }

private:
    QList<int> m_codes;
};
