// The help file as it is made: read back by another program than the one that made it.
#include "app/start.h"
#include "support/files.h"
#include "support/find.h"

#include <QAction>
#include <QDirIterator>
#include <QImage>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextDocument>

using namespace Qt::StringLiterals;

static QStringList captured(const QString& text, const QString& pattern)
{
    QStringList found;
    for (auto match = QRegularExpression(pattern).globalMatch(text); match.hasNext();)
        found << match.next().captured(1);
    return found;
}

/// The texts in a source file that are sentences: what the program says to people.
static QStringList sentences(QString source)
{
    source.remove(QRegularExpression(u"//[^\n]*|'\"'"_s));
    const QString literal = u"\"(?:[^\"\\\\\n]|\\\\.)*\""_s;
    QStringList found;
    for (QString text : captured(source, u"(%1(?:\\s*%1)*)"_s.arg(literal))) {
        text.remove(QRegularExpression(u"\"\\s*\""_s)).replace(QRegularExpression(u"\\\\[nr]"_s), u" "_s);
        text = text.mid(1, text.size() - 2).simplified();
        const auto words = text.count(u' ') + 1;
        const QRegularExpression statement(u"^(?i:select|insert|update|delete|pragma|create) .*[^.]$"_s);
        const bool ends = words >= 3 && text.contains(QRegularExpression(u"[a-z')][.?!]$"_s));
        const bool isTold = words >= 4 && text.contains(QRegularExpression(u"^[A-Z][a-z].*[a-z]$"_s));
        if (!text.contains(statement) && (ends || isTold))
            found << text;
    }
    return found;
}

class TestHelpFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QProcess reader;
        reader.start(u"extract_chmLib"_s, {QStringLiteral(HELP_FILE), m_folder.path()});
        QVERIFY(reader.waitForFinished());
        m_pages = QDir(m_folder.path()).entryList({u"*.html"_s});
        QVERIFY(m_pages.contains(u"index.html"_s));
        for (const QString& page : m_pages) {
            QTextDocument document;
            document.setHtml(file(page));
            m_text += document.toPlainText().simplified() + u'\n';
        }
    }

    void contentsAndStartPageNameEveryPage()
    {
        const QString local = u"name=\"Local\" value=\"([^\"]*)\""_s;
        QStringList contents = captured(file(u"PWR.hhc"_s), local);
        contents.sort();
        QCOMPARE(contents, m_pages);
        QStringList links = captured(file(u"index.html"_s), u"<a href=\"([^\"]*)\""_s);
        links << u"index.html"_s;
        links.sort();
        QCOMPARE(links, m_pages);
        QVERIFY(captured(file(u"PWR.hhk"_s), local).size() > m_pages.size());
        QVERIFY(QFileInfo(m_folder.filePath(u"$FIftiMain"_s)).size() > 10'000);
    }

    void noLinkIsBroken()
    {
        const QString link = u"(?:href|src|name=\"Local\" value)=\"([^\"]*)\""_s;
        for (const QString& page : m_pages + QStringList{u"PWR.hhc"_s, u"PWR.hhk"_s}) {
            for (const QString& target : captured(file(page), link)) {
                const QString name = target.startsWith(u'#') ? page : target.section(u'#', 0, 0);
                const QString anchor =
                    target.contains(u'#') ? u"<a name=\"%1\">"_s.arg(target.section(u'#', 1)) : u""_s;
                QVERIFY2(QFileInfo(m_folder.filePath(name)).isFile() && file(name).contains(anchor),
                         qPrintable(page + u": "_s + target));
            }
            // A viewer that must make a picture smaller spoils its small print.
            for (const QString& picture : captured(file(page), u"<img src=\"([^>]*)>"_s)) {
                const QSize size = QImage(m_folder.filePath(picture.section(u'"', 0, 0))).size();
                QVERIFY2(picture.contains(u"width=\"%1\" height=\"%2\""_s.arg(size.width()).arg(size.height())),
                         qPrintable(page + u": "_s + picture));
            }
        }
    }

    void tellsEveryCommand()
    {
        const auto window = modMain::Main(m_folder.path());
        int count = 0;
        for (const QMenu* menu : find<QMenuBar>(*window, "menuBar").findChildren<QMenu*>()) {
            for (const QAction* action : menu->actions()) {
                const QString command = action->text() + u' ' + action->shortcut().toString();
                const QString way = (menu->title() + u" > "_s + command).trimmed();
                QVERIFY2(action->menu() || m_text.contains(way), qPrintable(way));
                count += !action->menu();
            }
        }
        QCOMPARE(count, 15);
    }

    void tellsEveryMessage()
    {
        int count = 0;
        QStringList untold;
        QDirIterator source(QStringLiteral(SOURCES), {u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (source.hasNext()) {
            for (const QString& sentence : sentences(QString::fromUtf8(contentOf(source.next())))) {
                ++count;
                for (const QString& part : sentence.split(QRegularExpression(u"%\\d"_s))) {
                    if (!m_text.contains(part.trimmed()))
                        untold << source.fileName() + u": "_s + sentence;
                }
            }
        }
        QCOMPARE(untold, QStringList());
        QVERIFY(count > 50);
    }

private:
    QString file(const QString& name) const { return QString::fromUtf8(contentOf(m_folder.filePath(name))); }

    QTemporaryDir m_folder;
    QStringList m_pages;
    QString m_text;
};

QTEST_MAIN(TestHelpFile)
#include "tst_helpFile.moc"
