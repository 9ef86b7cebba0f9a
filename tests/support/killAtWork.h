#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

/// Does the work in another process, waits here and then kills it. True if the work had not ended by itself.
template <typename Work, typename Wait>
bool killAtWork(Work work, Wait wait)
{
    const pid_t worker = fork();
    if (worker == 0) {
        work();
        _exit(0);
    }
    wait();
    kill(worker, SIGKILL);
    int end = 0;
    waitpid(worker, &end, 0);
    return WIFSIGNALED(end);
}
