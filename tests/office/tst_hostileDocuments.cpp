// Templates that refer to other files and to the web, and files that would make the suite ask a question.
#include "office/document.h"
#include "office/reference.h"
#include "office/suite.h"
#include "office/suiteError.h"
#include "office/workbook.h"

#include "hostileDocuments.h"
#include "support/errorOf.h"

#include <QElapsedTimer>
#include <QPixmap>
#include <QProcess>
#include <QStringEncoder>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

#include <csignal>
#include <sys/inotify.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using office::readDocument;

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
            {"web", web},   {"disk", "file://" + path},
            {"path", path}, {"near", "../"},
            {"beside", ""}, {"up", QByteArray("../").repeated(20) + path}};
        // "@" stands for the place.
        const auto add = [&](const char* how, const QByteArrayList& suffixes, const QByteArray& document) {
            for (const auto& [where, place] : places) {
                // Beside a part is inside the document, where nothing may be missing.
                if (document == "@secret.png" && place.isEmpty())
                    continue;
                for (const QByteArray& suffix : suffixes)
                    QTest::addRow("%s %s %s", how, where, suffix.constData())
                        << QByteArray(document).replace("@", place) << suffix;
            }
        };
        const QByteArrayList all{"fodt", "odt", "doc", "docx", "rtf"};
        add("picture", all, framed("image xlink:href='@secret.png'"));
        add("object", all, framed("object xlink:href='@secret.fodt'"));
        add("background", {"fodt", "fott"}, backed("xlink:href='@secret.png'"));
        add("part", {"odt", "docx"}, "@secret.png");
        add("section", all, section("text:section-source xlink:href='@secret.fodt' xlink:type='simple'"));
        add("text section", all, section("text:section-source xlink:href='@secret.txt' xlink:type='simple'"));
        addSingleFormats(add, web);
    }
    void loadsNothingFromOutside()
    {
        QFETCH(QByteArray, document);
        QFETCH(QByteArray, suffix);
        // What is no document is put into one.
        const QString fileName = document.endsWith("secret.png") ? writeZipped(document, suffix)
                                 : document.startsWith("<svg")   ? writeVector(document, suffix)
                                                                 : writeDocument(document, suffix);
        m_visits = 0;
        takeOpenedNames();
        const auto [rtf, html, text, isLasting] = readDocument(fileName);
        QVERIFY2(rtf.contains("kept") && html.contains("kept") && text.contains("kept"), qPrintable(text));
        QCoreApplication::processEvents();
        const QByteArray names = takeOpenedNames();
        QVERIFY2(!names.contains("secret"), names.constData());
        QCOMPARE(m_visits, 0);
    }

    // A cleaning that looks at the same text again and again would take hours, and nothing could stop it.
    void readsHostileTextsOnce()
    {
        for (const char* repeated : {"href= ", "href=\"a&", "<input "}) {
            QElapsedTimer time;
            time.start();
            office::removeReferences("<x " + QByteArray(repeated).repeated(60'000) + '>');
            QVERIFY2(time.elapsed() < 5000, repeated);
        }
    }

    // The suite's own reading of the very same file tells what is in it.
    void keepsPicturesAndHyperlinks()
    {
        for (const char* suffix : {"fodt", "odt", "docx"}) {
            const QString fileName = writeDocument(whole(readFile(m_folder.filePath("secret.png"))), suffix);
            const QString direct = m_folder.filePath("direct.html");
            convert(fileName, direct, "HTML (StarWriter)", "EmbedImages");
            const QByteArray html = readDocument(fileName).html;
            QCOMPARE(html, readFile(direct));
            QVERIFY(html.count("data:image/png") >= 2 && html.contains("https://example.org/?a=1&amp;b=..") &&
                    html.contains("mailto:a@example.org"));
        }
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
    using Add = std::function<void(const char* how, const QByteArrayList& suffixes, const QByteArray& document)>;

    /// Adds the rows for what only one format holds.
    static void addSingleFormats(const Add& add, const QByteArray& web)
    {
        add("vector picture", {"fodt", "xml"},
            "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><image width='9' height='9' "
            "href='@secret.png'/></svg>");
        add("dde", {"fodt"},
            section("office:dde-source office:dde-application='soffice' office:dde-topic='@secret.fodt' "
                    "office:dde-item='x' office:automatic-update='true'"));
        add("html", {"doc"}, readFile(TEST_FILES "/references.html").replace("%web%", web));
        add("html that begins otherwise", {"doc", "html"},
            "<table background='@secret.png'><tr><td>kept</table><link rel=stylesheet href='@secret.css'>");
        add("html body background", {"doc"}, "<html><body background='@secret.png'>kept</body></html>");
        add("html in other letters", {"doc"},
            QByteArray("<table &#98;ackground='@secret.png'><tr><td>kept</table>\0", 54));
        add("frameset", {"doc"},
            "<html><body><p>kept</p><div type=section href='@secret.html'>kept</div></body></html>");
        add("includetext", {"rtf"}, field("INCLUDETEXT \"@secret.html\""));
        add("includepicture", {"rtf"}, field("INCLUDEPICTURE \"@secret.png\" \\\\d"));
        add("dde field", {"rtf"}, field("DDEAUTO soffice \"@secret.fodt\" x"));
        add("rtf template", {"rtf"}, "{\\rtf1\\ansi{\\*\\template @secret.fodt}kept}");
    }

    /// Writes the document as a file of this kind and gives its name.
    QString writeDocument(const QByteArray& document, const QByteArray& suffix)
    {
        static const QHash<QByteArray, const char*> filters{
            {"odt", "writer8"}, {"doc", "MS Word 97"}, {"docx", "MS Word 2007 XML"}, {"rtf", "Rich Text Format"}};
        const QString fileName = m_folder.filePath("template." + suffix);
        const char* filter = document.startsWith("<?xml") ? filters.value(suffix) : nullptr;
        const QString source = filter ? m_folder.filePath("source.fodt") : fileName;
        const bool isMarked = suffix == "html";
        QStringEncoder encodeWide(QStringEncoder::Utf16LE,
                                  isMarked ? QStringEncoder::Flag::WriteBom : QStringEncoder::Flag::Default);
        writeFile(source, isMarked || suffix == "fott" ? QByteArray(encodeWide(QString(document))) : document);
        if (filter)
            convert(source, fileName, filter);
        return fileName;
    }

    /// Writes a document with this picture, which is packed in one kind.
    QString writeVector(const QByteArray& picture, const QByteArray& suffix)
    {
        QProcess packer;
        packer.start("gzip", {"-c"});
        packer.write(picture);
        packer.closeWriteChannel();
        packer.waitForFinished();
        return writeDocument(whole(suffix == "xml" ? packer.readAll() : picture), suffix);
    }

    static void convert(const QString& source, const QString& target, const char* filter, const char* options = "")
    {
        office::runOnSuite([&](office::Bridge& bridge, const QString&, QPromise<void>&) {
            bridge.convert(source, {}, {target}, {{filter, options}});
        });
    }

    /// Writes an ordinary zipped document whose parts then lead to a place.
    QString writeZipped(const QByteArray& place, const QByteArray& suffix)
    {
        const QString fileName = writeDocument(whole(readFile(m_folder.filePath("secret.png"))), suffix);
        office::runOnSuite([&](office::Bridge& bridge, const QString&, QPromise<void>&) {
            bridge.changeParts(fileName, [&](const QByteArray& part) { return linkPart(part, place); });
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
