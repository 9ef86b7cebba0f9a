// The finished help file, read back by another program than the one that made it.
#include "app/start.h"
#include "support/files.h"
#include "support/find.h"

#include <QAction>
#include <QDir>
#include <QImage>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextDocument>

static QStringList findCaptures(const QString& text, const QString& pattern)
{
    QStringList found;
    for (auto match = QRegularExpression(pattern).globalMatch(text); match.hasNext();)
        found << match.next().captured(1);
    return found;
}

class TestHelpFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QProcess reader;
        reader.start("extract_chmLib", {HELP_FILE, m_folder.path()});
        QVERIFY(reader.waitForFinished());
        m_pages = QDir(m_folder.path()).entryList({"*.html"});
        for (const QString& page : m_pages) {
            QTextDocument document;
            document.setHtml(file(page));
            m_text += document.toPlainText().simplified() + u'\n';
        }
    }

    void contentsAndStartPageNameEveryPage()
    {
        const QString local = "name=\"Local\" value=\"([^\"]*)\"";
        QStringList contents = findCaptures(file("PWR.hhc"), local);
        QStringList links = findCaptures(file("index.html"), "<a href=\"([^\"]*)\"") << "index.html";
        for (QStringList* pages : {&contents, &links}) {
            pages->sort();
            QCOMPARE(*pages, m_pages);
        }
        QVERIFY(findCaptures(file("PWR.hhk"), local).size() > m_pages.size());
        QVERIFY(QFileInfo(m_folder.filePath("$FIftiMain")).size() > 10'000);
    }

    void hasNoBrokenLink()
    {
        const QString link = "(?:href|src|name=\"Local\" value)=\"([^\"]*)\"";
        for (const QString& page : m_pages + QStringList{"PWR.hhc", "PWR.hhk"}) {
            for (const QString& target : findCaptures(file(page), link)) {
                const QString name = target.startsWith(u'#') ? page : target.section(u'#', 0, 0);
                const QString anchor = target.contains(u'#') ? "<a name=\"" + target.section(u'#', 1) + "\">" : "";
                QVERIFY2(QFileInfo(m_folder.filePath(name)).isFile() && file(name).contains(anchor),
                         qPrintable(page + ": " + target));
            }
            // A viewer that scales a picture makes small letters unreadable.
            for (const QString& picture : findCaptures(file(page), "<img src=\"([^>]*)>")) {
                const QSize size = QImage(m_folder.filePath(picture.section(u'"', 0, 0))).size();
                QVERIFY2(picture.contains(QString("width=\"%1\" height=\"%2\"").arg(size.width()).arg(size.height())),
                         qPrintable(page + ": " + picture));
            }
        }
    }

    void explainsEveryCommand()
    {
        const auto window = modMain::Main(m_folder.path());
        int count = 0;
        for (const QMenu* menu : find<QMenuBar>(*window, "menuBar").findChildren<QMenu*>()) {
            for (const QAction* action : menu->actions()) {
                const QString way = menu->title() + " > " + action->text() + ' ' + action->shortcut().toString();
                QVERIFY2(action->menu() || m_text.contains(way.trimmed()), qPrintable(way));
                count += !action->menu();
            }
        }
        QCOMPARE(count, 15);
    }

private:
    QString file(const QString& name) const { return readFile(m_folder.filePath(name)); }

    QTemporaryDir m_folder;
    QStringList m_pages;
    QString m_text;
};

QTEST_MAIN(TestHelpFile)
#include "tst_helpFile.moc"
