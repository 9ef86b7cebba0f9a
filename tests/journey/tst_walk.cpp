// Random keys and clicks in all windows, with data on screen. The program may refuse them and show errors, but it must
// not crash, and its data must stay valid.
#include "journey.h"

#include "store/native.h"
#include "support/bench.h"
#include "support/find.h"
#include "values/dates.h"

#include <QAction>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QSet>

#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int walkMilliseconds = 60'000;

const QStringList keys =
    u"Tab Tab shift+Tab Return Return Escape space Up Down Down Left Right Home End Prior Next "
    "BackSpace Delete F2 F3 F4 F6 F6 F7 F7 F8 F10 ctrl+F4 ctrl+a ctrl+c ctrl+v ctrl+z alt+a alt+c alt+d "
    "alt+f alt+g alt+l alt+n alt+r alt+s alt+t alt+y alt+Down Menu"_s.split(u' ')
    // to the job panel and to the other lists
    + QStringList{"F7 Return", "F7 Down Return", "alt+d Down Right Down Return", "alt+d Down Down Right Down Return"};
const QStringList texts{"12", "6500", "1,300", "8/1/04", "14:30", "O'Brien", "x & y", "<h1>A"};

/// Notes which dialogs open, and closes file dialogs, so that the walk touches no other files.
class Fence : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Show || !qobject_cast<QDialog*>(watched))
            return false;
        if (qobject_cast<QFileDialog*>(watched))
            QMetaObject::invokeMethod(watched, "reject", Qt::QueuedConnection);
        const auto* box = qobject_cast<QMessageBox*>(watched);
        opened << (box ? box->text().simplified() : watched->objectName());
        return false;
    }

    QSet<QString> opened;
};

} // namespace

class Walk : public Journey {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        store::Connection(modMain::DBConnString).runNative(sampleData);
        values::setClock([] { return values::dateTime(QDate(2004, 8, 18), QTime(9, 30)); });
        qApp->installEventFilter(&m_fence);
        QVERIFY(start(m_folder.path()));
        find<QAction>(*m_window, "mnuHelpShow").setEnabled(false);
    }

    void survivesRandomInput()
    {
        QElapsedTimer since;
        since.start();
        QVERIFY(play([&] {
            while (since.elapsed() < walkMilliseconds)
                step();
            press("Escape Escape Escape Escape");
        }));
        // An error that no trap catches rightly ends the program; the walk goes on all the same.
        qInfo("opened: %s", qPrintable(m_fence.opened.values().join(u'\n')));
        QVERIFY(m_fence.opened.size() > 5);
        const store::Connection connection(modMain::DBConnString);
        QCOMPARE(nativeValues(connection, "PRAGMA integrity_check"), "ok");
        QCOMPARE(nativeValues(connection, "SELECT DISTINCT typeof(jobdate) || typeof(joblines) FROM jobs"), "textreal");
    }

private:
    int pick(int below) { return std::uniform_int_distribution(0, below - 1)(m_random); }
    const QString& pick(const QStringList& texts) { return texts[pick(static_cast<int>(texts.size()))]; }

    void step()
    {
        const int gesture = pick(8);
        if (gesture == 0)
            type(pick(texts));
        else if (gesture < 4)
            clickAt([this] { return anyPlace(); }, pick(6) == 0 ? 2 : 1);
        else
            press(pick(keys));
    }

    /// A place on any control that can be seen and used.
    QPoint anyPlace()
    {
        m_window->show(); // an exit may have closed it
        QWidget* window = QApplication::activePopupWidget();
        for (QWidget* behind : {QApplication::activeModalWidget(), m_window.get()})
            window = window ? window : behind;
        QList<QWidget*> controls{window};
        for (QWidget* control : window->findChildren<QWidget*>()) {
            if (control->isVisible() && control->isEnabled() && control->visibleRegion().boundingRect().isValid())
                controls << control;
        }
        const QWidget& control = *controls[pick(static_cast<int>(controls.size()))];
        const QRect area = control.visibleRegion().boundingRect();
        return control.mapToGlobal(area.topLeft() + QPoint(pick(area.width() + 1), pick(area.height() + 1)));
    }

    Fence m_fence;
    std::mt19937 m_random{20041};
};

JOURNEY_MAIN(Walk)
#include "tst_walk.moc"
