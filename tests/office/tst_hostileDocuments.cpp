// Templates that refer to other files and to the web, and files that would make the suite ask a question.
#include "office/document.h"
#include "office/suite.h"
#include "office/suiteError.h"
#include "office/workbook.h"

#include "support/errorOf.h"
#include "support/files.h"

#include <QPixmap>
#include <QStringEncoder>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

#include <csignal>
#include <sys/inotify.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using office::readDocument;

namespace {

/// A text that says "kept" before this.
QByteArray flat(const QByteArray& body)
{
    return readFile(TEST_FILES "/document.fodt").replace('@', body);
}

/// A picture or another object.
QByteArray framed(const QByteArray& element)
{
    return flat("<text:p><draw:frame svg:width='3cm' svg:height='3cm' text:anchor-type='as-char'><draw:" + element +
                " xlink:type='simple' xlink:actuate='onLoad'/></draw:frame></text:p>");
}

QByteArray section(const QByteArray& source)
{
    return flat("<text:section text:name='s'><" + source + "/><text:p>old</text:p></text:section>");
}

QByteArray field(const QByteArray& instruction)
{
    return "{\\rtf1\\ansi kept {\\field{\\*\\fldinst " + instruction + "}{\\fldrslt old}}\\par}";
}

} // namespace

class TestHostileDocuments : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TMPDIR", m_temporary.path().toLocal8Bit());
        QVERIFY(m_server.listen(QHostAddress::LocalHost));
        connect(&m_server, &QTcpServer::newConnection, this, [this] {
            ++m_visits;
            m_server.nextPendingConnection()->close();
        });
        QPixmap red(3, 3);
        red.fill(Qt::red);
        QVERIFY(red.save(m_folder.filePath("secret.png")));
        writeFile(m_folder.filePath("secret.txt"), "secret");
        writeFile(m_folder.filePath("secret.html"), "<p>secret</p>");
        writeFile(m_folder.filePath("secret.fodt"), flat("<text:p>secret</text:p>"));
        writeFile(m_folder.filePath("secret.css"), "p:before{content:'secret'} p{color:#123456}");
        inotify_add_watch(m_watch, QFile::encodeName(m_folder.path()).constData(), IN_OPEN);
    }

    void loadsNothingFromOutside_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QByteArray>("suffix");
        const QByteArray web = "http://127.0.0.1:" + QByteArray::number(m_server.serverPort()) + "/";
        const QByteArray path = m_folder.path().toUtf8() + "/";
        const std::pair<const char*, QByteArray> places[] = {
            {"web", web}, {"disk", "file://" + path}, {"path", path}, {"near", "../"}, {"beside", ""}};
        // "@" stands for the place.
        const auto add = [&](const char* how, const QByteArrayList& suffixes, const QByteArray& document) {
            for (const auto& [where, place] : places) {
                for (const QByteArray& suffix : suffixes)
                    QTest::addRow("%s %s %s", how, where, suffix.constData())
                        << QByteArray(document).replace("@", place) << suffix;
            }
        };
        const QByteArrayList all{"fodt", "odt", "doc", "docx", "rtf"};
        add("picture", all, framed("image xlink:href='@secret.png'"));
        add("object", all, framed("object xlink:href='@secret.fodt'"));
        add("section", all, section("text:section-source xlink:href='@secret.fodt' xlink:type='simple'"));
        add("text section", all, section("text:section-source xlink:href='@secret.txt' xlink:type='simple'"));
        add("dde", {"fodt"},
            section("office:dde-source office:dde-application='soffice' office:dde-topic='@secret.fodt' "
                    "office:dde-item='x' office:automatic-update='true'"));
        add("html", {"doc"}, readFile(TEST_FILES "/references.html").replace("%web%", web));
        add("html that begins otherwise", {"doc", "html"},
            "<table background='@secret.png'><tr><td>kept</table><link rel=stylesheet href='@secret.css'>");
        add("html body background", {"doc"}, "<html><body background='@secret.png'>kept</body></html>");
        add("frameset", {"doc"},
            "<html><body><p>kept</p><div type=section href='@secret.html'>kept</div></body></html>");
        add("includetext", {"rtf"}, field("INCLUDETEXT \"@secret.html\""));
        add("includepicture", {"rtf"}, field("INCLUDEPICTURE \"@secret.png\" \\\\d"));
        add("dde field", {"rtf"}, field("DDEAUTO soffice \"@secret.fodt\" x"));
        add("rtf template", {"rtf"}, "{\\rtf1\\ansi{\\*\\template @secret.fodt}kept}");
    }
    void loadsNothingFromOutside()
    {
        QFETCH(QByteArray, document);
        QFETCH(QByteArray, suffix);
        const QString fileName = writeDocument(document, suffix);
        m_visits = 0;
        takeOpenedNames();
        const auto [rtf, html, text, isLasting] = readDocument(fileName);
        QVERIFY2(rtf.contains("kept") && html.contains("kept") && text.contains("kept"), qPrintable(text));
        QCoreApplication::processEvents();
        const QByteArray names = takeOpenedNames();
        QVERIFY2(!names.contains("secret"), names.constData());
        QCOMPARE(m_visits, 0);
    }

    // Neither hidden nor in a window, as its own file or as a new one.
    void runsNoMacros()
    {
        const QString trace = m_folder.filePath("trace");
        // When the document is opened, its macro writes that file.
        const QByteArray macro = readFile(TEST_FILES "/macroOnOpening.xml").replace('@', trace.toUtf8());
        QByteArray document = flat({}).replace("<office:body>", macro + "<office:body>");
        const QString text = m_folder.filePath("macro.fodt");
        const QString sheet = m_folder.filePath("macro.fods");
        writeFile(text, document);
        writeFile(sheet, document.replace("opendocument.text", "opendocument.spreadsheet")
                             .replace("<office:text><text:p>kept</text:p></office:text>",
                                      "<office:spreadsheet><table:table table:name='Sheet1'/></office:spreadsheet>"));
        for (const office::ShowAs as : {office::ShowAs::File, office::ShowAs::NewDocument}) {
            QVERIFY(readDocument(text).text.contains("kept"));
            m_shown << office::suiteProcessId();
            office::showWorkbook(sheet, as);
        }
        office::makeWorkbook(sheet, {"Sheet1", {}}, m_folder.filePath("made.xls"));
        m_shown << office::suiteProcessId();
        office::showWorkbook(m_folder.filePath("made.xls"), office::ShowAs::NewDocument);
        // In a window, a macro would run after the call.
        QTest::qWait(2000);
        QVERIFY(!QFile::exists(trace));
    }

    // A question would wait for ever, because nobody sees it.
    void asksNoQuestion()
    {
        office::limitTimeout(15'000);
        const QString guide = m_folder.filePath("template.xls");
        const QString lock = m_folder.filePath(".~lock.template.xls#");
        const auto makeAndShow = [&] {
            office::makeWorkbook(STAGED_TEMPLATES "/template.xlt", {"Sheet1", {}}, guide);
            m_shown << office::suiteProcessId();
            office::showWorkbook(guide, office::ShowAs::File);
        };
        writeFile(lock, ",other,desk,18.08.2004 09:30,file:///other;");
        QCOMPARE(catchFault(makeAndShow), 0);
        QVERIFY(QFile::remove(lock));
        QCOMPARE(catchFault(makeAndShow), 0);
        QCOMPARE(catchFault(makeAndShow), 0);
    }

    void reportsFullDisk()
    {
        QFile full("/dev/full");
        QVERIFY(full.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && full.write("x") < 0);
        QCOMPARE(office::writeError(full, "x.xls").number(), 61);
    }

    // The windows would stay open after the test.
    void cleanupTestCase()
    {
        office::endSuite();
        for (const qint64 suite : m_shown)
            ::kill(static_cast<pid_t>(-suite), SIGKILL);
    }

private:
    /// Writes the document as a file of this kind and gives its name.
    QString writeDocument(const QByteArray& document, const QByteArray& suffix)
    {
        static const QHash<QByteArray, const char*> filters{
            {"odt", "writer8"}, {"doc", "MS Word 97"}, {"docx", "MS Word 2007 XML"}, {"rtf", "Rich Text Format"}};
        const QString fileName = m_folder.filePath("template." + suffix);
        const char* filter = document.startsWith("<?xml") ? filters.value(suffix) : nullptr;
        const QString source = filter ? m_folder.filePath("source.fodt") : fileName;
        QStringEncoder encodeWide(QStringEncoder::Utf16LE, QStringEncoder::Flag::WriteBom);
        writeFile(source, suffix == "html" ? QByteArray(encodeWide(QString(document))) : document);
        if (filter)
            office::runOnSuite([&](office::Bridge& bridge, const QString&, QPromise<void>&) {
                bridge.convert(source, {}, {fileName}, {{filter, ""}});
            });
        return fileName;
    }

    /// The names of the files opened since the last call, among other bytes.
    QByteArray takeOpenedNames() const
    {
        QByteArray events(1 << 16, '\0');
        events.resize(std::max<qsizetype>(read(m_watch, events.data(), events.size()), 0));
        return events.replace('\0', ' ');
    }

    QTemporaryDir m_folder, m_temporary;
    int m_watch = inotify_init1(IN_NONBLOCK);
    QTcpServer m_server;
    int m_visits = 0;
    QList<qint64> m_shown; // suites with windows
};

QTEST_MAIN(TestHostileDocuments)
#include "tst_hostileDocuments.moc"
