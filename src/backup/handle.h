#pragma once

#include <unistd.h>

#include <utility>

namespace backup {

/// An open file or folder (a file descriptor), closed at the end of its scope.
class Handle {
public:
    explicit Handle(int number) : m_number(number) {}
    Handle(Handle&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    Handle& operator=(Handle&&) = delete;
    ~Handle()
    {
        if (isOpen())
            close(m_number);
    }

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }

private:
    int m_number;
};

} // namespace backup
