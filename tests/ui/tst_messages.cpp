#include "support/answers.h"
#include "support/endOfProgram.h"
#include "support/scratchFolder.h"

#include "ui/actionQry.h"
#include "ui/errorTrap.h"
#include "ui/eventGuard.h"
#include "ui/messages.h"

#include <QPushButton>
#include <QTest>

#include <stdexcept>

using namespace Qt::StringLiterals;

class TestMessages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void untrappedErrorsEndTheProgram_data();
    void untrappedErrorsEndTheProgram();
    void trappedErrorsAreShown();
    void failedStatementsAreShown();
    void asksBeforeHarm_data();
    void asksBeforeHarm();
    void showsTypedMarks();
};

void TestMessages::untrappedErrorsEndTheProgram_data()
{
    QTest::addColumn<std::function<void()>>("work");
    QTest::addColumn<QString>("box");
    using Work = std::function<void()>;
    QTest::newRow("error") << Work([] { throw values::RuntimeError(values::Fault::TypeMismatch); })
                           << u"Run-time error '13':\n\nType mismatch"_s;
    QTest::newRow("error of a data file") << Work([] { ScratchFolder().run(u"delete from nowhere"_s); })
                                          << u"Run-time error '-2147217865':\n\nThe data file has no table 'nowhere'. "
                                             "Put a good copy of the data file back, for example from a backup."_s;
    QTest::newRow("fault of the program")
        << Work([] { throw std::out_of_range("at"); }) << u"Run-time error '51':\n\nInternal error: at"_s;
    QTest::newRow("none") << Work([] {}) << QString();
}

void TestMessages::untrappedErrorsEndTheProgram()
{
    QFETCH(std::function<void()>, work);
    QFETCH(QString, box);
    QPushButton button;
    ui::onEvent(&button, &QPushButton::clicked, &button, work);
    Answers answers;
    const EndOfProgram end;
    if (!box.isEmpty())
        answers.expectBox(box);
    button.click();
    QCOMPARE(answers.differences(), QStringList());
    QCOMPARE(end.codes(), box.isEmpty() ? QList<int>() : QList<int>{1});
}

void TestMessages::trappedErrorsAreShown()
{
    Answers answers;
    const EndOfProgram end;
    answers.expectBox(u"Error 13 (Type mismatch) in procedure DoJob of Form frmJobs"_s);
    bool wentOn = false;
    ui::guard([&] {
        ui::trap(u"DoJob"_s, u"Form frmJobs"_s, [&] {
            throw values::RuntimeError(values::Fault::TypeMismatch);
            wentOn = true;
        });
    });
    QCOMPARE(answers.differences(), QStringList());
    QVERIFY(!wentOn);
    QCOMPARE(end.codes(), QList<int>());
}

void TestMessages::failedStatementsAreShown()
{
    const ScratchFolder folder;
    Answers answers;
    answers.expectBox(u"Error -2147217900 (Syntax error in string in query expression '')'.) in procedure ActionQry of "
                      "Module modMain"_s);
    modMain::ActionQry(u"insert into jobacct (acctname) values ('O'Brien')"_s);
    modMain::ActionQry(u"insert into jobacct (acctname) values ('Anna')"_s);
    QCOMPARE(answers.differences(), QStringList());
    QCOMPARE(folder.rows(u"select acctname from jobacct"_s), QStringList(u"Anna"_s));
}

void TestMessages::asksBeforeHarm_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QMessageBox::StandardButton>("pressedOn");
    QTest::addColumn<bool>("confirmed");
    QTest::newRow("Enter at once") << Qt::Key_Return << QMessageBox::NoButton << false;
    QTest::newRow("Escape") << Qt::Key_Escape << QMessageBox::Yes << false;
    QTest::newRow("Yes sought out") << Qt::Key_Space << QMessageBox::Yes << true;
}

void TestMessages::asksBeforeHarm()
{
    QFETCH(Qt::Key, key);
    QFETCH(QMessageBox::StandardButton, pressedOn);
    QFETCH(bool, confirmed);
    QTimer::singleShot(0, this, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QWidget* button = box->button(pressedOn);
        QTest::keyClick(button ? button : box, key);
        box->close();
    });
    QCOMPARE(ui::confirm(u"Delete?"_s), confirmed);
}

void TestMessages::showsTypedMarks()
{
    Qt::TextFormat format = Qt::AutoText;
    QTimer::singleShot(0, this, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        format = box->textFormat();
        box->close();
    });
    ui::showMessage(u"<b>A</b> & Co"_s);
    QCOMPARE(format, Qt::PlainText);
}

QTEST_MAIN(TestMessages)
#include "tst_messages.moc"
