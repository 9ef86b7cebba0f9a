#include "support/bench.h"

#include "ui/eventGuard.h"
#include "ui/messages.h"

#include <QLabel>
#include <QPushButton>
#include <QScreen>

#include <stdexcept>

using namespace Qt::StringLiterals;

class TestMessages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void unforeseenErrorsEndTheProgram()
    {
        Bench bench;
        QPushButton button;
        ui::onEvent(&button, &QPushButton::clicked, this, [] { throw std::out_of_range("at"); });
        bench.expectEnd(51, "Internal error: at");
        button.click();
    }

    void boxesShowTheirTextAndTitle_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isWhole");
        QTest::newRow("short") << u"Sure?"_s << true;
        QTest::newRow("words") << u"so it goes "_s.repeated(40) << true;
        QTest::newRow("lines") << u"so it goes\n"_s.repeated(4) << true;
        QTest::newRow("long word") << QString(300, u'w') + u" and"_s << true;
        QTest::newRow("too much") << u"on and on\n"_s.repeated(500) << false;
    }

    void boxesShowTheirTextAndTitle()
    {
        QFETCH(QString, text);
        QFETCH(bool, isWhole);
        QString shown;
        QSize room;
        QSize needed;
        int besideTitle = 0;
        QTimer::singleShot(0, this, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            const auto* label = box->findChild<QLabel*>(u"qt_msgbox_label"_s);
            shown = label->text();
            room = box->screen()->availableSize().boundedTo(label->size());
            const QRect endless(0, 0, label->width(), QWIDGETSIZE_MAX);
            needed = label->fontMetrics().boundingRect(endless, Qt::TextWordWrap, shown).size();
            besideTitle = box->width() - box->fontMetrics().horizontalAdvance(box->windowTitle());
            box->close();
        });
        ui::showMessage(text, u"You're about to read this text!"_s);
        QCOMPARE(needed.boundedTo(room), needed);
        QCOMPARE(shown.remove(u'\n') == text.remove(u'\n'), isWhole);
        // An icon and three buttons.
        QVERIFY2(besideTitle >= 4 * 20, qPrintable(QString::number(besideTitle)));
    }

    void asksBeforeHarm_data()
    {
        using Button = QMessageBox::StandardButton;
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Button>("pressedOn");
        QTest::addColumn<bool>("confirmed");
        QTest::newRow("Enter at once") << Qt::Key_Return << QMessageBox::NoButton << false;
        QTest::newRow("Escape") << Qt::Key_Escape << QMessageBox::Yes << false;
        QTest::newRow("Yes sought out") << Qt::Key_Space << QMessageBox::Yes << true;
    }

    void asksBeforeHarm()
    {
        QFETCH(Qt::Key, key);
        QFETCH(QMessageBox::StandardButton, pressedOn);
        Qt::TextFormat format = Qt::AutoText;
        QTimer::singleShot(0, this, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            format = box->textFormat();
            QWidget* button = box->button(pressedOn);
            QTest::keyClick(button ? button : box, key);
            box->close();
        });
        QTEST(ui::confirm(u"Delete <b>A</b> & Co?"_s), "confirmed");
        QCOMPARE(format, Qt::PlainText);
    }
};

QTEST_MAIN(TestMessages)
#include "tst_messages.moc"
