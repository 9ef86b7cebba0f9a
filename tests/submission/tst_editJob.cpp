#include "submission/frmEditJob.h"

#include "submission/jobLength.h"
#include "submission/typeLine.h"
#include "support/bench.h"
#include "support/find.h"
#include "ui/entryBox.h"
#include "values/runtimeError.h"

#include <QListWidget>
#include <QSignalSpy>

namespace {

const QString wantsDate = QStringLiteral("Please insert a date in this field.");
const QString wantsTime = QStringLiteral("Please insert a time in this field.");

/// The editor, open on one frame.
struct Editor : Bench {
    Editor(qint16 index, const char* value)
    {
        form.PopForm(index, QString::fromUtf8(value));
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
    }

    bool isYellow(const char* box) const
    {
        return find<QLineEdit>(form, box).palette().color(QPalette::Base) == QColor(0xFF, 0xFF, 0xC0);
    }
    /// As the mouse does it: through the window, which decides what gets the focus.
    void clickInWindow(const QString& button)
    {
        const auto& control = find<QWidget>(form, qPrintable(button));
        QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, control.mapTo(&form, control.rect().center()));
    }
    QString focused() const { return form.focusWidget() ? form.focusWidget()->objectName() : QString(); }

    submission::frmEditJob form{nullptr};
    QSignalSpy captions{&form, &submission::frmEditJob::captionApplied};
    QSignalSpy types{&form, &submission::frmEditJob::typeApplied};
};

} // namespace

class TestEditJob : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void typeLineCountsCharacters_data();
    void typeLineCountsCharacters();
    void bringsOneFrameIntoView_data();
    void bringsOneFrameIntoView();
    void appliesWhatWasTyped_data();
    void appliesWhatWasTyped();
    void keepsTheFocusInABadBox_data();
    void keepsTheFocusInABadBox();
    void cancelNeverChecks();
    void listsEveryTypeByName();
    void wantsALineSelected();
    void lengthWithoutColonIsAnError();
    void startThatIsNoDateEndsTheProgram();
};

void TestEditJob::typeLineCountsCharacters_data()
{
    QTest::addColumn<QString>("client");
    QTest::addColumn<QString>("type");
    QTest::addColumn<double>("rate");
    QTest::addColumn<QString>("line");
    QTest::newRow("long") << "A client with a long name"
                          << "A type with a long name" << 123456.5
                          << "A client with a   A type with a l  Line        $123,45";
    QTest::newRow("one letter") << "A"
                                << "B" << 1.25 << "A                B               Line        $1.25  ";
    QTest::newRow("other scripts") << u"Клиника Здоровье Юг"_qs << u"😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀"_qs << 1.25
                                   << u"Клиника Здоровье  😀😀😀😀😀😀😀😀😀😀😀😀😀😀😀  Line        $1.25  "_qs;
}

void TestEditJob::typeLineCountsCharacters()
{
    QFETCH(const QString, client);
    QFETCH(const QString, type);
    QFETCH(const double, rate);
    QTEST(submission::PadTypeLine(client, type, QStringLiteral("Line"), values::Money::fromDouble(rate)), "line");
}

void TestEditJob::bringsOneFrameIntoView_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("texts");
    QTest::addColumn<QString>("focus");
    QTest::newRow("date") << 0 << "8/5/2004"
                          << "08/05/2004"
                          << "txtJobDate";
    QTest::newRow("start") << 7 << "8/5/2004 2:05:07 PM"
                           << "08/05/2004|14:05"
                           << "txtStartDate";
    QTest::newRow("no start") << 7 << ""
                              << "|"
                              << "txtStartDate";
    QTest::newRow("long length") << 8 << "1:05:30"
                                 << "1|05|30"
                                 << "txtHr";
    QTest::newRow("short length") << 8 << "12:07"
                                  << "|12|07"
                                  << "txtHr";
    QTest::newRow("no length") << 8 << ".."
                               << "||"
                               << "txtHr";
    QTest::newRow("submitted") << 9 << "8/16/2004 12:00"
                               << "08/16/2004|12:00"
                               << "txtTimeSub";
    QTest::newRow("not submitted") << 9 << "."
                                   << "|"
                                   << "txtTimeSub";
    QTest::newRow("reference") << 10 << "A-114"
                               << "A-114"
                               << "txtRefId";
}

