// The office suite itself, without a display: what it reads and makes, and that the program outlives its end.
#include "office/document.h"
#include "office/suite.h"
#include "office/workbook.h"

#include "support/errorOf.h"

#include <QDirIterator>
#include <QProcess>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>
#include <QTimer>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using office::readDocument;

namespace {

constexpr int fileNotFound = 53;
constexpr int pathFileAccess = 75;
constexpr int pathNotFound = 76;
const QString words = u"Grüße an Dr. O'Hara"_s;
const QString sampleDocument = QStringLiteral(STAGED_TEMPLATES "/Letters/referral.doc");
const QString guide = QStringLiteral(STAGED_TEMPLATES "/template.xlt");

QByteArray bytesOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

/// Has the suite write a text as a document.
void writeDocument(const QString& fileName, const QString& text)
{
    QTemporaryFile file;
    QVERIFY(file.open() && file.write(text.toUtf8()) > 0 && file.flush());
    office::onSuite([&](office::Bridge& bridge, const QString&) {
        bridge.convert(file.fileName(), {"Text (encoded)", "UTF8"}, {fileName}, {{"MS Word 97", ""}});
    });
}

void signalSuite(int signal)
{
    QCOMPARE(::kill(-static_cast<pid_t>(office::suiteProcessId()), signal), 0);
}

/// How many processes of the group run; one that has ended and that nobody has asked about does not.
int runningIn(qint64 group)
{
    int count = 0;
    for (QDirIterator it(u"/proc"_s, QDir::Dirs); it.hasNext();) {
        const QByteArray stat = bytesOf(it.next() + u"/stat"_s);
        const QByteArrayList fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
        count += fields.size() > 2 && fields[0] != "Z" && fields[2].toLongLong() == group ? 1 : 0;
    }
    return count;
}

QString cellsOf(const QString& workbook)
{
    QProcess reader;
    reader.start(u"xls2csv"_s, {u"-d"_s, u"utf-8"_s, workbook});
    reader.waitForFinished();
    return QString::fromUtf8(reader.readAllStandardOutput());
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
        qputenv("TMPDIR", m_temporary.path().toLocal8Bit());
    }
    void cleanup()
    {
        office::setPatience(60'000);
        for (const QFileInfo& folder : suiteFolders())
            QCOMPARE(QDir(folder.filePath()).entryList(QDir::Files), QStringList());
    }

    void readsDocumentsOfAnyName_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"plain.doc", "a b.doc", "it's \"so\".doc", "Übergröße.doc", "100%25.doc", "a#b?c.DOC"})
            QTest::newRow(name) << QString::fromUtf8(name);
    }
    void readsDocumentsOfAnyName()
    {
        QFETCH(QString, name);
        const QString fileName = m_folder.filePath(name);
        if (!QFile::exists(m_folder.filePath(u"made"_s)))
            writeDocument(m_folder.filePath(u"made"_s), words);
        QVERIFY(QFile::copy(m_folder.filePath(u"made"_s), fileName));
        const QByteArray before = bytesOf(fileName);
        // Another user has it open.
        QFile lock(m_folder.filePath(u".~lock."_s + name + u'#'));
        QVERIFY(lock.open(QIODevice::WriteOnly) && lock.write(",other,desk,18.08.2004 09:30,file:///other;") > 0);
        lock.close();
        const office::Content content = readDocument(fileName);
        QVERIFY2(content.rtf.startsWith("{\\rtf1") && content.rtf.contains("an Dr. O"), content.rtf.constData());
        QVERIFY2(content.html.contains("<html") && content.html.contains("an Dr. O"), content.html.constData());
        QCOMPARE(content.text.trimmed(), words);
        QCOMPARE(bytesOf(fileName), before);
        QVERIFY(lock.exists());
    }

    void readsTexts_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        const QString lines = u"Grüße\ntwo\tthree"_s;
        QTest::newRow("utf-8") << u"u.txt"_s << lines.toUtf8() << lines;
        QTest::newRow("latin-1") << u"l.TXT"_s << lines.toLatin1() << lines;
        QTest::newRow("dos lines") << u"d.txt"_s
                                   << QByteArray("Gr\xFC\xDF"
                                                 "e\r\ntwo")
                                   << u"Grüße\ntwo"_s;
        QTest::newRow("looks like a page") << u"p.txt"_s << QByteArray("<html><b>x</b>") << u"<html><b>x</b>"_s;
        QTest::newRow("empty") << u"e.txt"_s << QByteArray() << QString();
    }
    void readsTexts()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        write(name, bytes);
        const office::Content content = readDocument(m_folder.filePath(name));
        QTEST(content.text.trimmed().remove(QChar(0xFEFF)), "text");
        QVERIFY(content.rtf.startsWith("{\\rtf1"));
        QCOMPARE(content.rtf.count("\n\\par "), content.text.trimmed().count(u'\n') + 1);
    }

    void missingDocument()
    {
        for (const char* name : {"none.doc", "none/none.doc", "."})
            QCOMPARE(faultOf([&] { readDocument(m_folder.filePath(QLatin1String(name))); }), fileNotFound);
    }

    // An end in good order, and the same suite goes on.
    void brokenDocuments_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("isRefused");
        const QByteArray whole = bytesOf(sampleDocument);
        QTest::newRow("empty") << QByteArray() << false;
        QTest::newRow("head only") << whole.left(600) << true;
        QTest::newRow("half") << whole.left(whole.size() / 2) << true;
        QTest::newRow("noise inside") << QByteArray(whole).replace(512, 2048, QByteArray(2048, '\xA5')) << true;
        QTest::newRow("protected by a password") << bytesOf(QStringLiteral(TEST_FILES "/protected.doc")) << true;
        QTest::newRow("zeros") << QByteArray(5000, '\0') << true;
        QTest::newRow("cut archive") << QByteArray("PK\x03\x04\x14\x00\x00\x00word/document.xml") << true;
    }
    void brokenDocuments()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, isRefused);
        readDocument(sampleDocument);
        const qint64 suite = office::suiteProcessId();
        write(u"broken.doc"_s, bytes);
        QCOMPARE(faultOf([&] { readDocument(m_folder.filePath(u"broken.doc"_s)); }), isRefused ? pathFileAccess : 0);
        QCOMPARE(office::suiteProcessId(), suite);
    }

    void followsNoLinks()
    {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        write(u"linked.doc"_s,
              QByteArrayLiteral("<html><body>text<img src='http://127.0.0.1:%1/a.png' width=9 height=9>"
                                "</body></html>")
                  .replace("%1", QByteArray::number(server.serverPort())));
        QVERIFY(readDocument(m_folder.filePath(u"linked.doc"_s)).text.contains(u"text"));
        QVERIFY(!server.waitForNewConnection(300));
    }

    void outlivesItsSuite_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<bool>("isWithinACall");
        QTest::newRow("killed before") << SIGKILL << false;
        QTest::newRow("killed within") << SIGKILL << true;
        QTest::newRow("hung") << SIGSTOP << false;
    }
    // The clocks go on while a suite that does not answer is waited for.
    void outlivesItsSuite()
    {
        QFETCH(int, signal);
        QFETCH(bool, isWithinACall);
        const office::Content whole = readDocument(sampleDocument);
        const qint64 lost = office::suiteProcessId();
        if (isWithinACall)
            QTimer::singleShot(0, this, [&] { signalSuite(signal); });
        else
            signalSuite(signal);
        if (signal == SIGSTOP) {
            office::setPatience(1000);
            QTimer::singleShot(500, this, [] { office::setPatience(60'000); });
        }
        int ticks = 0;
        QTimer clock;
        connect(&clock, &QTimer::timeout, this, [&] { ++ticks; });
        clock.start(50);
        const office::Content content = readDocument(sampleDocument);
        QVERIFY2(signal == SIGKILL || ticks >= 15, qPrintable(QString::number(ticks)));
        QCOMPARE(content.text, whole.text);
        QVERIFY(content.text.size() > 100 && !content.rtf.isEmpty() && !content.html.isEmpty());
        QVERIFY(office::suiteProcessId() != lost);
        QCOMPARE(runningIn(lost), 0);
    }

    void lostTwice()
    {
        int tries = 0;
        const values::RuntimeError error = errorOf([&] {
            office::onSuite([&](office::Bridge& bridge, const QString& exchange) {
                ++tries;
                signalSuite(SIGKILL);
                bridge.convert(sampleDocument, {}, {exchange + u"/x"_s}, {{"Rich Text Format", ""}});
            });
        });
        QCOMPARE(error.number(), 429);
        QVERIFY(error.description().contains(u"stopped or did not answer, twice"));
        QCOMPARE(tries, 2);
    }

    void textsStayTexts()
    {
        const QString made = m_folder.filePath(u"it's 1 % ü.xls"_s);
        office::makeWorkbook(
            guide, {u"Sheet1"_s, {{0, 2, {{u"=1+1"_s, u"+2"_s, u"-3"_s}, {u"@sum"_s, u"'5"_s, words}}}}}, made);
        const QStringList lines = cellsOf(made).split(u'\n');
        QCOMPARE(lines.value(2), u"\"=1+1\",\"+2\",\"-3\""_s);
        QCOMPARE(lines.value(3), u"\"@sum\",\"'5\",\"%1\""_s.arg(words));
        office::makeWorkbook(guide, {u"Sheet1"_s, {}}, made);
        QCOMPARE(cellsOf(made), cellsOf(guide));
        QVERIFY(bytesOf(made).startsWith("\xD0\xCF\x11\xE0"));
    }

    // The disk is full for every one of them.
    void workbookFaults_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<int>("number");
        QTest::newRow("no template") << u"none.xlt"_s << u"kept.xls"_s << fileNotFound;
        QTest::newRow("to a folder") << guide << u"."_s << pathFileAccess;
        QTest::newRow("to no folder") << guide << u"none/new.xls"_s << pathNotFound;
        QTest::newRow("onto an earlier one") << guide << u"kept.xls"_s << pathFileAccess;
    }
    void workbookFaults()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        write(u"kept.xls"_s, "earlier");
        const QStringList before = folderEntries();
        readDocument(sampleDocument);
        rlimit limit{};
        getrlimit(RLIMIT_FSIZE, &limit);
        const rlimit small{1000, limit.rlim_max};
        std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &small);
        const int number = faultOf([&] { office::makeWorkbook(from, {u"Sheet1"_s, {}}, m_folder.filePath(to)); });
        setrlimit(RLIMIT_FSIZE, &limit);
        QTEST(number, "number");
        QCOMPARE(bytesOf(m_folder.filePath(u"kept.xls"_s)), "earlier");
        QCOMPARE(folderEntries(), before);
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
    void write(const QString& name, const QByteArray& bytes)
    {
        QFile file(m_folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    QStringList folderEntries() const { return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden); }
    QFileInfoList suiteFolders() const
    {
        return QDir(m_temporary.path()).entryInfoList({u"penwright-office-*"_s}, QDir::Dirs);
    }

    QTemporaryDir m_folder;
    QTemporaryDir m_temporary;
};

QTEST_MAIN(TestSuite)
#include "tst_suite.moc"
