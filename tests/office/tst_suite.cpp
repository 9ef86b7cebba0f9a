// The office suite itself, without a display: what it reads and makes, and that the program survives its end.
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
/// Looks like markup, but must be read as text.
const QString plainText = "<html><b>Grüße €\n„two“\tthree";

/// Has the suite read a document, starting it if necessary, and gives its process.
qint64 startSuite()
{
    readDocument(sampleDocument);
    return office::suiteProcessId();
}

/// The number of running processes in the group, without zombies.
int countRunning(qint64 group)
{
    int count = 0;
    for (QDirIterator it("/proc", QDir::Dirs); it.hasNext();) {
        const QByteArray stat = readFile(it.next() + "/stat");
        const QByteArrayList fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
        count += fields.size() > 2 && fields[0] != "Z" && fields[2].toLongLong() == group ? 1 : 0;
    }
    return count;
}

void convertSample(office::Bridge& bridge, const QString& exchange)
{
    bridge.convert(sampleDocument, {}, {exchange + "/x"}, {{"Rich Text Format", ""}});
    QFile::remove(exchange + "/x");
}

/// Keeps the suite busy, runs the disturbance meanwhile, and gives the error number with which the busy call ends.
int disturbBusyCall(const std::function<void()>& disturb)
{
    std::atomic<bool> isOver = false;
    QTimer::singleShot(100, qApp, [&] {
        disturb();
        isOver = true;
    });
    return catchFault([&] {
        office::runOnSuite(
            [&](office::Bridge& bridge, const QString& exchange, QPromise<void>&) {
                while (!isOver)
                    convertSample(bridge, exchange);
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
        // File names must be UTF-8 even under this locale.
        qputenv("LC_ALL", "C");
        // The temporary files of the suite lie on this disk.
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
        const QString text = readDocument(fileName).text;
        QVERIFY2(text.contains("thank you for seeing"), qPrintable(text));
        QVERIFY(QFile::exists(lock) && readFile(fileName) == readFile(sampleDocument));
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
        const auto [rtf, html, text, isLasting] = readDocument(fileName);
        QCOMPARE(text.trimmed(), plainText);
        QVERIFY(rtf.startsWith("{\\rtf1") && rtf.count("\n\\par ") == 2);
        QVERIFY(!html.contains("&#65279;") && !html.contains("\xEF\xBB\xBF"));
    }

    // Each is refused with an error, and the same suite goes on.
    void refusesBrokenDocuments()
    {
        const QString fileName = m_folder.filePath("broken.doc");
        const QByteArray whole = readFile(sampleDocument);
        const qint64 suite = startSuite();
        for (const QString& empty : {m_folder.filePath("empty.doc"), m_folder.filePath("empty.txt")}) {
            writeFile(empty, "");
            QCOMPARE(readDocument(empty).text.trimmed(), "");
        }
        for (const QByteArray& bytes :
             {whole.left(600), whole.left(whole.size() / 2),
              QByteArray(whole).replace(512, 2048, QByteArray(2048, '\xA5')), QByteArray(5000, '\0'),
              readFile(TEST_FILES "/protected.doc"), "PK\x03\x04\x14\x00\x00\x00word"_ba}) {
            writeFile(fileName, bytes);
            QCOMPARE(catchFault([&] { readDocument(fileName); }), pathFileAccess);
        }
        for (const char* name : {"none/none.doc", "."})
            QCOMPARE(catchFault([&] { readDocument(m_folder.filePath(name)); }), fileNotFound);
        QCOMPARE(office::suiteProcessId(), suite);
    }

    // A call that comes while it gets ready waits for it, and for nothing else. No wait cursor until then.
    void isPreparedAhead()
    {
        for (const int signal : {0, SIGKILL, SIGSTOP}) {
            office::endSuite();
            office::prepareReading();
            QVERIFY(!QGuiApplication::overrideCursor());
            signalSuite(signal);
            office::limitTimeout(signal == SIGSTOP ? 1000 : 60'000);
            QCOMPARE(catchFault([] { readDocument(sampleDocument); }), signal == SIGSTOP ? 429 : 0);
        }
        // The end of the program does not wait for it.
        office::prepareReading();
        QElapsedTimer end;
        end.start();
        office::endSuite();
        QVERIFY2(end.elapsed() < 500, qPrintable(QString::number(end.elapsed())));
        QCOMPARE(office::suiteProcessId() + suiteFolders().size(), 0);
    }

    // A call whose suite dies, before it or during it, is repeated once; one whose suite hangs is not.
    void repeatsACallOnce()
    {
        const qint64 killed = startSuite();
        signalSuite(SIGKILL);
        QVERIFY(startSuite() != killed);
        const auto lose = [](int signal, int times, const char* reason) {
            const qint64 suite = startSuite();
            office::limitTimeout(signal == SIGSTOP ? 1000 : 60'000);
            int tries = 0;
            const values::RuntimeError error = catchError([&] {
                office::runOnSuite([&](office::Bridge& bridge, const QString& exchange, QPromise<void>&) {
                    if (tries++ < times)
                        signalSuite(signal);
                    convertSample(bridge, exchange);
                });
            });
            QVERIFY2(error.description().contains(reason), error.what());
            QCOMPARE(error.number(), *reason ? 429 : 0);
            QCOMPARE(tries, signal == SIGSTOP ? 1 : 2);
            QCOMPARE(countRunning(suite), 0);
        };
        lose(SIGKILL, 1, "");
        lose(SIGKILL, 2, "suite stopped, twice.");
        lose(SIGSTOP, 1, "suite took too long and");
    }

    // While it is busy a second command does nothing; the end of the program and Cancel abort the first.
    void refusesSecondCallWhileBusy()
    {
        int second = 0;
        qint64 suite = startSuite();
        QCOMPARE(disturbBusyCall([&] { second = catchFault([] { readDocument(sampleDocument); }); }), 0);
        QCOMPARE(second, cancelled);
        QCOMPARE(startSuite(), suite);
        const auto end = [&] {
            office::endSuite();
            QCOMPARE(suiteFolders().size(), 0);
        };
        QCOMPARE(disturbBusyCall(end), cancelled);
        QTRY_COMPARE(countRunning(suite), 0);
        suite = startSuite();
        const auto cancel = [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); };
        QCOMPARE(disturbBusyCall(cancel), cancelled);
        QTRY_COMPARE(countRunning(suite), 0);
    }

    // Nobody else can use the pipe, whatever the umask is; at the end of the program nothing is left.
    void leavesNothingBehind()
    {
        office::endSuite();
        const mode_t before = umask(0);
        const qint64 suite = startSuite();
        umask(before);
        const QString command = readFile(u"/proc/%1/cmdline"_s.arg(suite));
        const QString name = "OSL_PIPE_*_" + command.section("pipe,name=", 1).section(';', 0, 0);
        const QFileInfoList pipes = QDir("/tmp").entryInfoList({name}, QDir::System);
        QCOMPARE(pipes.size(), 1);
        QVERIFY(!(pipes[0].permissions() & QFile::Permissions(0x0066)));
        QVERIFY(countRunning(suite) > 0 && suiteFolders().size() == 1);
        office::endSuite();
        QCOMPARE(countRunning(suite) + office::suiteProcessId() + suiteFolders().size(), 0);
    }

    void reportsWorkbookFaults()
    {
        const QString disk = m_folder.filePath("disk");
        // Too small for a workbook.
        mountDisk(disk.toStdString(), "size=8k");
        const QString kept = disk + "/it's 1 % ü.xls";
        writeFile(kept, "earlier");
        const auto fault = [](const QString& from, const QString& to, const QString& sheet = "Sheet1") {
            return catchFault([&] { office::makeWorkbook(from, {sheet, {}}, to); });
        };
        QCOMPARE(fault("none.xlt", kept), fileNotFound);
        QCOMPARE(fault(guide, disk), pathFileAccess);
        QCOMPARE(fault(guide, disk + "/none/new.xls"), pathNotFound);
        QCOMPARE(fault(guide, kept), diskFull);
        QCOMPARE(fault(guide, kept, "None"), subscriptOutOfRange);
        QCOMPARE(readFile(kept), "earlier");
        QCOMPARE(QDir(disk).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 1);
        const QString whole = m_folder.filePath("whole.xls");
        office::makeWorkbook(guide, {"Sheet1", {{0, 2, {}}}}, whole);
        QVERIFY(readFile(whole).startsWith("\xD0\xCF\x11\xE0"));
    }

    // The disk of the suite's own files is full, while it runs and when it starts.
    void reportsFullDiskOfTheSuite()
    {
        readDocument(sampleDocument);
        QFile rest(m_temporary.filePath("rest"));
        QVERIFY(rest.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        const auto fill = [&] { rest.write(QByteArray(QStorageInfo(m_temporary.path()).bytesAvailable(), 'x')); };
        fill();
        QCOMPARE(catchFault([] { readDocument(sampleDocument); }), diskFull);
        office::endSuite();
        fill();
        QCOMPARE(catchFault([] { readDocument(sampleDocument); }), diskFull);
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
