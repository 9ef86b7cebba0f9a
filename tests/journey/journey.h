#pragma once

#include "user.h"

#include "app/application.h"
#include "app/start.h"
#include "support/scratchFolder.h"
#include "values/clock.h"
#include "values/dates.h"

#include <QTest>

/// What all journeys share: the program with its own folder. The journey itself acts as the person who uses it.
class Journey : public QObject, protected User {
    Q_OBJECT

protected:
    Journey();

    /// Opens the main window. When the program would end, the test goes on and notes the exit code.
    bool start(const QString& programFolder);
    /// A client and its type, which is paid by the line.
    void storeClient(const QString& name = "Riverside Clinic") const;
    /// A job of the first client and type, without figures.
    void storeJob(const QString& reference, const QString& day = today()) const;
    /// Lists the jobs of today and opens the first one, which has this reference.
    void openFirstJob(const QString& reference);
    static QString today() { return values::dateText(values::dateTime(values::today())); }

    ScratchFolder m_folder;
    QList<int> m_exitCodes;
    std::unique_ptr<QWidget> m_window;
};

template <typename Story>
int runJourney(int argc, char* argv[])
{
    app::Application application(argc, argv);
    modMain::setApplicationLook();
    Story story;
    return QTest::qExec(&story, argc, argv);
}

#define JOURNEY_MAIN(Story)                                                                                            \
    int main(int argc, char* argv[])                                                                                   \
    {                                                                                                                  \
        return runJourney<Story>(argc, argv);                                                                          \
    }
