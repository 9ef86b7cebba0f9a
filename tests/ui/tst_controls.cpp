#include "ui/accessKeys.h"
#include "ui/entryBox.h"
#include "ui/itemCombo.h"
#include "ui/valueLabel.h"

#include "values/runtimeError.h"

#include <QHelpEvent>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// A window with two boxes and a button.
class Form : public QWidget {
public:
    Form()
    {
        auto* column = new QVBoxLayout(this);
        for (QWidget* widget :
             {static_cast<QWidget*>(&first), static_cast<QWidget*>(&second), static_cast<QWidget*>(&button)})
            column->addWidget(widget);
        first.setText(u"first"_s);
        second.setText(u"second"_s);
        show();
        comeToFront();
    }
    void comeToFront()
    {
        activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(this));
    }

    ui::EntryBox first{this};
    ui::EntryBox second{this};
    QPushButton button{this};
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
    void entryBoxShowsItsFocus();
    void entryBoxKeepsWhatIsTypedMeanwhile();
    void entryBoxIsLeftBehindAnotherWindow();
    void accessKeyMovesTheFocusFirst();
    void comboGivesTheSelectedId();
    void valueLabelShowsTypedMarks();
    void valueLabelTellsTheWholeText();
};

void TestControls::entryBoxShowsItsFocus()
{
    Form form;
    form.first.setFocus();
    int lefts = 0;
    connect(&form.first, &ui::EntryBox::left, this, [&] { ++lefts; });
    connect(&form.second, &ui::EntryBox::left, this, [&] { ++lefts; });
    const auto check = [&](const ui::EntryBox& entered, const ui::EntryBox& left, int times) {
        QCOMPARE(colourOf(entered), yellow);
        QCOMPARE(colourOf(left), white);
        QTRY_COMPARE(entered.selectedText(), entered.text());
        QCOMPARE(lefts, times);
    };
    check(form.first, form.second, 0);
    QTest::keyClick(&form, Qt::Key_Tab);
    check(form.second, form.first, 1);
    QTest::mouseClick(&form.first, Qt::LeftButton);
    check(form.first, form.second, 2);
    form.second.setFocus();
    check(form.second, form.first, 3);
}

void TestControls::entryBoxKeepsWhatIsTypedMeanwhile()
{
    Form form;
    form.first.setFocus();
    const QSignalSpy left(&form.first, &ui::EntryBox::left);
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
    QCOMPARE(left.count(), 0);
}

void TestControls::entryBoxIsLeftBehindAnotherWindow()
{
    Form form;
    form.first.setFocus();
    const QSignalSpy left(&form.first, &ui::EntryBox::left);
    {
        const Form other;
        form.second.setFocus();
    }
    form.comeToFront();
    QCOMPARE(left.count(), 1);
    QCOMPARE(colourOf(form.first), white);
    QCOMPARE(colourOf(form.second), yellow);
}

void TestControls::accessKeyMovesTheFocusFirst()
{
    Form form;
    ui::setAccessKey(form.button, u's');
    ui::setAccessKey(form.second, u'2');
    form.first.setFocus();
    QStringList events;
    connect(&form.first, &ui::EntryBox::left, this, [&] { events << u"left"_s; });
    connect(&form.button, &QPushButton::clicked, this, [&] { events << u"clicked"_s; });
    QTest::keyClick(&form, Qt::Key_S, Qt::AltModifier);
    QCOMPARE(events, QStringList({u"left"_s, u"clicked"_s}));
    QVERIFY(form.button.hasFocus());
    QTest::keyClick(&form, Qt::Key_2, Qt::AltModifier);
    QVERIFY(form.second.hasFocus());

    form.button.setEnabled(false);
    QTest::keyClick(&form, Qt::Key_S, Qt::AltModifier);
    QVERIFY(form.second.hasFocus());
    QCOMPARE(events.size(), 2);
}

void TestControls::comboGivesTheSelectedId()
{
    QComboBox combo;
    combo.setEditable(true);
    ui::addEntry(combo, u"Anna"_s, 7);
    ui::addEntry(combo, u"Bert"_s, 12);
    ui::addEntry(combo, u"Bert"_s, 13);
    ui::selectId(combo, 13);
    QCOMPARE(ui::itemData(combo), 13);
    ui::selectId(combo, 12);
    QCOMPARE(ui::itemData(combo), 12);
    combo.setEditText(u"Bertha"_s);
    QVERIFY(!ui::selectedId(combo));
    ui::selectId(combo, 99);
    QVERIFY(!ui::selectedId(combo));
    QVERIFY_EXCEPTION_THROWN(ui::itemData(combo), values::RuntimeError);
}

void TestControls::valueLabelShowsTypedMarks()
{
    const auto imageOf = [](QLabel&& label, const QString& text) {
        label.resize(200, 30);
        label.setTextFormat(Qt::PlainText);
        label.setText(text);
        return label.grab().toImage();
    };
    for (const char16_t* marked : {u"<b>Bold</b>", u"A & B", u"&File", u"A && B", u"&amp;"}) {
        const QString text = QString::fromUtf16(marked);
        QCOMPARE(imageOf(ui::ValueLabel(), text), imageOf(QLabel(), text));
        QVERIFY(imageOf(ui::ValueLabel(), text) != imageOf(QLabel(), QString()));
    }
}

void TestControls::valueLabelTellsTheWholeText()
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
    QCOMPARE(QToolTip::text(), text);
}

QTEST_MAIN(TestControls)
#include "tst_controls.moc"
