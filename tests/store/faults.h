#pragma once

#include <QtGlobal>

#include <sqlite3.h>

#include <cerrno>
#include <unistd.h>

/// As long as it exists, a test run by root has only the rights of an ordinary user.
class NoPrivileges {
public:
    NoPrivileges() { become(m_user == 0 ? nobody : m_user); }
    ~NoPrivileges() { become(m_user); }
    Q_DISABLE_COPY(NoPrivileges)

private:
    static void become(uid_t user)
    {
        if (seteuid(user) != 0)
            qFatal("could not become user %u", user);
    }

    static constexpr uid_t nobody = 65534;
    const uid_t m_user = geteuid();
};

/// As long as it exists, only this many writes of the engine succeed; then every write fails with this error.
class FailingDisk {
public:
    FailingDisk(int writes, int error)
    {
        s_writes = writes;
        s_error = error;
        replace(reinterpret_cast<sqlite3_syscall_ptr>(write));
    }
    ~FailingDisk() { replace(nullptr); }
    Q_DISABLE_COPY(FailingDisk)

private:
    static ssize_t write(int file, const void* bytes, size_t count, off_t offset)
    {
        if (s_writes-- > 0)
            return pwrite(file, bytes, count, offset);
        errno = s_error;
        return -1;
    }
    static void replace(sqlite3_syscall_ptr function)
    {
        sqlite3_vfs* system = sqlite3_vfs_find(nullptr);
        for (const char* name : {"pwrite", "pwrite64"})
            system->xSetSystemCall(system, name, function);
    }

    static inline int s_writes = 0;
    static inline int s_error = 0;
};
