// Before the window: the command line, which folder is the program folder, and how an installed program makes one for
// each user.
#include "app/commandLine.h"
#include "app/findProgramFolder.h"
#include "store/connectionStrings.h"
#include "store/faults.h"
#include "support/errorOf.h"
#include "support/files.h"
#include "support/killAtWork.h"
#include "support/scratchFolder.h"
#include "support/table.h"

#include <QDir>
#include <QDirIterator>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using app::findProgramFolder;

class TestStart : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // An installation, and a home.
    void init()
    {
        m_root = std::make_unique<QTemporaryDir>();
        // Where a wrong folder would be made.
        QVERIFY(QDir::setCurrent(m_root->path()));
        for (const char* folder : {PROGRAM, "share/penwright/templates/Letters", "home", "home/data"})
            QVERIFY(QDir(m_root->path()).mkpath(folder));
        for (const char* file : {"PWR.chm", "alert.wav", "templates/Report.xls", "templates/Letters/memo.txt"})
            share(file, file);
        qputenv("HOME", at("home").toLocal8Bit());
        qputenv("XDG_DATA_HOME", at("home/data").toLocal8Bit());
    }

    void ownFolderOrTheUsers_data()
    {
        addRows({{"dataHome", "before", "folder"},
                 {"installed", "@/home/data", "true", "home/data/penwright"},
                 {"relative data home", "data", "true", "home/.local/share/penwright"},
                 {"no data home", "", "true", "home/.local/share/penwright"},
                 {"with data of its own", "@/home/data", "mkdir " PROGRAM "/data", PROGRAM},
                 {"that has lost its data", "@/home/data", "rm -r share", PROGRAM},
                 {"linked elsewhere", "@/home/data", "ln -s gone home/data/penwright", "home/data/penwright"}});
    }
    void ownFolderOrTheUsers()
    {
        const QString folder = cell("folder");
        qputenv("XDG_DATA_HOME", cell("dataHome").replace('@', m_root->path()).toLocal8Bit());
        QCOMPARE(run(cell("before")), 0);
        QCOMPARE(findProgramFolder(at(PROGRAM)), at(folder));
        QVERIFY(!QFile::exists(at("home/data/penwright/data")) || folder == "home/data/penwright");
    }

    void makesAWholeFolderForItsOwnerAlone()
    {
        const mode_t before = umask(0);
        findProgramFolder(at(PROGRAM));
        umask(before);
        checkIsWhole();
        QCOMPARE(readRows(modMain::mainConnectionString(userFolder()), "select id from jobs"), QStringList());
        QCOMPARE(run("test $(stat -c %a home/data/penwright) = 700"), 0);
        share("PWR.chm", "a later help");
        QCOMPARE(readFile(userFolder() + "/PWR.chm"), "a later help");
        QCOMPARE(readFile(userFolder() + "/templates/Letters/memo.txt"), "templates/Letters/memo.txt");
    }

    void touchesNothingInAnExistingFolder()
    {
        findProgramFolder(at(PROGRAM));
        QCOMPARE(
            run("cd home/data/penwright && rm -r data reports templates/Letters PWR.chm && echo mine >templates/New"),
            0);
        writeFile(userFolder() + "/templates/Report.xls", "changed");
        share("templates/Report.xls", "later");
        share("templates/New", "later");
        share("templates/Later/New", "later");
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(findProgramFolder(at(PROGRAM)), userFolder());
            QCOMPARE(names(),
                     "alert.wav templates templates/Later templates/Later/New templates/New templates/Report.xls");
            QCOMPARE(readFile(userFolder() + "/templates/Report.xls"), "changed");
            QCOMPARE(readFile(userFolder() + "/templates/New"), "mine\n");
        }
        // What was deleted stays deleted, new as it is.
        QCOMPARE(run("rm -r home/data/penwright/templates/Later"), 0);
        findProgramFolder(at(PROGRAM));
        QVERIFY(!QFile::exists(userFolder() + "/templates/Later"));
    }

    // After one that was killed at work.
    void severalStartsAtOnceMakeOne()
    {
        int killed = 0;
        for (int milliseconds = 0; milliseconds < 40; milliseconds += 2) {
            QDir(userFolder()).removeRecursively();
            killed += killAtWork([&] { findProgramFolder(at(PROGRAM)); }, [&] { QTest::qSleep(milliseconds); });
            // Either nothing or all of it.
            if (QFile::exists(userFolder()))
                checkIsWhole();
            std::array<pid_t, 4> starts{};
            for (pid_t& start : starts) {
                start = fork();
                if (start == 0)
                    _exit(catchFault([&] { findProgramFolder(at(PROGRAM)); }));
            }
            for (const pid_t start : starts) {
                int end = -1;
                waitpid(start, &end, 0);
                QCOMPARE(end, 0);
            }
            checkIsWhole();
        }
        QVERIFY(killed > 0);
    }

    void tellsWhenItCannotMakeTheFolder_data()
    {
        addRows({{"before"},
                 {"data home", "chmod 555 home/data"},
                 {"no data home", "rmdir home/data && chmod 555 home"},
                 {"shared files", "chmod 000 share/penwright/templates/Report.xls"}});
    }
    void tellsWhenItCannotMakeTheFolder()
    {
        QCOMPARE(run("chmod -R a+rwX . && " + cell("before")), 0);
        const NoPrivileges noPrivileges;
        const values::RuntimeError error = catchError([&] { findProgramFolder(at(PROGRAM)); });
        QCOMPARE(error.description(),
                 u"Could not make your Penwright folder '%1'. See that you may write there and that "
                 "the disk is not full, and start Penwright again."_s.arg(userFolder()));
        QVERIFY(QDir(at("home/data")).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    }

    void answersTheCommandLine()
    {
        QVERIFY(app::answerCommandLine({"--help"}).output.startsWith("Usage: penwright "));
        for (const QStringList& wrong : {QStringList{"--verson"}, {"file"}, {"--version", "--help"}}) {
            const app::CommandLineAnswer answer = app::answerCommandLine(wrong);
            QVERIFY(answer.exitCode == 2 && answer.output.isEmpty() && answer.error.contains(wrong[0].toUtf8()));
        }
    }

private:
    QString at(const QString& name) const { return m_root->filePath(name); }
    QString userFolder() const { return at("home/data/penwright"); }
    int run(const QString& command) const
    {
        return std::system(qPrintable("cd '" + m_root->path() + "' && " + command));
    }
    void share(const QString& name, const QByteArray& content) const
    {
        QDir().mkpath(QFileInfo(at("share/penwright/" + name)).path());
        writeFile(at("share/penwright/" + name), content);
    }
    QString names() const
    {
        QStringList found;
        for (QDirIterator it(userFolder(), QDir::AllEntries | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
             it.hasNext();)
            found << QDir(userFolder()).relativeFilePath(it.next());
        found.sort();
        return found.join(u' ');
    }
    void checkIsWhole() const
    {
        QCOMPARE(names(), "PWR.chm alert.wav data data/BU.mdb data/dB.mdb reports templates templates/Letters "
                          "templates/Letters/memo.txt templates/Report.xls");
        QCOMPARE(QDir(at("home/data")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList("penwright"));
    }

    std::unique_ptr<QTemporaryDir> m_root;
};

QTEST_GUILESS_MAIN(TestStart)
#include "tst_start.moc"
