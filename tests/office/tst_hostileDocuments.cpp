// Templates that reach for what is not in them, and files that would make the suite ask a question.
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
#include <QUrl>

#include <csignal>
#include <sys/inotify.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using office::readDocument;

namespace {

const QByteArray flatHead =
    "<?xml version='1.0'?><office:document xmlns:office='urn:oasis:names:tc:opendocument:xmlns:office:1.0' "
    "xmlns:text='urn:oasis:names:tc:opendocument:xmlns:text:1.0' xmlns:xlink='http://www.w3.org/1999/xlink' "
    "xmlns:draw='urn:oasis:names:tc:opendocument:xmlns:drawing:1.0' "
    "xmlns:svg='urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0' office:version='1.2' "
    "office:mimetype=\"application/vnd.oasis.opendocument.text\"><office:body><office:text><text:p>kept</text:p>"_ba;
const QByteArray flatTail = "</office:text></office:body></office:document>"_ba;

const QString euros = u"Grüße €\n„two“"_s;

QByteArray flat(const QByteArray& body)
{
    return flatHead + body + flatTail;
}

QByteArray picture(const QByteArray& address)
{
    return flat(
        "<text:p><draw:frame svg:width='3cm' svg:height='3cm' text:anchor-type='as-char'><draw:image xlink:href='" +
        address + "' xlink:type='simple' xlink:actuate='onLoad'/></draw:frame></text:p>");
}

QByteArray section(const QByteArray& source)
{
    return flat("<text:section text:name='s'>" + source + "<text:p>old</text:p></text:section>");
}

QByteArray linked(const QByteArray& address)
{
    return section("<text:section-source xlink:href='" + address + "' xlink:type='simple'/>");
}

QByteArray object(const QByteArray& address)
{
    return flat(
        "<text:p><draw:frame svg:width='3cm' svg:height='3cm' text:anchor-type='as-char'><draw:object xlink:href='" +
        address + "' xlink:type='simple' xlink:actuate='onLoad'/></draw:frame></text:p>");
}

QByteArray html(const QByteArray& head, const QByteArray& body)
{
    return "<html><head>" + head + "</head><body><p>kept</p>" + body + "</body></html>";
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
        QVERIFY(red.save(m_folder.filePath(u"secret.png"_s)));
        writeFile(m_folder.filePath(u"secret.txt"_s), "secret");
        writeFile(m_folder.filePath(u"secret.html"_s), "<p>secret</p>");
        writeFile(m_folder.filePath(u"secret.fodt"_s), flat("<text:p>secret</text:p>"));
        writeFile(m_folder.filePath(u"secret.css"_s), "p:before{content:'secret'} p{color:#123456}");
        inotify_add_watch(m_watch, QFile::encodeName(m_folder.path()).constData(), IN_OPEN);
    }

