#include "ui/accessibility.h"
#include "ui/comboBox.h"
#include "ui/contrast.h"
#include "ui/entryBox.h"
#include "ui/itemCombo.h"
#include "ui/textRule.h"
#include "ui/valueLabel.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QClipboard>
#include <QHelpEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <QVBoxLayout>

namespace {

/// A window with two boxes; the first has the focus.
struct Form : QWidget {
    Form()
    {
        first.setText("first");
        second.setText("second");
        auto* column = new QVBoxLayout(this);
        column->addWidget(&first);
        column->addWidget(&second);
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
    QSignalSpy left{&first, &ui::EntryBox::left};
};

bool isYellow(const QWidget& box)
{
    return box.palette().color(QPalette::Base) == QColor(0xFFFFC0);
}

} // namespace

class TestControls : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void entryBoxShowsItsFocus()
    {
        Form form;
        const auto check = [&](const ui::EntryBox& entered, const ui::EntryBox& other, int times) {
            QVERIFY(isYellow(entered) && !isYellow(other));
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
        QTest::keyClicks(&form.first, "typed");
        {
            QMenu menu;
            menu.addAction("Paste");
            menu.popup(QPoint());
        }
        QTest::keyClicks(&form.first, " on");
        Form{}; // in front for a moment
        form.comeToFront();
        QTest::keyClicks(&form.first, " and on");
        QCOMPARE(form.first.text(), "typed on and on");
        QVERIFY(isYellow(form.first));
        QCOMPARE(form.left.count(), 0);
        {
            const Form other;
            form.second.setFocus();
        }
        form.comeToFront();
        QCOMPARE(form.left.count(), 1);
        QVERIFY(!isYellow(form.first) && isYellow(form.second));
    }

    void boxesRewriteTextByTheirRule()
    {
        ui::EntryBox line;
        ui::EntryBox number;
        number.setValidator(new ui::TextRule(ui::removeGrouping, &number));
        QGuiApplication::clipboard()->setText(" 1,2\r\n3\u00a0a\n");
        for (const auto& [box, held] : {std::pair(&line, "< 1,2 3\u00a0a >"), {&number, "<123a>"}}) {
            box->setText("<>");
            box->setCursorPosition(1);
            box->paste();
            QCOMPARE(box->text(), held);
            QCOMPARE(box->text().mid(box->cursorPosition()), ">");
        }
    }

    void comboGivesTheSelectedId()
    {
        QComboBox combo;
        combo.addItem("Bert", 12);
        combo.addItem("Bert", 13);
        ui::selectId(combo, 13);
        QCOMPARE(ui::itemData(combo), 13);
    }

    // In the colours of real desktops.
    void messagesStandOut()
    {
        for (const auto& [window, text] : {std::pair(0xEFF0F1, 0x232629), {0x2A2E32, 0xFCFCFC}, {0x5A5A5A, 0xFFFFFF}}) {
            QPalette theme{QColor(window)};
            theme.setColor(QPalette::WindowText, QColor(text));
            QApplication::setPalette(theme);
            const QColor failure = ui::messageColor(ui::Outcome::Failure);
            const bool isLight = window == 0xEFF0F1;
            QCOMPARE(failure == QColor(Qt::red), isLight);
            QVERIFY(isLight || ui::contrastOf(failure, theme.color(QPalette::Window)) >= 4.5);
            QVERIFY(ui::contrastOf(ui::messageColor(ui::Outcome::Success), theme.color(QPalette::Window)) >= 4.5);
        }
        QApplication::setPalette(QPalette());
    }

    void assistiveToolsPressValuesAndOpenLists()
    {
        ui::installAccessibility();
        ui::ValueLabel value;
        ui::ComboBox combo;
        combo.addItem("All");
        value.setClickable();
        const QSignalSpy clicks(&value, &ui::ValueLabel::clicked);
        const auto act = [](QWidget& control, const QString& action) {
            QAccessible::queryAccessibleInterface(&control)->actionInterface()->doAction(action);
        };
        act(value, QAccessibleActionInterface::pressAction());
        QCOMPARE(clicks.count(), 1);
        act(combo, QAccessibleActionInterface::showMenuAction());
        QVERIFY(combo.view()->isVisible());
        act(combo, QAccessibleActionInterface::showMenuAction());
        QVERIFY(!combo.view()->isVisible());
    }

    void valueLabelShowsMarkupAsTyped()
    {
        const auto imageOf = [](QLabel&& label, const QString& text) {
            label.resize(200, 30);
            label.setTextFormat(Qt::PlainText);
            label.setText(text);
            return label.grab().toImage();
        };
        for (const QString text : {"<b>Bold</b>", "A & B", "&File", "A && B", "&amp;"}) {
            QCOMPARE(imageOf(ui::ValueLabel(), text), imageOf(QLabel(), text));
            QVERIFY(imageOf(ui::ValueLabel(), text) != imageOf(QLabel(), QString()));
        }
    }

    void valueLabelShowsWholeTextInToolTip()
    {
        ui::ValueLabel label;
        const QSize room = label.sizeHint();
        const QString text = "<b>a name</b> that is much longer than its room & wide";
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
