// The office suite itself, without a display: what it reads and makes, and that the program outlives its end.
#include "office/document.h"
#include "office/suite.h"
#include "office/workbook.h"

#include "support/errorOf.h"
#include "support/files.h"
#include "support/ownMounts.h"
#include "support/signalSuite.h"

#include <QApplication>
#include <QDirIterator>
#include <QStorageInfo>
#include <QStringEncoder>
#include <QTemporaryDir>
#include <QTimer>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using office::readDocument;

namespace {

constexpr int subscriptOutOfRange = 9, fileNotFound = 53, diskFull = 61, pathFileAccess = 75, pathNotFound = 76;
constexpr int cancelled = 32755;
const QString sampleDocument = STAGED_TEMPLATES "/Letters/referral.doc";
const QString guide = STAGED_TEMPLATES "/template.xlt";
/// Not to be taken for markup.
const QString plainText = "<html><b>Grüße €\n„two“\tthree";

/// The suite's process, which has just read something.
qint64 startedSuite()
{
    readDocument(sampleDocument);
    return office::suiteProcessId();
}

/// How many processes of the group run; one that has ended and that nobody has asked about does not.
int runningIn(qint64 group)
{
    int count = 0;
    for (QDirIterator it("/proc", QDir::Dirs); it.hasNext();) {
        const QByteArray stat = contentOf(it.next() + "/stat");
        const QByteArrayList fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
        count += fields.size() > 2 && fields[0] != "Z" && fields[2].toLongLong() == group ? 1 : 0;
    }
    return count;
}

/// What a call ends with that keeps the suite busy until the disturbance, which comes once, is over.
int faultOfBusyCall(const std::function<void()>& disturb)
{
    std::atomic<bool> isOver = false;
    QTimer::singleShot(100, qApp, [&] {
        disturb();
        isOver = true;
    });
    return faultOf([&] {
        office::runOnSuite(
            [&](office::Bridge& bridge, const QString& exchange, QPromise<void>&) {
                while (!isOver)
                    bridge.convert(sampleDocument, {}, {exchange + "/x"}, {{"Rich Text Format", ""}});
                QFile::remove(exchange + "/x");
            },
            {.text = "Working", .boxAfter = 10});
    });
}

} // namespace

