#include "templates/fetchContent.h"
#include "templates/frmCallTemp.h"

#include "support/bench.h"
#include "support/files.h"
#include "support/signalSuite.h"

#include <QClipboard>
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// The dialog, with templates that each contain their own file name.
struct CallTemplate : Bench {
    CallTemplate()
    {
        folder.run("delete from template");
        QDir(folder.path()).mkpath("templates/Letters");
        QDir(folder.path()).mkpath("templatesX");
        for (const char* name : {"/templates/Letters/memo.txt", "/templates/Letters/second.txt", "/templatesX/a.txt"})
            writeFile(folder.path() + name, name);
        folder.run(R"(insert into template(tempref,temppath)values('MEMO','\Letters\memo.txt'))");
        folder.run(R"(insert into template(tempref,temppath)values('memo','\Letters\second.txt'))");
        folder.run(R"(insert into template(tempref,temppath)values('BESIDE','\..\templatesX\a.txt'))");
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
        return (color == QColor(Qt::red) ? "red: " : QString()) + textOf(form, "Label1");
    }

    QString entered() const { return textOf(form, "txtTemplate"); }

    int copies = 0;
    templates::frmCallTemp form{nullptr};
};

} // namespace

class TestCallTemplate : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // The first of two with the same code. Enter acts once, although there is a default button; not with an empty box.
    void copiesTheTemplate()
    {
        CallTemplate bench;
        QTRY_VERIFY(office::suiteProcessId() > 0); // because the box has the focus
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            QTest::keyClick(&find<QWidget>(bench.form, "txtTemplate"), key);
            QCOMPARE(bench.message(), "..");
            type(bench.form, "txtTemplate", "mEmO");
            QTest::keyClick(&find<QWidget>(bench.form, "txtTemplate"), key);
            QVERIFY(bench.message().startsWith("Position your cursor"));
            type(bench.form, "txtTemplate", "half");
            click(bench.form, "cmdReset");
            QCOMPARE(bench.entered() + bench.message(), "..");
        }
        QCOMPARE(bench.copies, 2);
        const QString text = QGuiApplication::clipboard()->text();
        QVERIFY2(text.contains("/templates/Letters/memo.txt"), qPrintable(text));
        bench.call("NONE");
        QVERIFY(bench.message().startsWith("red: There is no Template in the system"));
        QCOMPARE(bench.copies, 2);
        click(bench.form, "cmdClose");
        QVERIFY(!bench.form.isVisible());
    }

    // A file's times can be set back, and a date is another tomorrow.
    void fetchesOnlyWhatIsUnchangedFromMemory()
    {
        const QTemporaryDir folder;
        const auto write = [&](const QString& fileName, const QByteArray& text) {
            QFile file(fileName);
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush() &&
                    file.setFileTime(QDateTime(QDate(2004, 8, 1), QTime(8, 0)), QFileDevice::FileModificationTime));
        };
        const QString same = folder.filePath("same.txt"), written = folder.filePath("written.txt"),
                      dated = folder.filePath("dated.rtf");
        write(same, "before");
        write(written, "before");
        write(dated, R"({\rtf1 {\field{\*\fldinst DATE}{\fldrslt 1/1/2001}}})");
        QTest::qWait(2100);
        for (const QString& each : {same, written, dated})
            templates::fetchContent(each);
        write(written, "AFTER!");
        for (const QString& each : {same, written, dated}) {
            office::endSuite();
            const QString text = templates::fetchContent(each).text;
            QCOMPARE(office::suiteProcessId() == 0, each == same);
            QVERIFY2(each == dated || text.contains(each == same ? "before" : "AFTER!"), qPrintable(text));
        }
    }

    // A box shows that the template takes long; after Cancel everything is as before.
    void cancelsASlowCall()
    {
        CallTemplate bench;
        bench.call("MEMO");
        const QString message = bench.message();
        signalSuite(SIGSTOP);
        QElapsedTimer since;
        bench.answers.expectDialog("workBox", [&](QWidget& box) {
            QCOMPARE(box.property("labelText").toString(), "Fetching the template");
            QTest::mouseClick(box.findChild<QAbstractButton*>(), Qt::LeftButton);
            if (!QTest::qWaitFor([&] { return !box.isVisible(); }))
                qFatal("Cancel changes nothing");
        });
        since.start();
        bench.call("memo");
        QVERIFY2(since.elapsed() > 900 && since.elapsed() < 3000, qPrintable(QString::number(since.elapsed())));
        QCOMPARE(bench.entered() + bench.message(), "memo" + message);
        click(bench.form, "cmdGetTemp");
        QCOMPARE(bench.entered(), "");
        QCOMPARE(bench.copies, 2);
    }

    void faultsEndTheProgram()
    {
        CallTemplate bench;
        bench.expectEnd(-2147217900, "Syntax error in string in query expression '''.");
        bench.call("O'Hara");
        bench.expectEnd(53, "File not found");
        bench.call("BESIDE");
        QCOMPARE(bench.copies, 0);
        QCOMPARE(bench.message(), "..");
    }
};

QTEST_MAIN(TestCallTemplate)
#include "tst_callTemplate.moc"
