#pragma once

#include "user.h"

#include "app/application.h"
#include "app/start.h"
#include "support/scratchFolder.h"

#include <QTest>

/// What all journeys share: the program on a folder of its own, and a person in front of it.
class Journey : public QObject {
    Q_OBJECT

protected:
    /// Opens the main window. The end of the program shall not be that of the test: its exit codes are noted.
    bool start(const QString& programFolder);
    /// Runs a story; false, with a word of what went wrong, when it does not come to its end.
    bool play(const std::function<void()>& story);
    /// One client with one type, paid by the line, and a job of today with this reference.
    void storeOneJob(const QString& reference) const;

    ScratchFolder m_folder;
    QList<int> m_ends;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<User> m_user;
};

template <typename Story>
int runJourney(int argc, char* argv[])
{
    app::Application application(argc, argv);
    modMain::setApplicationLook();
    Story story;
    return QTest::qExec(&story, argc, argv);
}
