// Every window as those find it who do not see it or do not use the mouse: read over the bus of assistive tools, and
// gone through with the Tab key.
#include "everyWindow.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QProcess>
#include <QThread>

using namespace Qt::StringLiterals;

class TestEveryWindow : public EveryWindow {
    Q_OBJECT

private Q_SLOTS:
    void isNamedAndReached()
    {
        QVERIFY(begin());
        QVERIFY(play([this] { visitAll(); }));
        QCOMPARE(m_faults.join(u'\n'), QString());
    }

    void selectionIsReadInEveryTheme()
    {
        QPalette theme(Qt::lightGray);
        theme.setColor(QPalette::Highlight, QColor(0x3DAEE9));
        theme.setColor(QPalette::HighlightedText, Qt::white);
        QApplication::setPalette(theme);
        QCOMPARE(QApplication::palette().color(QPalette::HighlightedText), QColor(Qt::black));
    }

private:
    void look(const QString& window) override
    {
        QProcess reader;
        reader.start(TREE_WALKER, {QString::number(QCoreApplication::applicationPid())});
        reader.waitForFinished();
        const QString tree = QString::fromUtf8(reader.readAllStandardOutput() + reader.readAllStandardError());
        qInfo("%s", qPrintable(window + u":\n"_s + tree));
        if (reader.exitCode() != 0)
            m_faults << window + u": "_s + tree.section(u"FAULT"_s, 1);
        if (!tree.contains(m_wanted[window]))
            m_faults << window + u": no "_s + m_wanted[window];
        // There the boxes refuse to be left without a date and a time.
        if (window != u"edit-9"_s)
            tabThrough(window);
    }

    /// Presses Tab until the focus is where it was, or has nowhere to go.
    void tabThrough(const QString& window)
    {
        constexpr int most = 40;
        QStringList stops{focusedControl()};
        do {
            stops << nextStop();
        } while (stops.size() < most && stops.last() != stops.first());
        qInfo("%s", qPrintable(stops.join(u' ')));
        if (stops.size() == most)
            m_faults << window + u": Tab does not come back: "_s + stops.join(u' ');
        const auto compare = [&] {
            for (const QWidget* control : QApplication::activeWindow()->findChildren<QWidget*>()) {
                const bool isReached = !control->objectName().isEmpty() && stops.contains(control->objectName());
                if (control->isVisible() && isReached != isStop(*control))
                    m_faults << window + u": wrong with Tab: "_s + control->objectName();
            }
            return true;
        };
        waitFor("the stops", compare);
    }
    /// Where Tab leads to. Where there is only one stop, nothing comes to be waited for.
    QString nextStop()
    {
        const QString before = focusedControl();
        press("Tab");
        QElapsedTimer since;
        since.start();
        while (focusedControl() == before && since.elapsed() < 1000)
            QThread::msleep(5);
        return focusedControl();
    }
    /// Whether Tab should stop there: where nothing can be seen or changed it should not. Parts of Qt have no names.
    static bool isStop(const QWidget& control)
    {
        const auto* box = qobject_cast<const QLineEdit*>(&control);
        return !control.objectName().isEmpty() && control.isEnabled() && !control.visibleRegion().isEmpty() &&
               (control.focusPolicy() & Qt::TabFocus) != 0 && !control.focusProxy() && !(box && box->isReadOnly());
    }

    QHash<QString, QString> m_wanted{{"jobs", "combo box: Client: All"},
                                     {"job", "button: Client: Clinic 4"},
                                     {"new-job", "label: Reference number:  Alt+R"}};
    QStringList m_faults;
};

JOURNEY_MAIN(TestEveryWindow)
#include "tst_everyWindow.moc"
