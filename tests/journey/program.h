#pragma once

#include <QProcess>

#include <csignal>

/// The program as a process of its own. It is killed at the end of the test.
class Program : public QProcess {
public:
    explicit Program(const QStringList& command)
    {
        setProcessChannelMode(ForwardedChannels);
        // The test itself may have been started with these ignored.
        setChildProcessModifier([] {
            for (const int each : {SIGINT, SIGHUP})
                ::signal(each, SIG_DFL);
        });
        start(command[0], command.mid(1));
    }
    ~Program() override
    {
        kill();
        waitForFinished();
    }

    int sendSignal(int signal) const { return ::kill(static_cast<pid_t>(processId()), signal); }
    bool hasEnded() const { return state() == NotRunning; }
    bool endsWell() { return (hasEnded() || waitForFinished(5000)) && exitStatus() == NormalExit && exitCode() == 0; }
};
