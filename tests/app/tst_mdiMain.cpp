#include "app/application.h"
#include "app/start.h"
#include "support/bench.h"

#include "office/suite.h"

#include <QAction>
#include <QDir>
#include <QMdiSubWindow>

struct Program : Bench {
    Program()
    {
        if (!QTest::qWaitForWindowActive(window.get()))
            qFatal("the main window does not become active");
    }

    void command(const char* name) const { find<QAction>(*window, name).trigger(); }
    QMdiSubWindow* child() const { return window->findChild<QMdiSubWindow*>(); }

    void openNewJob()
    {
        answers.expectDialog("frmAddJob", [](QWidget& form) {
            choose(form, "cmbAcct", "Adams");
            choose(form, "cmbType", "Letters");
            type(form, "txtFields_1", "A-1");
            click(form, "cmdSave");
        });
        QTest::keyClick(window.get(), Qt::Key_F6);
    }

    std::unique_ptr<QWidget> window = modMain::Main(folder.path());
};

class TestMdiMain : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startReadsNothing()
    {
        Program program;
        const QTemporaryDir nothing;
        program.window = modMain::Main(nothing.path());
        QVERIFY(QTest::qWaitForWindowExposed(program.window.get()));
        QCOMPARE(program.window->windowTitle(), "Penwright");
        QVERIFY(!program.child());
        QVERIFY(QDir(nothing.path()).isEmpty());
        QCOMPARE(office::suiteProcessId(), 0);
    }

    void openJobBlocksTheMenusAndTheirKeys()
    {
        Program program;
        program.openNewJob();
        QCOMPARE(textOf(*program.window, "lblJobTotal"), "$4.50");
        for (const QAction* menu : find<QWidget>(*program.window, "menuBar").actions())
            QCOMPARE(menu->isEnabled(), menu->text() == "Help");
        QTest::keyClick(program.window.get(), Qt::Key_F6);
    }

    // Journeys cover the close box and the signals.
    void everyExitEndsWithoutAsking()
    {
        QObject session; // stands for a session manager, which is not used
        for (const bool isOfTheSession : {false, true}) {
            Program program;
            program.openNewJob();
            program.expectedExitCodes << EXIT_SUCCESS;
            if (isOfTheSession)
                Q_EMIT qGuiApp->commitDataRequest(reinterpret_cast<QSessionManager&>(session));
            else
                program.command("mnuFileExit");
        }
    }

    void closingAsksAfterAnError()
    {
        Program program;
        program.openNewJob();
        const auto closeWithoutBackUpFile = [&] {
            // Closing once more while the message is open changes nothing.
            QTimer::singleShot(0, program.window.get(), &QWidget::close);
            bool isClosed = false;
            program.withoutFile("data/BU.mdb", "GetBackUpInfo of Module modMain",
                                [&] { isClosed = program.window->close(); });
            return isClosed;
        };
        QVERIFY(!closeWithoutBackUpFile());
        QVERIFY(program.window->isVisible());
        click(*program.window, "cmdClose");
        program.expectedExitCodes << EXIT_SUCCESS;
        QVERIFY(closeWithoutBackUpFile());
        // Closing the last window also posts a quit event, which must not reach the next test.
        QCoreApplication::removePostedEvents(qApp, QEvent::Quit);
    }

    // The next list then works.
    void listReportsMissingDataFile()
    {
        Program program;
        program.withoutFile("data/dB.mdb", "ShowList of Form frmJobs",
                            [&] { QTest::keyClick(program.window.get(), Qt::Key_F7); });
        program.command("mnuDataJobList");
        QCOMPARE(entries(*program.window, "cmbAcct").last() + textOf(*program.window, "txtCount"), "All2");
    }

    void workspaceHasRoomWhenNotMaximized()
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

    // The window is painted, and fails, again under the error box.
    void errorWhilePaintingEndsTheProgram()
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
