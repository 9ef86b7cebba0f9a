#include "support/bench.h"
#include "support/errorOf.h"

#include "ui/eventGuard.h"
#include "ui/longWork.h"
#include "ui/messages.h"

#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QThread>

#include <stdexcept>

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
        QTest::newRow("short") << QString("Sure?");
        QTest::newRow("words") << QString("so it goes ").repeated(40);
        QTest::newRow("lines") << QString("so it goes\n").repeated(4);
        QTest::newRow("long word") << QString(300, u'w') + " and";
        QTest::newRow("too much") << QString("on and on\n").repeated(500);
    }

    void boxesShowTheirTextAndTitle()
    {
        QFETCH(QString, text);
        bool isShown = false;
        QTimer::singleShot(0, this, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            box->close();
            const auto* label = box->findChild<QLabel*>("qt_msgbox_label");
            const QSize room = box->screen()->availableSize().boundedTo(label->size());
            const QRect endless(0, 0, label->width(), QWIDGETSIZE_MAX);
            const QSize needed = label->fontMetrics().boundingRect(endless, Qt::TextWordWrap, label->text()).size();
            QCOMPARE(needed.boundedTo(room), needed);
            QCOMPARE(label->textFormat(), Qt::PlainText);
            QCOMPARE(label->text().remove(u'\n') == text.remove(u'\n'), text.size() < 1000);
            const int besideTitle = box->width() - box->fontMetrics().horizontalAdvance(box->windowTitle());
            // An icon and three buttons.
            QVERIFY2(besideTitle >= 4 * 20, qPrintable(QString::number(besideTitle)));
            isShown = true;
        });
        ui::showMessage(text, "You're about to read this text!");
        QVERIFY(isShown);
    }

    // Before any box comes. Looked at while the work goes on; nothing is left of it afterwards, also after an error.
    void workShowsTheWaitCursor()
    {
        const auto isWaiting = [] {
            const QCursor* cursor = QGuiApplication::overrideCursor();
            return cursor && cursor->shape() == Qt::WaitCursor;
        };
        QVERIFY(!isWaiting());
        bool isSeen = false;
        QTimer::singleShot(0, this, [&] { isSeen = isWaiting(); });
        const auto work = [&](QPromise<void>&) {
            QThread::msleep(100);
            throw values::RuntimeError(values::Fault::FileNotFound);
        };
        QCOMPARE(catchFault([&] { ui::doBesideBox({}, work); }), 53);
        QVERIFY(isSeen);
        QVERIFY(!isWaiting());
    }

    // Even while Yes has the focus. That Enter means No is tested in a journey.
    void escapeMeansNo()
    {
        QTimer::singleShot(0, this, [] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QTest::keyClick(box->button(QMessageBox::Yes), Qt::Key_Escape);
        });
        QVERIFY(!ui::confirm("Delete?"));
    }
};

QTEST_MAIN(TestMessages)
#include "tst_messages.moc"