class TestSuite : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // Files are named in UTF-8 all the same.
        qputenv("LC_ALL", "C");
        // What the suite leaves lying about lies here.
        mountDisk(m_temporary.path().toStdString(), "size=64m");
        qputenv("TMPDIR", m_temporary.path().toLocal8Bit());
    }
    void cleanup()
    {
        office::limitTimeout(60'000);
        for (const QFileInfo& folder : suiteFolders())
            QCOMPARE(QDir(folder.filePath()).entryList(QDir::Files), QStringList());
    }

    void readsDocumentsOfAnyName()
    {
        const QString name = "it's \"so\": 100%25 Größe, a#b?c.DOC";
        const QString fileName = m_folder.filePath(name);
        QVERIFY(QFile::copy(sampleDocument, fileName));
        // Another user has it open.
        const QString lock = m_folder.filePath(".~lock." + name + "#");
        writeFile(lock, ",other,desk,18.08.2004 09:30,file:///other;");
        const auto [rtf, html, text] = readDocument(fileName);
        QVERIFY2(rtf.startsWith("{\\rtf1") && rtf.contains("thank you for seeing"), rtf.constData());
        QVERIFY2(html.contains("<html") && html.contains("thank you for seeing"), html.constData());
        QVERIFY2(text.contains("thank you for seeing"), qPrintable(text));
        QCOMPARE(contentOf(fileName), contentOf(sampleDocument));
        QVERIFY(QFile::exists(lock));
    }

    void readsTexts_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const auto marked = [](QStringConverter::Encoding encoding) {
            return QByteArray(QStringEncoder(encoding, QStringConverter::Flag::WriteBom)(plainText));
        };
        QTest::newRow("UTF-8") << plainText.toUtf8();
        QTest::newRow("UTF-8 with its mark") << "\xEF\xBB\xBF" + plainText.toUtf8();
        QTest::newRow("UTF-16, low byte first") << marked(QStringConverter::Utf16LE);
        QTest::newRow("UTF-16, high byte first") << marked(QStringConverter::Utf16BE);
        QTest::newRow("windows-1252") << "<html><b>Gr\xFC\xDF\x65 \x80\r\n\x84two\x93\tthree"_ba;
    }
    void readsTexts()
    {
        QFETCH(QByteArray, bytes);
        const QString fileName = m_folder.filePath("text.TXT");
        writeFile(fileName, bytes);
        const auto [rtf, html, text] = readDocument(fileName);
        QCOMPARE(text.trimmed(), plainText);
        QVERIFY(rtf.startsWith("{\\rtf1") && rtf.count("\n\\par ") == 2);
        QVERIFY(!html.contains("&#65279;") && !html.contains("\xEF\xBB\xBF"));
    }

    // An end in good order, and the same suite goes on.
    void brokenDocuments()
    {
        const QString fileName = m_folder.filePath("broken.doc");
        const QByteArray whole = contentOf(sampleDocument);
        const qint64 suite = startedSuite();
        for (const QString& empty : {m_folder.filePath("empty.doc"), m_folder.filePath("empty.txt")}) {
            writeFile(empty, "");
            QCOMPARE(readDocument(empty).text.trimmed(), "");
        }
        for (const QByteArray& bytes :
             {whole.left(600), whole.left(whole.size() / 2),
              QByteArray(whole).replace(512, 2048, QByteArray(2048, '\xA5')), QByteArray(5000, '\0'),
              contentOf(TEST_FILES "/protected.doc"), "PK\x03\x04\x14\x00\x00\x00word"_ba}) {
            writeFile(fileName, bytes);
            QCOMPARE(faultOf([&] { readDocument(fileName); }), pathFileAccess);
        }
        for (const char* name : {"none/none.doc", "."})
            QCOMPARE(faultOf([&] { readDocument(m_folder.filePath(name)); }), fileNotFound);
        QCOMPARE(office::suiteProcessId(), suite);
    }

    // Killed before a call, and within one.
    void outlivesItsSuite()
    {
        const QString whole = readDocument(sampleDocument).text;
        const auto kill = [] { signalSuite(SIGKILL); };
        for (const bool isWithinACall : {false, true}) {
            const qint64 lost = startedSuite();
            isWithinACall ? QTimer::singleShot(0, this, kill) : kill();
            const auto [rtf, html, text] = readDocument(sampleDocument);
            QCOMPARE(text, whole);
            QVERIFY(text.size() > 100 && !rtf.isEmpty() && !html.isEmpty());
            QVERIFY(office::suiteProcessId() != lost);
            QCOMPARE(runningIn(lost), 0);
        }
    }

    // One that has died is tried once more; one that hangs is not.
    void lost()
    {
        int tries = 0;
        const auto lose = [&](int signal, int timeout, const char* reason) {
            const qint64 suite = startedSuite();
            office::limitTimeout(timeout);
            const values::RuntimeError error = errorOf([&] {
                office::runOnSuite([&](office::Bridge& bridge, const QString& exchange, QPromise<void>&) {
                    ++tries;
                    signalSuite(signal);
                    bridge.convert(sampleDocument, {}, {exchange + "/x"}, {{"Rich Text Format", ""}});
                });
            });
            QCOMPARE(error.number(), 429);
            QVERIFY2(error.description().contains(reason), error.what());
            QCOMPARE(runningIn(suite), 0);
        };
        lose(SIGKILL, 60'000, "suite stopped, twice.");
        QCOMPARE(tries, 2);
        lose(SIGSTOP, 1000, "suite took too long and");
        QCOMPARE(tries, 2 + 1);
    }

    // While it is busy: a second command does nothing, the end of the program and Cancel give the first up.
    void busy()
    {
        int second = 0;
        qint64 suite = startedSuite();
        QCOMPARE(faultOfBusyCall([&] { second = faultOf([] { readDocument(sampleDocument); }); }), 0);
        QCOMPARE(second, cancelled);
        QCOMPARE(startedSuite(), suite);
        const auto end = [&] {
            office::endSuite();
            QCOMPARE(suiteFolders().size(), 0);
        };
        QCOMPARE(faultOfBusyCall(end), cancelled);
        QTRY_COMPARE(runningIn(suite), 0);
        suite = startedSuite();
        const auto cancel = [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); };
        QCOMPARE(faultOfBusyCall(cancel), cancelled);
        QTRY_COMPARE(runningIn(suite), 0);
    }

    // The pipe is only ours, whatever the umask is; at the end of the program nothing is left.
    void startsAndEnds()
    {
        office::endSuite();
        const mode_t before = umask(0);
        const qint64 suite = startedSuite();
        umask(before);
        const QString command = contentOf(u"/proc/%1/cmdline"_s.arg(suite));
        const QString name = "OSL_PIPE_*_" + command.section("pipe,name=", 1).section(';', 0, 0);
        const QFileInfoList pipes = QDir("/tmp").entryInfoList({name}, QDir::System);
        QCOMPARE(pipes.size(), 1);
        QCOMPARE(pipes[0].permissions() & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
                 QFile::Permissions());
        QVERIFY(runningIn(suite) > 0 && suiteFolders().size() == 1);
        office::endSuite();
        QCOMPARE(runningIn(suite) + office::suiteProcessId() + suiteFolders().size(), 0);
    }

    void workbookFaults()
    {
        const QString disk = m_folder.filePath("disk");
        // Too small for a workbook.
        mountDisk(disk.toStdString(), "size=8k");
        const QString kept = disk + "/it's 1 % ü.xls";
        writeFile(kept, "earlier");
        const auto fault = [](const QString& from, const QString& to, const QString& sheet = "Sheet1") {
            return faultOf([&] { office::makeWorkbook(from, {sheet, {}}, to); });
        };
        QCOMPARE(fault("none.xlt", kept), fileNotFound);
        QCOMPARE(fault(guide, disk), pathFileAccess);
        QCOMPARE(fault(guide, disk + "/none/new.xls"), pathNotFound);
        QCOMPARE(fault(guide, kept), diskFull);
        QCOMPARE(fault(guide, kept, "None"), subscriptOutOfRange);
        QCOMPARE(contentOf(kept), "earlier");
        QCOMPARE(QDir(disk).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 1);
        const QString whole = m_folder.filePath("whole.xls");
        office::makeWorkbook(guide, {"Sheet1", {{0, 2, {}}}}, whole);
        QVERIFY(contentOf(whole).startsWith("\xD0\xCF\x11\xE0"));
    }

    // The suite itself has no room, while it runs and when it starts.
    void noRoomToWork()
    {
        readDocument(sampleDocument);
        QFile rest(m_temporary.filePath("rest"));
        QVERIFY(rest.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        const auto fill = [&] { rest.write(QByteArray(QStorageInfo(m_temporary.path()).bytesAvailable(), 'x')); };
        fill();
        QCOMPARE(faultOf([] { readDocument(sampleDocument); }), diskFull);
        office::endSuite();
        fill();
        QCOMPARE(faultOf([] { readDocument(sampleDocument); }), diskFull);
        QVERIFY(rest.remove());
        QVERIFY(readDocument(sampleDocument).text.size() > 100);
    }

private:
    QFileInfoList suiteFolders() const
    {
        return QDir(m_temporary.path()).entryInfoList({"penwright-office-*"}, QDir::Dirs);
    }

    QTemporaryDir m_folder, m_temporary;
};

int main(int argc, char* argv[])
{
    takeOwnMounts(argc, argv);
    const QApplication application(argc, argv);
    TestSuite test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_suite.moc"
