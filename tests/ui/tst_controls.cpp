#include "support/errorOf.h"
#include "support/table.h"

#include "ui/accessKeys.h"
#include "ui/entryBox.h"
#include "ui/itemCombo.h"
#include "ui/textRule.h"
#include "ui/valueLabel.h"

#include <QClipboard>
#include <QHelpEvent>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// A window with two boxes and a button; the first box has the focus.
struct Form : QWidget {
    Form()
    {
        first.setText(u"first"_s);
        second.setText(u"second"_s);
        auto* column = new QVBoxLayout(this);
        for (QWidget* widget : std::initializer_list<QWidget*>{&first, &second, &button})
            column->addWidget(widget);
        show();
        comeToFront();
        first.setFocus();
    }
    void comeToFront()
    {
        activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(this));
    }

    ui::EntryBox first;
    ui::EntryBox second;
    QPushButton button;
    QSignalSpy left{&first, &ui::EntryBox::left};
};

QString colourOf(const QWidget& box)
{
    return box.palette().color(QPalette::Base).name();
}

const QString yellow = u"#ffffc0"_s;
const QString white = u"#ffffff"_s;

} // namespace

class TestControls : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void entryBoxShowsItsFocus()
    {
        Form form;
        const auto check = [&](const ui::EntryBox& entered, const ui::EntryBox& other, int times) {
            QCOMPARE(colourOf(entered), yellow);
            QCOMPARE(colourOf(other), white);
            QTRY_COMPARE(entered.selectedText(), entered.text());
            QCOMPARE(form.left.count(), times);
        };
        check(form.first, form.second, 0);
        QTest::keyClick(&form, Qt::Key_Tab);
        check(form.second, form.first, 1);
        QTest::mouseClick(&form.first, Qt::LeftButton);
        check(form.first, form.second, 1);
        form.second.setFocus();
        check(form.second, form.first, 2);
    }

    void entryBoxStaysEnteredBehindAnotherWindow()
    {
        Form form;
        QTest::keyClicks(&form.first, u"typed"_s);
        {
            QMenu menu;
            menu.addAction(u"Paste"_s);
            menu.popup(QPoint());
        }
        QTest::keyClicks(&form.first, u" on"_s);
        {
            const Form other;
        }
        form.comeToFront();
        QTest::keyClicks(&form.first, u" and on"_s);
        QCOMPARE(form.first.text(), u"typed on and on"_s);
        QCOMPARE(colourOf(form.first), yellow);
        QCOMPARE(form.left.count(), 0);
        {
            const Form other;
            form.second.setFocus();
        }
        form.comeToFront();
        QCOMPARE(form.left.count(), 1);
        QCOMPARE(colourOf(form.first), white);
        QCOMPARE(colourOf(form.second), yellow);
    }

    void boxesHoldWhatTheirRuleLeaves_data()
    {
        table({{"pasted", "line", "number"},
               {"lines", "1\r\n2\n", "<1 2 >", "<12>"},
               {"grouping", " 12,345\u00a0678", "< 12,345\u00a0678>", "<12345678>"},
               {"letters", "a few", "<a few>", "<afew>"}});
    }

    void boxesHoldWhatTheirRuleLeaves()
    {
        ui::EntryBox line;
        ui::EntryBox number;
        number.setValidator(new ui::TextRule(ui::bareNumber, &number));
        QGuiApplication::clipboard()->setText(cell("pasted"));
        for (ui::EntryBox* box : {&line, &number}) {
            box->setText(u"<>"_s);
            box->setCursorPosition(1);
            box->paste();
            QCOMPARE(box->text().mid(box->cursorPosition()), u">"_s);
        }
        QTEST(line.text(), "line");
        QTEST(number.text(), "number");
    }

    void accessKeyMovesTheFocusFirst()
    {
        Form form;
        ui::setAccessKey(form.button, u's');
        ui::setAccessKey(form.second, u'2');
        QList<qsizetype> leftBefore;
        connect(&form.button, &QPushButton::clicked, this, [&] { leftBefore << form.left.count(); });
        QTest::keyClick(&form, Qt::Key_S, Qt::AltModifier);
        QVERIFY(form.button.hasFocus());
        QTest::keyClick(&form, Qt::Key_2, Qt::AltModifier);
        QVERIFY(form.second.hasFocus());

        form.button.setEnabled(false);
        QTest::keyClick(&form, Qt::Key_S, Qt::AltModifier);
        QVERIFY(form.second.hasFocus());
        QCOMPARE(leftBefore, QList<qsizetype>{1});
    }

    void comboGivesTheSelectedId()
    {
        QComboBox combo;
        combo.setEditable(true);
        combo.addItem("Anna", 7);
        combo.addItem("Bert", 12);
        combo.addItem("Bert", 13);
        for (const qint32 id : {13, 12}) {
            ui::selectId(combo, id);
            QCOMPARE(ui::itemData(combo), id);
        }
        combo.setEditText(u"Bertha"_s);
        QVERIFY(!ui::selectedId(combo));
        ui::selectId(combo, 99);
        QCOMPARE(faultOf([&] { ui::itemData(combo); }), 381);
    }

    void valueLabelShowsTypedMarks()
    {
        const auto imageOf = [](QLabel&& label, const QString& text) {
            label.resize(200, 30);
            label.setTextFormat(Qt::PlainText);
            label.setText(text);
            return label.grab().toImage();
        };
        for (const QString& text : {u"<b>Bold</b>"_s, u"A & B"_s, u"&File"_s, u"A && B"_s, u"&amp;"_s}) {
            QCOMPARE(imageOf(ui::ValueLabel(), text), imageOf(QLabel(), text));
            QVERIFY(imageOf(ui::ValueLabel(), text) != imageOf(QLabel(), QString()));
        }
    }

    void valueLabelTellsTheWholeText()
    {
        ui::ValueLabel label;
        const QSize room = label.sizeHint();
        const QString text = u"<b>a name</b> that is much longer than its room & wide"_s;
        label.setText(text);
        QCOMPARE(label.sizeHint(), room);
        label.resize(60, 20);
        label.show();
        QHelpEvent event(QEvent::ToolTip, QPoint(5, 5), label.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&label, &event);
        QCOMPARE(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText(), text);
    }
};

QTEST_MAIN(TestControls)
#include "tst_controls.moc"
