#include "support/bench.h"

#include "ui/eventGuard.h"
#include "ui/messages.h"

#include <QPushButton>

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