void TestEditJob::bringsOneFrameIntoView()
{
    QFETCH(const int, index);
    QFETCH(const QString, value);
    const Editor editor(static_cast<qint16>(index), value.toUtf8().constData());
    QStringList frames;
    QStringList texts;
    for (const auto* frame : editor.form.findChildren<QWidget*>(QRegularExpression(QStringLiteral("^frEdit_")))) {
        if (!frame->isVisible())
            continue;
        QCOMPARE(frame->x(), 8);
        frames << frame->objectName();
        for (const auto* box : frame->findChildren<ui::EntryBox*>())
            texts << box->text();
    }
    QCOMPARE(frames, QStringList(QStringLiteral("frEdit_%1").arg(index)));
    QTEST(texts.join(u'|'), "texts");
    QTEST(editor.focused(), "focus");
}

void TestEditJob::appliesWhatWasTyped_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("typed"); // into the boxes of the frame, one after the other
    QTest::addColumn<QString>("caption");
    QTest::newRow("date as typed") << 0 << "16 Aug 2004"
                                   << "16 Aug 2004";
    QTest::newRow("start in one form") << 7 << "08/20/2004|14:05"
                                       << "8/20/2004 2:05:00 PM";
    QTest::newRow("hours") << 8 << "1|75|9"
                           << "1:75:9";
    QTest::newRow("zero hours") << 8 << "0|05|30"
                                << "05:30";
    QTest::newRow("two zeros") << 8 << "00|5|30"
                               << "5:30";
    QTest::newRow("seconds only") << 8 << "||07"
                                  << "00:07";
    QTest::newRow("submitted") << 9 << "8/16/2004|2 pm"
                               << "8/16/2004 2 pm";
    QTest::newRow("reference") << 10 << "O'Brien <b>"
                               << "O'Brien <b>";
}

// By Enter, which presses Apply while the focus is in the last box.
void TestEditJob::appliesWhatWasTyped()
{
    QFETCH(const int, index);
    QFETCH(const QString, typed);
    Editor editor(static_cast<qint16>(index), index == 0 || index == 7 ? "8/5/2004" : "1:1");
    const QStringList texts = typed.split(u'|');
    const auto& frame = find<QWidget>(editor.form, qPrintable(QStringLiteral("frEdit_%1").arg(index)));
    const QList<ui::EntryBox*> boxes = frame.findChildren<ui::EntryBox*>();
    for (qsizetype i = 0; i < texts.size(); ++i)
        boxes[i]->setText(texts[i]);
    QTest::keyClick(boxes.last(), Qt::Key_Return);
    QVERIFY(!editor.form.isVisible());
    QCOMPARE(editor.captions.value(0).value(0).toInt(), index);
    QTEST(editor.captions.value(0).value(1).toString(), "caption");
}

void TestEditJob::keepsTheFocusInABadBox_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("highlighted");
    QTest::addColumn<QString>("message");
    QTest::newRow("date") << 0 << "txtJobDate"
                          << "soon"
                          << "txtJobDate" << wantsDate;
    QTest::newRow("emptied date") << 7 << "txtStartDate"
                                  << ""
                                  << "txtStartDate" << wantsDate;
    QTest::newRow("start time") << 7 << "txtStartTime"
                                << "25:00"
                                << "txtStartTime" << wantsTime;
    // The start date is what counts there, and it is empty in this frame.
    QTest::newRow("submitted date") << 9 << "txtDateSub"
                                    << "8/16/2004"
                                    << "txtDateSub" << wantsDate;
    // The yellow box is the neighbour.
    QTest::newRow("submitted time") << 9 << "txtTimeSub"
                                    << "noon"
                                    << "txtDateSub" << wantsTime;
}

