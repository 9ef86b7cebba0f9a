#include "app/application.h"
#include "app/start.h"
#include "backup/backUp.h"
#include "support/bench.h"
#include "support/find.h"

#include <QAction>
#include <QDir>
#include <QMdiSubWindow>
#include <QMenu>

#include <csignal>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

struct Program : Bench {
    Program()
    {
        if (!QTest::qWaitForWindowActive(window.get()))
            qFatal("the main window does not become active");
    }

    void command(const char* name) const { find<QAction>(*window, name).trigger(); }
    QMdiSubWindow* child() const { return window->findChild<QMdiSubWindow*>(); }

    QString enabledMenus() const
    {
        QStringList names;
        for (const char* menu : {"mnuFile", "mnuData", "mnuTemp", "mnuReports", "mnuHelp"}) {
            if (find<QWidget>(*window, menu).isEnabled())
                names << QLatin1String(menu);
        }
        return names.join(u' ');
    }

    void openNewJob()
    {
        answers.expectDialog(u"frmAddJob"_s, [](QWidget& form) {
            choose(form, "cmbAcct", u"Adams"_s);
            choose(form, "cmbType", u"Letters"_s);
            type(form, "txtFields_1", u"A-1"_s);
            click(form, "cmdSave");
        });
        QTest::keyClick(window.get(), Qt::Key_F6);
    }

    std::unique_ptr<QWidget> window = modMain::Main(folder.path());
};

static QStringList described(const QList<QAction*>& actions)
{
    QStringList lines;
    for (const QAction* action : actions) {
        const QObject* named = action->menu() ? static_cast<const QObject*>(action->menu()) : action;
        lines << (named->objectName() + u' ' + action->text() + u' ' + action->shortcut().toString()).trimmed();
        if (action->menu())
            lines << described(action->menu()->actions());
    }
    return lines;
}

