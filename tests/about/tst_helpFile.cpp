// The help file as it is made: read back by another program than the one that made it.
#include "app/start.h"
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

static QString contentOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

static QStringList captured(const QString& text, const QString& pattern)
{
    QStringList found;
    for (auto match = QRegularExpression(pattern).globalMatch(text); match.hasNext();)
        found << match.next().captured(1);
    return found;
}

/// What the commands below a menu are called, with the way to them and their key.
static QStringList commands(const QList<QAction*>& actions, const QString& way)
{
    QStringList found;
    for (const QAction* action : actions) {
        const QString name = way + action->text();
        found << (action->menu() ? commands(action->menu()->actions(), name + u" > "_s)
                                 : QStringList((name + u' ' + action->shortcut().toString()).simplified()));
    }
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
        const bool isStatement = text.contains(QRegularExpression(u"^(select|insert|update|delete|pragma|create) "_s,
                                                                  QRegularExpression::CaseInsensitiveOption)) &&
                                 !text.endsWith(u'.');
        const bool ends = words >= 3 && text.contains(QRegularExpression(u"[a-z')][.?!]$"_s));
        const bool isTold = words >= 4 && text.contains(QRegularExpression(u"^[A-Z][a-z].*[a-z]$"_s));
        if (!isStatement && (ends || isTold))
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
            document.setHtml(contentOf(m_folder.filePath(page)));
            m_texts[page] = document.toPlainText().simplified();
            m_text += m_texts[page] + u'\n';
        }
    }

    void contentsAndStartPageNameEveryPage()
    {
        const QString local = u"name=\"Local\" value=\"([^\"]*)\""_s;
        QStringList contents = captured(contentOf(m_folder.filePath(u"PWR.hhc"_s)), local);
        contents.sort();
        QCOMPARE(contents, m_pages);
        QStringList links = captured(contentOf(m_folder.filePath(u"index.html"_s)), u"<a href=\"([^\"]*)\""_s);
        links << u"index.html"_s;
        links.sort();
        QCOMPARE(links, m_pages);
        QVERIFY(captured(contentOf(m_folder.filePath(u"PWR.hhk"_s)), local).size() > m_pages.size());
        QVERIFY(QFileInfo(m_folder.filePath(u"$FIftiMain"_s)).size() > 10'000);
    }

    void noLinkIsBroken()
    {
        const QString link = u"(?:href|src|name=\"Local\" value)=\"([^\"]*)\""_s;
        for (const QString& page : m_pages + QStringList{u"PWR.hhc"_s, u"PWR.hhk"_s}) {
            for (const QString& target : captured(contentOf(m_folder.filePath(page)), link)) {
                const QString file = target.startsWith(u'#') ? page : target.section(u'#', 0, 0);
                const QString anchor = target.section(u'#', 1);
                const QString found = m_folder.filePath(file);
                QVERIFY2(QFileInfo(found).isFile() &&
                             (anchor.isEmpty() || contentOf(found).contains(u"<a name=\"%1\">"_s.arg(anchor))),
                         qPrintable(page + u": "_s + target));
            }
        }
    }

    // A viewer that must make a picture smaller spoils its small print.
    void picturesAreShownAsTheyAre()
    {
        const QRegularExpression tag(u"<img src=\"([^\"]*)\" width=\"(\\d+)\" height=\"(\\d+)\""_s);
        for (const QString& page : m_pages) {
            for (auto tags = tag.globalMatch(contentOf(m_folder.filePath(page))); tags.hasNext();) {
                const QRegularExpressionMatch match = tags.next();
                QCOMPARE(QImage(m_folder.filePath(match.captured(1))).size(),
                         QSize(match.captured(2).toInt(), match.captured(3).toInt()));
            }
        }
    }

    void tellsEveryCommand()
    {
        const auto window = modMain::Main(m_folder.path());
        const QStringList all = commands(find<QMenuBar>(*window, "menuBar").actions(), QString());
        QCOMPARE(all.size(), 15);
        for (const QString& command : all)
            QVERIFY2(m_texts[u"main-window.html"_s].contains(command), qPrintable(command));
    }

    void tellsEveryMessage()
    {
        int count = 0;
        QStringList untold;
        for (QDirIterator file(QStringLiteral(SOURCES), {u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
             file.hasNext();) {
            for (const QString& sentence : sentences(contentOf(file.next()))) {
                ++count;
                for (const QString& part : sentence.split(QRegularExpression(u"%\\d"_s))) {
                    if (!m_text.contains(part.trimmed()))
                        untold << file.fileName() + u": "_s + sentence;
                }
            }
        }
        QVERIFY2(untold.isEmpty(), qPrintable(untold.join(u'\n')));
        QVERIFY(count > 50);
    }

private:
    QTemporaryDir m_folder;
    QStringList m_pages;
    QMap<QString, QString> m_texts;
    QString m_text;
};

QTEST_MAIN(TestHelpFile)
#include "tst_helpFile.moc"