void TestEditJob::keepsTheFocusInABadBox()
{
    QFETCH(const int, index);
    QFETCH(const QString, box);
    QFETCH(const QString, text);
    QFETCH(const QString, highlighted);
    QFETCH(const QString, message);
    Editor editor(static_cast<qint16>(index), index == 9 ? "." : "8/5/2004 14:00");
    auto& left = find<ui::EntryBox>(editor.form, qPrintable(box));
    left.setFocus();
    left.setText(text);
    for (int i = 0; i < 5; ++i)
        editor.answers.expectBox(message);
    QTest::keyClick(&left, Qt::Key_Tab);
    QCOMPARE(editor.focused(), box);
    QVERIFY(editor.isYellow(qPrintable(highlighted)));
    QTest::keyClick(&left, Qt::Key_Tab, Qt::ShiftModifier);
    editor.clickInWindow(QStringLiteral("cmdApply_%1").arg(index));
    QTest::keyClick(&left, Qt::Key_Return);
    // The access key of Apply; without a window manager the form does not get the front back by itself.
    editor.form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&editor.form));
    QTest::keyClick(&left, Qt::Key_A, Qt::AltModifier);
    QCOMPARE(editor.focused(), box);
    QVERIFY(editor.form.isVisible());
    QCOMPARE(editor.captions.size(), 0);
}

void TestEditJob::cancelNeverChecks()
{
    Editor byMouse(0, "8/5/2004");
    type(byMouse.form, "txtJobDate", QStringLiteral("soon"));
    byMouse.clickInWindow(QStringLiteral("cmdCancel"));
    QVERIFY(!byMouse.form.isVisible());
    Editor byKey(0, "8/5/2004");
    type(byKey.form, "txtJobDate", QStringLiteral("soon"));
    QTest::keyClick(&byKey.form, Qt::Key_Escape);
    QVERIFY(!byKey.form.isVisible());
    QCOMPARE(byKey.captions.size(), 0);
}

void TestEditJob::listsEveryTypeByName()
{
    Editor editor(2, "");
    const auto& list = find<QListWidget>(editor.form, "List1");
    QStringList lines;
    for (int i = 0; i < list.count(); ++i)
        lines << list.item(i)->text().simplified();
    // A type whose client is gone is no choice.
    QCOMPARE(lines,
             QStringList({QStringLiteral("Adams Letters Report $4.50"), QStringLiteral("Zed Clinic Notes Line $0.12"),
                          QStringLiteral("Zed Clinic Visits Hourly $30.00")}));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(1)).center());
    editor.clickInWindow(QStringLiteral("cmdApply_2"));
    QCOMPARE(editor.types.value(0).value(0).toInt(), 1);
    QCOMPARE(editor.captions.size(), 0);
}

void TestEditJob::wantsALineSelected()
{
    Editor editor(2, "");
    editor.answers.expectBox(QStringLiteral("You must select from the list."));
    click(editor.form, "cmdApply_2");
    QVERIFY(editor.form.isVisible());
    QTest::keyClick(&find<QListWidget>(editor.form, "List1"), Qt::Key_Down);
    QTest::keyClick(&find<QListWidget>(editor.form, "List1"), Qt::Key_Return);
    QCOMPARE(editor.types.size(), 1);
}

void TestEditJob::lengthWithoutColonIsAnError()
{
    Bench bench;
    submission::frmEditJob form(nullptr);
    int number = 0;
    try {
        form.PopForm(8, QStringLiteral("57"));
    } catch (const values::RuntimeError& error) {
        number = error.number();
    }
    QCOMPARE(number, 9);
}

void TestEditJob::startThatIsNoDateEndsTheProgram()
{
    Editor editor(7, "8/5/2004 14:00");
    // Each is a date for itself, together they are none.
    find<QLineEdit>(editor.form, "txtStartTime").setText(QStringLiteral("8/6/2004"));
    editor.expectEnd(13, "Type mismatch");
    click(editor.form, "cmdApply_7");
    QCOMPARE(editor.captions.size(), 0);
}

QTEST_MAIN(TestEditJob)

#include "tst_editJob.moc"
