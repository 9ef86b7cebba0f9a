// The office suite itself, without a display: what it reads and makes, and that the program outlives its end.
#include "office/document.h"
#include "office/suite.h"
#include "office/workbook.h"

#include "support/errorOf.h"
#include "support/files.h"

#include <QApplication>
#include <QDirIterator>
#include <QProgressDialog>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <csignal>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using office::readDocument;

namespace {

constexpr int fileNotFound = 53;
constexpr int pathFileAccess = 75;
constexpr int pathNotFound = 76;
constexpr int subscriptOutOfRange = 9;
constexpr int diskFull = 61;
constexpr int cancelled = 32755;
const QString sampleDocument = QStringLiteral(STAGED_TEMPLATES "/Letters/referral.doc");
const QString guide = QStringLiteral(STAGED_TEMPLATES "/template.xlt");

void signalSuite(int signal)
{
    const auto suite = static_cast<pid_t>(office::suiteProcessId());
    // Without one the signal would go to this very test.
    if (suite <= 0 || ::kill(-suite, signal) != 0)
        qFatal("no suite to signal");
}

/// How many processes of the group run; one that has ended and that nobody has asked about does not.
int runningIn(qint64 group)
{
    int count = 0;
    for (QDirIterator it(u"/proc"_s, QDir::Dirs); it.hasNext();) {
        const QByteArray stat = contentOf(it.next() + u"/stat"_s);
        const QByteArrayList fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
        count += fields.size() > 2 && fields[0] != "Z" && fields[2].toLongLong() == group ? 1 : 0;
    }
    return count;
}

/// A disk of its own size, which goes with this test.
QString mountedAt(const QString& place, const char* options)
{
    QDir().mkpath(place);
    if (mount("disk", place.toLocal8Bit().constData(), "tmpfs", 0, options) != 0)
        qFatal("no disk at %s", qPrintable(place));
    return place;
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
        qputenv("TMPDIR", mountedAt(m_temporary.path(), "size=64m").toLocal8Bit());
    }
    void cleanup()
    {
        office::setPatience(60'000);
        for (const QFileInfo& folder : suiteFolders())
            QCOMPARE(QDir(folder.filePath()).entryList(QDir::Files), QStringList());
    }

    void readsDocumentsOfAnyName()
    {
        const QString name = u"it's \"so\": 100%25 Größe, a#b?c.DOC"_s;
        const QString fileName = m_folder.filePath(name);
        QVERIFY(QFile::copy(sampleDocument, fileName));
        const QByteArray before = contentOf(fileName);
        // Another user has it open.
        const QString lock = m_folder.filePath(u".~lock."_s + name + u'#');
        writeFile(lock, ",other,desk,18.08.2004 09:30,file:///other;");
        const office::Content content = readDocument(fileName);
        QVERIFY2(content.rtf.startsWith("{\\rtf1") && content.rtf.contains("thank you for seeing"),
                 content.rtf.constData());
        QVERIFY2(content.html.contains("<html") && content.html.contains("thank you for seeing"),
                 content.html.constData());
        QVERIFY2(content.text.contains(u"thank you for seeing"), qPrintable(content.text));
        QCOMPARE(contentOf(fileName), before);
        QVERIFY(QFile::exists(lock));
    }

    void readsTexts()
    {
        const QString fileName = m_folder.filePath(u"text.TXT"_s);
        const QString lines = u"Grüße\ntwo\tthree"_s;
        const auto check = [&](const QByteArray& bytes, const QString& text) {
            writeFile(fileName, bytes);
            const office::Content content = readDocument(fileName);
            QCOMPARE(content.text.trimmed(), text);
            QVERIFY(content.rtf.startsWith("{\\rtf1"));
            QCOMPARE(content.rtf.count("\n\\par "), text.count(u'\n') + 1);
        };
        check(lines.toUtf8(), lines);
        check(lines.toLatin1(), lines);
        check(lines.toLatin1().replace("\n", "\r\n"), lines);
        check("<html><b>x</b>", u"<html><b>x</b>"_s);
        check("", QString());
    }

    // An end in good order, and the same suite goes on.
    void brokenDocuments()
    {
        const QString fileName = m_folder.filePath(u"broken.doc"_s);
        const QByteArray whole = contentOf(sampleDocument);
        readDocument(sampleDocument);
        const qint64 suite = office::suiteProcessId();
        writeFile(fileName, QByteArray());
        QCOMPARE(readDocument(fileName).text.trimmed(), QString());
        for (const QByteArray& bytes :
             {whole.left(600), whole.left(whole.size() / 2),
              QByteArray(whole).replace(512, 2048, QByteArray(2048, '\xA5')), QByteArray(5000, '\0'),
              contentOf(QStringLiteral(TEST_FILES "/protected.doc")), "PK\x03\x04\x14\x00\x00\x00word"_ba}) {
            writeFile(fileName, bytes);
            QCOMPARE(faultOf([&] { readDocument(fileName); }), pathFileAccess);
        }
        for (const char* name : {"none/none.doc", "."})
            QCOMPARE(faultOf([&] { readDocument(m_folder.filePath(QLatin1String(name))); }), fileNotFound);
        QCOMPARE(office::suiteProcessId(), suite);
    }

    void outlivesItsSuite_data()
    {
        QTest::addColumn<bool>("isWithinACall");
        QTest::newRow("killed before") << false;
        QTest::newRow("killed within") << true;
    }
    void outlivesItsSuite()
    {
        QFETCH(bool, isWithinACall);
        const office::Content whole = readDocument(sampleDocument);
        const qint64 lost = office::suiteProcessId();
        if (isWithinACall)
            QTimer::singleShot(0, this, [&] { signalSuite(SIGKILL); });
        else
            signalSuite(SIGKILL);
        const office::Content content = readDocument(sampleDocument);
        QCOMPARE(content.text, whole.text);
        QVERIFY(content.text.size() > 100 && !content.rtf.isEmpty() && !content.html.isEmpty());
        QVERIFY(office::suiteProcessId() != lost);
        QCOMPARE(runningIn(lost), 0);
    }

    // One that has died is tried once more; one that hangs is not. The clocks go on meanwhile.
    void lost_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<int>("expectedTries");
        QTest::addColumn<QString>("reason");
        QTest::newRow("dead") << SIGKILL << 2 << u"stopped, twice"_s;
        QTest::newRow("hung") << SIGSTOP << 1 << u"took too long"_s;
    }
    void lost()
    {
        QFETCH(int, signal);
        readDocument(sampleDocument);
        const qint64 lost = office::suiteProcessId();
        office::setPatience(signal == SIGSTOP ? 1000 : 60'000);
        int ticks = 0;
        QTimer clock;
        clock.callOnTimeout([&] { ++ticks; });
        clock.start(50);
        int tries = 0;
        const values::RuntimeError error = errorOf([&] {
            office::onSuite([&](office::Bridge& bridge, const QString& exchange, QPromise<void>&) {
                ++tries;
                signalSuite(signal);
                bridge.convert(sampleDocument, {}, {exchange + u"/x"_s}, {{"Rich Text Format", ""}});
            });
        });
        QCOMPARE(error.number(), 429);
        QTEST(error.description().section(u"suite "_s, 1).section(u'.', 0, 0).section(u" and"_s, 0, 0), "reason");
        QTEST(tries, "expectedTries");
        QVERIFY2(signal == SIGKILL || ticks >= 15, qPrintable(QString::number(ticks)));
        QCOMPARE(runningIn(lost), 0);
    }

    // While it is busy: a second command does nothing, the end of the program and Cancel give the first up.
    void busy_data()
    {
        QTest::addColumn<int>("what");
        QTest::newRow("second command") << 0;
        QTest::newRow("end of the program") << 1;
        QTest::newRow("cancelled") << 2;
    }
    void busy()
    {
        QFETCH(int, what);
        readDocument(sampleDocument);
        const qint64 suite = office::suiteProcessId();
        int second = 0;
        std::atomic<bool> isReading = true;
        QTimer disturb;
        disturb.callOnTimeout([&] {
            disturb.stop();
            if (what == 0)
                second = faultOf([&] { readDocument(sampleDocument); });
            if (what == 1) {
                office::endSuite();
                second = static_cast<int>(suiteFolders().size());
            }
            auto* box = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
            if (what == 2 && box)
                QTest::keyClick(box, Qt::Key_Escape);
            isReading = false;
        });
        disturb.start(100);
        const int first = faultOf([&] {
            office::onSuite(
                [&](office::Bridge& bridge, const QString& exchange, QPromise<void>&) {
                    while (isReading)
                        bridge.convert(sampleDocument, {}, {exchange + u"/x"_s}, {{"Rich Text Format", ""}});
                    QFile::remove(exchange + u"/x"_s);
                },
                {.text = u"Working"_s, .boxAfter = 10});
        });
        QCOMPARE(first, what == 0 ? 0 : cancelled);
        QCOMPARE(second, what == 0 ? cancelled : 0);
        QTRY_VERIFY(what == 0 || runningIn(suite) == 0);
        QVERIFY(readDocument(sampleDocument).text.size() > 100);
    }

    // Whatever the umask is.
    void pipeIsOnlyOurs()
    {
        office::endSuite();
        const mode_t before = umask(0);
        readDocument(sampleDocument);
        umask(before);
        const QByteArray command = contentOf(u"/proc/%1/cmdline"_s.arg(office::suiteProcessId()));
        const QString name = QString::fromUtf8(command).section(u"pipe,name="_s, 1).section(u';', 0, 0);
        const QFileInfoList pipes = QDir(u"/tmp"_s).entryInfoList({u"OSL_PIPE_*_"_s + name}, QDir::System);
        QCOMPARE(pipes.size(), 1);
        QCOMPARE(pipes[0].permissions() & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
                 QFile::Permissions());
    }

    void workbookFaults()
    {
        // Too small for a workbook.
        const QString disk = mountedAt(m_folder.filePath(u"disk"_s), "size=8k");
        const QString kept = disk + u"/it's 1 % ü.xls"_s;
        writeFile(kept, "earlier");
        const auto fault = [&](const QString& from, const QString& to, const QString& sheet = u"Sheet1"_s) {
            return faultOf([&] { office::makeWorkbook(from, {sheet, {}}, to); });
        };
        const QList<int> faults{fault(u"none.xlt"_s, kept), fault(guide, disk), fault(guide, disk + u"/none/new.xls"_s),
                                fault(guide, kept), fault(guide, kept, u"None"_s)};
        QCOMPARE(faults, (QList<int>{fileNotFound, pathFileAccess, pathNotFound, diskFull, subscriptOutOfRange}));
        QCOMPARE(contentOf(kept), "earlier");
        QCOMPARE(QDir(disk).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 1);
        const QString whole = m_folder.filePath(u"whole.xls"_s);
        office::makeWorkbook(guide, {u"Sheet1"_s, {{0, 2, {}}}}, whole);
        QVERIFY(contentOf(whole).startsWith("\xD0\xCF\x11\xE0"));
    }

    // The suite itself has no room, while it runs and when it starts.
    void noRoomToWork()
    {
        readDocument(sampleDocument);
        QFile rest(m_temporary.filePath(u"rest"_s));
        QVERIFY(rest.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        for (const QByteArray& piece : {QByteArray(1 << 20, 'x'), QByteArray(1 << 10, 'x')}) {
            while (rest.write(piece) == piece.size()) {
            }
        }
        QCOMPARE(faultOf([] { readDocument(sampleDocument); }), diskFull);
        office::endSuite();
        while (rest.write("x", 1) == 1) {
        }
        QCOMPARE(faultOf([] { readDocument(sampleDocument); }), diskFull);
        QVERIFY(rest.remove());
        QVERIFY(readDocument(sampleDocument).text.size() > 100);
    }

    void endsWithTheProgram()
    {
        readDocument(sampleDocument);
        const qint64 suite = office::suiteProcessId();
        QVERIFY(runningIn(suite) > 0);
        QCOMPARE(suiteFolders().size(), 1);
        office::endSuite();
        QCOMPARE(runningIn(suite), 0);
        QCOMPARE(office::suiteProcessId(), 0);
        QCOMPARE(suiteFolders().size(), 0);
    }

private:
    QFileInfoList suiteFolders() const
    {
        return QDir(m_temporary.path()).entryInfoList({u"penwright-office-*"_s}, QDir::Dirs);
    }

    QTemporaryDir m_folder;
    QTemporaryDir m_temporary;
};

// In a mount table of the test's own, which nobody else sees.
int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("OWN_MOUNTS")) {
        qputenv("OWN_MOUNTS", "yes");
        std::vector<const char*> words{"unshare", "--map-root-user", "--mount"};
        words.insert(words.end(), argv, argv + argc + 1);
        return execvp(words[0], const_cast<char**>(words.data()));
    }
    const QApplication application(argc, argv);
    TestSuite test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_suite.moc"
