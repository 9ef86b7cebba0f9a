#include "submission/frmEditJob.h"

#include "submission/jobLength.h"
#include "submission/typeLine.h"
#include "support/bench.h"
#include "support/errorOf.h"
#include "support/table.h"
#include "ui/entryBox.h"

#include <QListWidget>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

/// The editor, open on one frame.
struct Editor : Bench {
    Editor(int index, const QString& value)
    {
        form.PopForm(static_cast<qint16>(index), value);
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        frame = &find<QWidget>(form, qPrintable(u"frEdit_%1"_s.arg(index)));
        boxes = frame->findChildren<ui::EntryBox*>();
    }

    /// Clicks through the window, as the mouse does; the window decides what gets the focus.
    void clickInWindow(const QString& button)
    {
        const auto& control = find<QWidget>(form, qPrintable(button));
        QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, control.mapTo(&form, control.rect().center()));
    }
    QString focused() const { return form.focusWidget() ? form.focusWidget()->objectName() : QString(); }

    submission::frmEditJob form{nullptr};
    QWidget* frame = nullptr;
    QList<ui::EntryBox*> boxes;
    QSignalSpy captions{&form, &submission::frmEditJob::captionApplied};
    QSignalSpy types{&form, &submission::frmEditJob::typeApplied};
};

class TestEditJob : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void typeLineCountsCharacters()
    {
        QCOMPARE(submission::PadTypeLine("A", "B", "Line", 1.25),
                 "A                B               Line        $1.25  ");
        const QString smiles = QString("😀").repeated(15);
        QCOMPARE(submission::PadTypeLine("Клиника Здоровье Юг", smiles + smiles, "Line", 123456.5),
                 "Клиника Здоровье  " + smiles + "  Line        $123,45");
    }

    // The typed texts go into the boxes of the frame in their order.
    void editsOneFrame_data()
    {
        addRows({{"index", "value", "texts", "focus", "typed", "caption"},
                 {"date as typed", "0", "8/5/2004", "08/05/2004", "txtJobDate", "16 Aug 2004", "16 Aug 2004"},
                 {"start", "7", "8/5/2004 14:05:07", "08/05/2004|14:05", "txtStartDate", "8/2/2004|2 pm",
                  "8/2/2004 2:00:00 PM"},
                 {"no start", "7", "", "|", "txtStartDate", "08/20/2004|14:05", "8/20/2004 2:05:00 PM"},
                 {"zero hours", "8", "12:07", "|12|07", "txtHr", "0|75|30", "75:30"},
                 {"two zeros", "8", "1:05:30", "1|05|30", "txtHr", "00|5|30", "5:30"},
                 {"seconds only", "8", "..", "||", "txtHr", "||07", "00:07"},
                 {"submitted", "9", "8/16/2004 12:00", "08/16/2004|12:00", "txtTimeSub", "8/1/04|2 pm", "8/1/04 2 pm"},
                 {"not submitted", "9", ".", "|", "txtTimeSub", "8/16/2004|14:00", "8/16/2004 14:00"},
                 {"reference", "10", "A-114", "A-114", "txtRefId", "O'Brien <b>", "O'Brien <b>"}});
    }

    // Enter in the last box presses Apply.
    void editsOneFrame()
    {
        Editor editor(cell("index").toInt(), cell("value"));
        for (const auto* frame : editor.form.findChildren<QWidget*>(QRegularExpression("^frEdit_")))
            QCOMPARE(frame->isVisible(), frame == editor.frame);
        QTEST(editor.focused(), "focus");
        QStringList texts;
        for (int i = 0; i < editor.boxes.size(); ++i) {
            texts << editor.boxes[i]->text();
            editor.boxes[i]->setText(cell("typed").section(u'|', i, i));
        }
        QTEST(texts.join(u'|'), "texts");
        QTest::keyClick(editor.boxes.last(), Qt::Key_Return);
        QVERIFY(!editor.form.isVisible());
        QTEST(editor.captions.value(0).value(0).toString(), "index");
        QTEST(editor.captions.value(0).value(1).toString(), "caption");
    }

    // Two rules involve another box: the submitted date is checked with the start date, which is empty here, and a
    // wrong submitted time highlights the box beside it.
    void keepsTheFocusInABadBox_data()
    {
        addRows({{"index", "value", "box", "text", "highlighted", "wanted"},
                 {"date", "0", "8/5/2004", "txtJobDate", "soon", "txtJobDate", "date"},
                 {"emptied date", "7", "8/5/2004", "txtStartDate", "", "txtStartDate", "date"},
                 {"start time", "7", "8/5/2004", "txtStartTime", "25:00", "txtStartTime", "time"},
                 {"submitted date", "9", ".", "txtDateSub", "8/16/2004", "txtDateSub", "date"},
                 {"submitted time", "9", ".", "txtTimeSub", "noon", "txtDateSub", "time"}});
    }

    void keepsTheFocusInABadBox()
    {
        Editor editor(cell("index").toInt(), cell("value"));
        auto& left = find<ui::EntryBox>(editor.form, qPrintable(cell("box")));
        left.setFocus();
        left.setText(cell("text"));
        for (int i = 0; i < 5; ++i)
            editor.answers.expectBox(u"Please insert a %1 in this field."_s.arg(cell("wanted")));
        QTest::keyClick(&left, Qt::Key_Tab);
        QTEST(editor.focused(), "box");
        QCOMPARE(left.selectedText(), left.text());
        const auto& highlighted = find<QWidget>(editor.form, qPrintable(cell("highlighted")));
        QCOMPARE(highlighted.palette().color(QPalette::Base), QColor(0xFFFFC0));
        QTest::keyClick(&left, Qt::Key_Backtab, Qt::ShiftModifier);
        editor.clickInWindow("cmdApply_" + cell("index"));
        QTest::keyClick(&left, Qt::Key_Return);
        // The access key of Apply; without a window manager the form does not get the front back by itself.
        editor.form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&editor.form));
        QTest::keyClick(&left, Qt::Key_A, Qt::AltModifier);
        QTEST(editor.focused(), "box");
        QVERIFY(editor.form.isVisible());
        // Cancel never checks.
        editor.clickInWindow("cmdCancel");
        QVERIFY(!editor.form.isVisible());
        QCOMPARE(editor.captions.size(), 0);
    }

    // A type without its client is not offered.
    void choosesAmongEveryType()
    {
        Editor editor(2, QString());
        auto& list = find<QListWidget>(editor.form, "List1");
        QCOMPARE(entries(editor.form, "List1").join(u'\n').simplified(),
                 "Adams Letters Report $4.50 Zed Clinic Notes Line $0.12 Zed Clinic Visits Hourly $30.00");
        editor.answers.expectBox("You must select from the list.");
        editor.clickInWindow("cmdApply_2");
        QCOMPARE(editor.focused(), "List1");
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(1)).center());
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(editor.types.value(0).value(0).toInt(), 1);
        QCOMPARE(editor.captions.size(), 0);
    }

    void lengthWithoutColonIsAnError()
    {
        QCOMPARE(catchFault([] { submission::splitLength("57"); }), 9);
    }

    void startThatIsNoDateEndsTheProgram()
    {
        Editor editor(7, "8/5/2004 14:00");
        // Each box alone is valid, but together they are not a date.
        find<QLineEdit>(editor.form, "txtStartTime").setText("8/6/2004");
        editor.expectEnd(13, "Type mismatch");
        click(editor.form, "cmdApply_7");
        QCOMPARE(editor.captions.size(), 0);
    }
};

QTEST_MAIN(TestEditJob)
#include "tst_editJob.moc"