    void reachesForNothing_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QString>("suffix");
        const QByteArray web = "http://127.0.0.1:" + QByteArray::number(m_server.serverPort()) + "/";
        const QByteArray disk = QUrl::fromLocalFile(m_folder.path()).toEncoded() + "/";
        const QByteArray path = m_folder.path().toUtf8() + "/";
        const auto row = [&](const char* name, const QString& suffix, const QByteArray& document) {
            QTest::newRow(name) << document << suffix;
        };
        for (const auto& [where, at] : {std::pair("web", web), std::pair("disk", disk), std::pair("near", "../"_ba),
                                        std::pair("beside", ""_ba)}) {
            const auto flatRow = [&](const char* what, const QByteArray& document) {
                for (const char* suffix : {"fodt", "odt", "doc", "docx", "rtf"})
                    QTest::addRow("%s %s %s", what, where, suffix) << document << QString::fromLatin1(suffix);
            };
            flatRow("picture", picture(at + "secret.png"));
            flatRow("section", linked(at + "secret.fodt"));
            flatRow("text section", linked(at + "secret.txt"));
            flatRow("object", object(at + "secret.fodt"));
            QTest::addRow("html %s", where)
                << html("<link rel=stylesheet type='text/css' href='" + at + "secret.css'><base href='" + web + "'>",
                        "<img src='" + at + "secret.png' width=9 height=9><iframe src='" + at +
                            "secret.html'></iframe>"
                            "<object data='" +
                            at + "secret.html' type='text/html'></object><embed src='" + at +
                            "secret.html'>"
                            "<div style='background:url(" +
                            at + "secret.png)'>x</div><table background='" + at + "secret.png'><tr><td background='" +
                            at +
                            "secret.png'>q</table>"
                            "<sdfield><a href='" +
                            at + "secret.html'>l</a>")
                << u"doc"_s;
            QTest::addRow("html body background %s", where)
                << "<html><body background='" + at + "secret.png'>kept</body></html>" << u"doc"_s;
            QTest::addRow("frameset %s", where)
                << html("", "<div type=section href='" + at + "secret.html'>kept</div>") << u"doc"_s;
            QTest::addRow("includetext %s", where) << field("INCLUDETEXT \"" + at + "secret.html\"") << u"rtf"_s;
            QTest::addRow("includepicture %s", where)
                << field("INCLUDEPICTURE \"" + at + "secret.png\" \\\\d") << u"rtf"_s;
            QTest::addRow("rtf template %s", where)
                << "{\\rtf1\\ansi{\\*\\template " + at + "secret.fodt}kept}" << u"rtf"_s;
        }
        row("includetext path", u"rtf"_s, field("INCLUDETEXT \"" + path + "secret.html\""));
        row("includepicture path", u"rtf"_s, field("INCLUDEPICTURE \"" + path + "secret.png\""));
        row("dde", u"fodt"_s,
            section("<office:dde-source office:dde-application='soffice' office:dde-topic='" + path +
                    "secret.fodt' office:dde-item='x' office:automatic-update='true'/>"));
        row("dde field", u"rtf"_s, field("DDEAUTO soffice \"" + path + "secret.fodt\" x"));
    }

    void reachesForNothing()
    {
        QFETCH(QByteArray, document);
        QFETCH(QString, suffix);
        const QString fileName = written(document, suffix);
        m_visits = 0;
        opened();
        const office::Content content = readDocument(fileName);
        QVERIFY2(content.text.contains(u"kept"), qPrintable(content.text));
        QVERIFY(content.rtf.contains("kept") && content.html.contains("kept"));
        QCoreApplication::processEvents();
        QCOMPARE(opened(), QStringList());
        QCOMPARE(m_visits, 0);
    }

    void texts_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const auto utf16 = [](QStringConverter::Encoding encoding) {
            QStringEncoder encoder(encoding, QStringConverter::Flag::WriteBom);
            return QByteArray(encoder(euros));
        };
        QTest::newRow("UTF-8") << euros.toUtf8();
        QTest::newRow("UTF-8 with its mark") << "\xEF\xBB\xBF" + euros.toUtf8();
        QTest::newRow("UTF-16, low byte first") << utf16(QStringConverter::Utf16LE);
        QTest::newRow("UTF-16, high byte first") << utf16(QStringConverter::Utf16BE);
        QTest::newRow("windows-1252") << "Gr\xFC\xDF"
                                         "e \x80\r\n\x84two\x93"_ba;
    }
    void texts()
    {
        QFETCH(QByteArray, bytes);
        const QString fileName = m_folder.filePath(u"text.txt"_s);
        writeFile(fileName, bytes);
        const office::Content content = readDocument(fileName);
        QCOMPARE(content.text.trimmed(), euros);
        QCOMPARE(content.rtf.count("\n\\par "), 2);
        QVERIFY(!content.html.contains("&#65279;") && !content.html.contains("\xEF\xBB\xBF"));
    }

    // A question would wait for an answer that nobody can give.
    void asksNothing()
    {
        office::setPatience(15'000);
        const QString guide = m_folder.filePath(u"template.xls"_s);
        const auto make = [&](const QString& sheet) {
            return faultOf([&] {
                office::makeWorkbook(QStringLiteral(STAGED_TEMPLATES "/template.xlt"), {sheet, {}}, guide);
            });
        };
        const auto show = [&] { return faultOf([&] { office::showWorkbook(guide, office::ShowAs::File); }); };
        QCOMPARE(make(u"Sheet1"_s), 0);
        writeFile(m_folder.filePath(u".~lock.template.xls#"_s), ",other,desk,18.08.2004 09:30,file:///other;");
        QCOMPARE(show(), 0);
        QVERIFY(QFile::remove(m_folder.filePath(u".~lock.template.xls#"_s)));
        QCOMPARE(show(), 0);
        QCOMPARE(make(u"Sheet1"_s), 0);
        QCOMPARE(show(), 0);
        QCOMPARE(make(u"Sheet2"_s), 9);
    }

    void saysThatADiskIsFull()
    {
        QFile full(u"/dev/full"_s);
        QVERIFY(full.open(QIODevice::WriteOnly));
        full.write("x");
        QVERIFY(!full.flush());
        QCOMPARE(office::writeError(full, u"x.xls"_s).number(), 61);
    }

    // The windows would outlive us: whatever works in our temporary folder ends.
    void cleanupTestCase()
    {
        office::endSuite();
        for (const QString& process : QDir(u"/proc"_s).entryList({u"[0-9]*"_s}, QDir::Dirs)) {
            const qint64 id = process.toLongLong();
            if (id != QCoreApplication::applicationPid() &&
                contentOf(u"/proc/%1/cmdline"_s.arg(id)).contains(m_temporary.path().toUtf8()))
                ::kill(static_cast<pid_t>(id), SIGKILL);
        }
    }

private:
    /// The document as a file of this kind.
    QString written(const QByteArray& document, const QString& suffix)
    {
        static const QHash<QString, const char*> filters{{u"odt"_s, "writer8"},
                                                         {u"doc"_s, "MS Word 97"},
                                                         {u"docx"_s, "MS Word 2007 XML"},
                                                         {u"rtf"_s, "Rich Text Format"}};
        const QString fileName = m_folder.filePath(u"template."_s + suffix);
        if (!document.startsWith("<?xml") || !filters.contains(suffix)) {
            writeFile(fileName, document);
            return fileName;
        }
        const QString source = m_folder.filePath(u"source.fodt"_s);
        writeFile(source, document);
        office::onSuite([&](office::Bridge& bridge, const QString&, QPromise<void>&) {
            bridge.convert(source, {}, {fileName}, {{filters.value(suffix), ""}});
        });
        return fileName;
    }

    /// Which of the secrets were opened since the last call.
    QStringList opened()
    {
        QStringList names;
        alignas(inotify_event) char events[4096];
        for (ssize_t size; (size = read(m_watch, events, sizeof events)) > 0;)
            for (const char* at = events; at < events + size;) {
                const auto* event = reinterpret_cast<const inotify_event*>(at);
                if (QByteArrayView(event->name, qstrlen(event->name)).startsWith("secret"))
                    names += QString::fromLatin1(event->name);
                at += sizeof *event + event->len;
            }
        return names;
    }

    QTemporaryDir m_folder;
    QTemporaryDir m_temporary;
    int m_watch = inotify_init1(IN_NONBLOCK);
    QTcpServer m_server;
    int m_visits = 0;
};

QTEST_MAIN(TestHostileDocuments)
#include "tst_hostileDocuments.moc"
