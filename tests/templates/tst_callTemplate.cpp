#include "templates/frmCallTemp.h"
#include "templates/mdWord.h"

#include "office/suite.h"
#include "support/bench.h"
#include "support/find.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QMimeData>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace {

const QString pasteIt =
    u"Position your cursor in the document where you want to paste the template.  Press 'ctrl + v' to paste."_s;
const QString unknown = u"There is no Template in the system with that Key Code. Please try again"_s;

/// The dialog over templates of which each holds its own name.
struct CallTemplate : Bench {
    CallTemplate()
    {
        folder.run(u"delete from template"_s);
        QDir(folder.path()).mkpath(u"templates/Letters"_s);
        for (const char* name : {"templates/Letters/memo.txt", "templates/Letters/second.txt", "outside.txt"}) {
            QFile file(folder.path() + u'/' + QLatin1String(name));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(name) > 0);
        }
        for (const char* values :
             {R"('MEMO','\Letters\memo.txt')", R"('memo','\Letters\second.txt')", R"('OUT','\..\outside.txt')",
              R"('BESIDE','\..\templatesX\a.txt')", R"('GONE','\Letters\gone.doc')", R"('FOLDER','\Letters')"})
            folder.run(u"insert into template(tempref,temppath)values(%1)"_s.arg(QLatin1String(values)));
        QGuiApplication::clipboard()->setText(u"before"_s);
        form.show();
        if (!QTest::qWaitForWindowActive(&form))
            qFatal("the dialog does not become active");
        QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &form, [this] { ++copies; });
    }

    void call(const QString& keyCode)
    {
        type(form, "txtTemplate", keyCode);
        click(form, "cmdGetTemp");
    }
    QString message() const { return shown(form, "Label1"); }
    QColor color() const { return find<QWidget>(form, "Label1").palette().color(QPalette::WindowText); }

    int copies = 0;
    templates::frmCallTemp form{nullptr};
};

QString pasted()
{
    return QGuiApplication::clipboard()->text().trimmed();
}

} // namespace

class TestCallTemplate : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { office::endSuite(); }

    void copiesTheTemplate_data()
    {
        QTest::addColumn<QString>("keyCode");
        QTest::addColumn<int>("key");
        QTest::newRow("button") << u"MEMO"_s << 0;
        QTest::newRow("return") << u"MEMO"_s << int(Qt::Key_Return);
        QTest::newRow("enter") << u"MEMO"_s << int(Qt::Key_Enter);
        QTest::newRow("other case") << u"mEmO"_s << int(Qt::Key_Return);
    }
    void copiesTheTemplate()
    {
        QFETCH(QString, keyCode);
        QFETCH(int, key);
        CallTemplate bench;
        type(bench.form, "txtTemplate", keyCode);
        if (key)
            QTest::keyClick(&find<QWidget>(bench.form, "txtTemplate"), static_cast<Qt::Key>(key));
        else
            click(bench.form, "cmdGetTemp");
        QCOMPARE(bench.copies, 1);
        // Of two with one code, the first.
        QCOMPARE(pasted(), u"templates/Letters/memo.txt"_s);
        const QMimeData* data = QGuiApplication::clipboard()->mimeData();
        QVERIFY(data->data(u"text/rtf"_s).startsWith("{\\rtf1"));
        QVERIFY(data->data(u"text/rtf"_s).contains("memo.txt"));
        QVERIFY(data->data(u"text/html"_s).contains("memo.txt"));
        QCOMPARE(data->data(u"text/plain"_s).trimmed(), "templates/Letters/memo.txt");
        QCOMPARE(bench.message(), pasteIt);
        QCOMPARE(bench.color(), QColor(Qt::black));
        QCOMPARE(shown(bench.form, "txtTemplate"), QString());
    }

    void unknownKeyCode()
    {
        CallTemplate bench;
        QVERIFY(!mdWord::GetTemplate(u"NONE"_s));
        bench.call(u"NONE"_s);
        QCOMPARE(bench.message(), unknown);
        QCOMPARE(bench.color(), QColor(Qt::red));
        QCOMPARE(shown(bench.form, "txtTemplate"), QString());
        QCOMPARE(pasted(), u"before"_s);
        bench.call(u"MEMO"_s);
        QCOMPARE(bench.color(), QColor(Qt::black));
    }

    void faultsEndTheProgram_data()
    {
        QTest::addColumn<QString>("keyCode");
        QTest::addColumn<int>("number");
        QTest::addColumn<QByteArray>("description");
        QTest::newRow("quote") << u"O'Hara"_s << -2147217900 << "Syntax error in string in query expression '''."_ba;
        for (const char* keyCode : {"OUT", "BESIDE", "GONE", "FOLDER"})
            QTest::newRow(keyCode) << QString::fromLatin1(keyCode) << 53 << "File not found"_ba;
    }
    void faultsEndTheProgram()
    {
        QFETCH(QString, keyCode);
        QFETCH(int, number);
        QFETCH(QByteArray, description);
        CallTemplate bench;
        bench.expectEnd(number, description.constData());
        bench.call(keyCode);
        QCOMPARE(pasted(), u"before"_s);
        QCOMPARE(bench.message(), u".."_s);
    }

    void emptyBoxAndReset()
    {
        CallTemplate bench;
        bench.call(QString());
        QTest::keyClick(&find<QWidget>(bench.form, "txtTemplate"), Qt::Key_Return);
        QCOMPARE(bench.message(), u".."_s);
        QCOMPARE(bench.copies, 0);
        bench.call(u"NONE"_s);
        type(bench.form, "txtTemplate", u"half"_s);
        click(bench.form, "cmdReset");
        QCOMPARE(shown(bench.form, "txtTemplate") + bench.message(), u".."_s);
        QVERIFY(bench.form.isVisible());
        click(bench.form, "cmdClose");
        QVERIFY(!bench.form.isVisible());
    }
};

QTEST_MAIN(TestCallTemplate)
#include "tst_callTemplate.moc"
