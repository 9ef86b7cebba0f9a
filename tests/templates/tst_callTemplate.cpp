#include "templates/frmCallTemp.h"

#include "office/suite.h"
#include "support/bench.h"
#include "support/files.h"
#include "support/find.h"

#include <QClipboard>
#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QMimeData>
#include <QPalette>
#include <QProgressDialog>
#include <QPushButton>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

/// The dialog over templates of which each holds its own name.
struct CallTemplate : Bench {
    CallTemplate()
    {
        folder.run(u"delete from template"_s);
        for (const char* name : {"templates/Letters", "templatesX"})
            QDir(folder.path()).mkpath(QLatin1String(name));
        for (const char* name : {"templates/Letters/memo.txt", "templates/Letters/second.txt", "templatesX/a.txt"})
            writeFile(folder.path() + u'/' + QLatin1String(name), name);
        for (const char* values :
             {R"('MEMO','\Letters\memo.txt')", R"('memo','\Letters\second.txt')", R"('BESIDE','\..\templatesX\a.txt')",
              R"('GONE','\Letters\gone.doc')", R"('FOLDER','\Letters')"})
            folder.run(u"insert into template(tempref,temppath)values(%1)"_s.arg(QLatin1String(values)));
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
    /// What the message says, and in which colour.
    QString message() const
    {
        const QColor color = find<QWidget>(form, "Label1").palette().color(QPalette::WindowText);
        return (color == QColor(Qt::red) ? u"red: "_s : QString()) + shown(form, "Label1");
    }

    int copies = 0;
    templates::frmCallTemp form{nullptr};
};

} // namespace

class TestCallTemplate : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { office::endSuite(); }

    void copiesTheTemplate()
    {
        CallTemplate bench;
        bench.call(u"NONE"_s);
        QCOMPARE(bench.message(), u"red: There is no Template in the system with that Key Code. Please try again"_s);
        QCOMPARE(shown(bench.form, "txtTemplate"), QString());
        QCOMPARE(bench.copies, 0);
        bench.call(u"mEmO"_s);
        QCOMPARE(bench.copies, 1);
        const QMimeData* data = QGuiApplication::clipboard()->mimeData();
        QVERIFY(data->data(u"text/rtf"_s).startsWith("{\\rtf1"));
        QVERIFY(data->data(u"text/rtf"_s).contains("memo.txt"));
        QVERIFY(data->data(u"text/html"_s).contains("memo.txt"));
        // Of two with one code, the first.
        QCOMPARE(data->data(u"text/plain"_s).trimmed(), "templates/Letters/memo.txt");
        QCOMPARE(bench.message(),
                 u"Position your cursor in the document where you want to paste the template.  Press 'ctrl + v' "
                 "to paste."_s);
        QCOMPARE(shown(bench.form, "txtTemplate"), QString());
    }

    // Enter is one action, though the form has a default button; in the empty box it is none.
    void enterCallsOnce()
    {
        CallTemplate bench;
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            QTest::keyClick(&find<QWidget>(bench.form, "txtTemplate"), key);
            QCOMPARE(bench.message(), u".."_s);
            type(bench.form, "txtTemplate", u"MEMO"_s);
            QTest::keyClick(&find<QWidget>(bench.form, "txtTemplate"), key);
            QVERIFY(bench.message() != u".."_s);
            type(bench.form, "txtTemplate", u"half"_s);
            click(bench.form, "cmdReset");
            QCOMPARE(shown(bench.form, "txtTemplate") + bench.message(), u".."_s);
        }
        QCOMPARE(bench.copies, 2);
        QVERIFY(bench.form.isVisible());
        click(bench.form, "cmdClose");
        QVERIFY(!bench.form.isVisible());
    }

    // One that does not come: a box says so, and after Cancel all is as before.
    void cancelsASlowCall()
    {
        CallTemplate bench;
        bench.call(u"MEMO"_s);
        const QString message = bench.message();
        QVERIFY(office::suiteProcessId() > 0);
        QCOMPARE(::kill(-static_cast<pid_t>(office::suiteProcessId()), SIGSTOP), 0);
        QElapsedTimer since;
        QString said;
        bench.answers.expectDialog(u"workBox"_s, [&](QWidget& box) {
            said = dynamic_cast<QProgressDialog&>(box).labelText();
            QTest::mouseClick(box.findChild<QPushButton*>(), Qt::LeftButton);
            if (!QTest::qWaitFor([&] { return !box.isVisible(); }))
                qFatal("Cancel changes nothing");
        });
        since.start();
        bench.call(u"memo"_s);
        QVERIFY2(since.elapsed() > 900 && since.elapsed() < 3000, qPrintable(QString::number(since.elapsed())));
        QCOMPARE(said, u"Fetching the template"_s);
        QCOMPARE(shown(bench.form, "txtTemplate") + bench.message(), u"memo"_s + message);
        click(bench.form, "cmdGetTemp");
        QCOMPARE(shown(bench.form, "txtTemplate"), QString());
        QCOMPARE(bench.copies, 2);
    }

    void faultsEndTheProgram()
    {
        CallTemplate bench;
        bench.expectEnd(-2147217900, "Syntax error in string in query expression '''.");
        bench.call(u"O'Hara"_s);
        for (const char* keyCode : {"BESIDE", "GONE", "FOLDER"}) {
            bench.expectEnd(53, "File not found");
            bench.call(QLatin1String(keyCode));
        }
        QCOMPARE(bench.copies, 0);
        QCOMPARE(bench.message(), u".."_s);
    }
};

QTEST_MAIN(TestCallTemplate)
#include "tst_callTemplate.moc"