class TestMdiMain : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void menus()
    {
        Program program;
        const char* const expected =
            "mnuFile File,mnuFileBackup Backup,mnuFileExit Exit,"
            "mnuData Data,mnuDataJobs Jobs,mnuDataJobsAdd Add F6,mnuDataJobList List F7,mnuDataJobsUp Submitted F8,"
            "mnuDataAcct Clients,mnuDataAcctAdd Add,mnuDataAcctList List,"
            "mnuDataType Acct/type,mnuDataTypeAdd Add,mnuDataTypeList List,"
            "mnuTemp Templates,mnuTempCall Call F2,mnuTempManage Manage F3,"
            "mnuReports Reports,mnuReportManager Report Manager F4,mnuReportTempList Template Guide,"
            "mnuHelp Help,mnuHelpShow Contents F1,mnuHelpAbout About";
        const QStringList menus = described(find<QWidget>(*program.window, "menuBar").actions());
        QCOMPARE(menus, QString::fromLatin1(expected).split(u','));
    }

    void startReadsNothing()
    {
        Program program;
        const QTemporaryDir nothing;
        program.window = modMain::Main(nothing.path());
        QVERIFY(QTest::qWaitForWindowExposed(program.window.get()));
        QCOMPARE(program.window->windowTitle(), u"Penwright"_s);
        QVERIFY(!program.child());
        QVERIFY(QDir(nothing.path()).isEmpty());
    }

    // All lists share one child window, which comes back after it was closed.
    void listCommands()
    {
        Program program;
        for (const auto& [command, title] : {std::pair("mnuDataJobList", u"Job List"_s),
                                             {"mnuDataAcctList", u"Clients List"_s},
                                             {"mnuDataTypeList", u"Job Type List"_s},
                                             {"mnuDataJobList", u"Job List"_s}}) {
            program.command(command);
            QCOMPARE(find<QWidget>(*program.window, "frmJobs").windowTitle(), title);
            QCOMPARE(program.window->findChildren<QMdiSubWindow*>().size(), 1);
        }
        QVERIFY(program.child()->close());
        QTRY_VERIFY(!program.child());
        program.command("mnuDataJobList");
        QVERIFY(program.child()->isVisible());
    }

    void openJobBlocksTheMenusAndTheirKeys()
    {
        Program program;
        program.openNewJob();
        QCOMPARE(shown(*program.window, "lblJobTotal"), u"$4.50"_s);
        QCOMPARE(program.enabledMenus(), u"mnuHelp"_s);
        QVERIFY(!program.child()->close());
        QTest::keyClick(program.window.get(), Qt::Key_F6);
        QTest::keyClick(program.window.get(), Qt::Key_F7);
        QVERIFY(find<QWidget>(*program.window, "frmJobs").windowTitle().isEmpty());
        click(*program.window, "cmdClose");
        QCOMPARE(program.enabledMenus(), u"mnuFile mnuData mnuTemp mnuReports mnuHelp"_s);
        QTest::keyClick(program.window.get(), Qt::Key_F7);
        QVERIFY(program.child()->close());
    }

    void everyWayOutEndsUnasked()
    {
        QObject session; // nobody looks at it
        const std::function<void(Program&)> ways[] = {
            [](Program& program) { program.window->close(); },
            [](Program& program) { program.command("mnuFileExit"); },
            [](Program&) { std::raise(SIGTERM); },
            [](Program&) { std::raise(SIGINT); },
            [](Program& program) {
                // Over a dialog that is open, and twice.
                program.answers.expectDialog(u"frmBackup"_s, [&](QWidget& form) {
                    std::raise(SIGHUP);
                    std::raise(SIGHUP);
                    if (!QTest::qWaitFor([&] { return !program.ends.isEmpty(); }))
                        qFatal("the signal changes nothing");
                    click(form, "cmdClose");
                });
                program.command("mnuFileBackup");
            },
            [&](Program&) { Q_EMIT qGuiApp->commitDataRequest(reinterpret_cast<QSessionManager&>(session)); },
        };
        for (const auto& way : ways) {
            Program program;
            program.openNewJob();
            program.expectedEnds << EXIT_SUCCESS;
            way(program);
            QTRY_COMPARE(program.ends, program.expectedEnds);
        }
    }

    void closingAsksAfterAnError()
    {
        Program program;
        program.openNewJob();
        const QString file = program.folder.path() + u"/data/BU.mdb"_s;
        QVERIFY(QFile::remove(file));
        const auto expectError = [&] {
            // Another way out while the message waits changes nothing.
            QTimer::singleShot(0, program.window.get(), &QWidget::close);
            program.answers.expectBox(u"Error -2147467259 (Could not find file '%1'. Put it back, for example from a "
                                      "backup.) in procedure GetBackUpInfo of Module modMain"_s.arg(file));
        };
        expectError();
        QVERIFY(!program.window->close());
        QVERIFY(program.window->isVisible());
        click(*program.window, "cmdClose");
        expectError();
        program.expectedEnds << EXIT_SUCCESS;
        QVERIFY(program.window->close());
        QCOMPARE(program.ends, program.expectedEnds);
        // The last window's end asks to quit, too, which the next test must not.
        QCoreApplication::removePostedEvents(qApp, QEvent::Quit);
    }

    void copyOfABackupIsAProgramFolder()
    {
        Program program;
        QTemporaryDir copy;
        for (const char* folder : {"reports", "templates"})
            QVERIFY(QDir(program.folder.path()).mkdir(QLatin1String(folder)));
        QString path = copy.path();
        QVERIFY(modMain::BackUpFolders(path));
        program.window = modMain::Main(copy.path());
        QVERIFY(QFile::remove(program.folder.mainFile()));
        program.command("mnuDataJobList");
        QCOMPARE(shown(*program.window, "txtTotal"), u"$16.50"_s);
    }

    void missingDataFileIsTheListsToReport()
    {
        Program program;
        const QString file = program.folder.mainFile();
        QVERIFY(QFile::rename(file, file + u'~'));
        program.answers.expectBox(
            u"Error -2147467259 (Could not find file '%1'. Put it back, for example from a backup.) "
            "in procedure ShowList of Form frmJobs"_s.arg(file));
        QTest::keyClick(program.window.get(), Qt::Key_F7);
        QVERIFY(QFile::rename(file + u'~', file));
        program.command("mnuDataJobList");
        QCOMPARE(shown(*program.window, "txtCount"), u"2"_s);
    }

    void workspaceKeepsASizeOutOfFullSize()
    {
        Program program;
        program.command("mnuDataJobList");
        const QSize job = find<QWidget>(*program.window, "frJob").sizeHint();
        program.child()->showNormal();
        QTRY_VERIFY(program.child()->width() >= job.width());
        program.child()->showMinimized();
        program.child()->showNormal();
        QTRY_VERIFY2(program.child()->height() >= job.height(), qPrintable(QString::number(program.child()->height())));
    }

    // What goes wrong in painting goes wrong again under the box that tells of it.
    void netUnderPainting()
    {
        struct Faulty : QWidget {
            void paintEvent(QPaintEvent*) override
            {
                if (std::exchange(isFirst, false))
                    QTimer::singleShot(0, this, [this] { repaint(), isMended = true; });
                if (!isMended)
                    throw values::RuntimeError(values::Fault::Overflow);
            }
            bool isFirst = true;
            bool isMended = false;
        };
        Bench bench;
        bench.expectEnd(6, "Overflow");
        Faulty window;
        window.show();
        QTRY_VERIFY(window.isMended);
    }
};

int main(int argc, char* argv[])
{
    app::Application application(argc, argv);
    TestMdiMain test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_mdiMain.moc"
