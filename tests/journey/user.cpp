#include "user.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QScreen>
#include <QTest>

#include <stdexcept>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void giveUp(const QString& what)
{
    throw std::runtime_error(what.toStdString());
}

/// Looks at the program on its own thread, and gives what is found there.
template <typename Look>
auto onProgram(Look look)
{
    std::invoke_result_t<Look> found;
    QMetaObject::invokeMethod(qApp, look, Qt::BlockingQueuedConnection, &found);
    return found;
}

QMainWindow* mainWindow()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* main = qobject_cast<QMainWindow*>(window))
            return main;
    }
    return nullptr;
}

QString shownText(const QString& name)
{
    const QWidget* widget = User::control(name);
    const char* property = qobject_cast<const QComboBox*>(widget) ? "currentText" : "text";
    return widget ? widget->property(property).toString() : "(no such control)";
}

QAction* actionOf(const QWidget& menu, const QString& caption)
{
    for (QAction* action : menu.actions()) {
        if (action->text() == caption)
            return action;
    }
    return nullptr;
}

// The display counts in pixels, the program in units that are larger on a high-resolution screen.
QPoint onDisplay(const QWidget& widget, QPoint place)
{
    return (QPointF(widget.mapToGlobal(place)) * widget.devicePixelRatioF()).toPoint();
}

void closeAllDialogs()
{
    while (QWidget* window = QApplication::activeModalWidget())
        qobject_cast<QDialog*>(window) ? qobject_cast<QDialog*>(window)->reject() : (void)window->close();
}

} // namespace

User::User(QString pictureFolder) : m_pictureFolder(std::move(pictureFolder))
{
    QDir().mkpath(m_pictureFolder);
}

bool User::play(const std::function<void()>& story)
{
    QString failure;
    bool isOver = false;
    std::thread person([&] {
        try {
            story();
        } catch (const std::exception& error) {
            failure = QString::fromUtf8(error.what());
            takePicture(u"failure-"_s + QString::fromLatin1(QTest::currentTestFunction()));
            QMetaObject::invokeMethod(qApp, closeAllDialogs, Qt::QueuedConnection);
        }
        QMetaObject::invokeMethod(
            qApp, [&] { isOver = true; }, Qt::QueuedConnection);
    });
    // Not a QEventLoop: none would start any more after the program has told the application to quit.
    while (!isOver)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    person.join();
    if (!failure.isEmpty())
        qWarning("%s", qPrintable(failure));
    return failure.isEmpty();
}

void User::sendToDisplay(const QStringList& arguments)
{
    if (QProcess::execute("xdotool", arguments) != 0)
        giveUp(u"xdotool "_s + arguments.join(u' '));
}

void User::waitFor(const QString& what, const std::function<bool()>& condition, int milliseconds)
{
    QElapsedTimer since;
    since.start();
    while (!onProgram(condition)) {
        if (since.elapsed() > milliseconds)
            giveUp(u"did not come: "_s + what);
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

void User::clickAt(const std::function<QPoint()>& place, int times)
{
    const QPoint point = onProgram(place);
    QStringList gesture{"mousemove", QString::number(point.x()), QString::number(point.y())};
    // As slow as a finger.
    for (int i = 0; i < times; ++i)
        gesture << u"mousedown 1 sleep 0.06 mouseup 1 sleep 0.06"_s.split(u' ');
    sendToDisplay(gesture);
}

void User::click(const QString& name)
{
    waitFor(name, [&] { return control(name) != nullptr; });
    clickAt([&] {
        const QWidget& widget = *control(name);
        return onDisplay(widget, widget.rect().center());
    });
}

void User::clickEntry(const QString& list, int row, int times)
{
    const auto view = [list] { return qobject_cast<QAbstractItemView*>(control(list)); };
    waitFor(u"row %1"_s.arg(row), [&] { return view() && view()->model()->rowCount() > row; });
    const auto place = [&] {
        const QAbstractItemView& rows = *view();
        return onDisplay(*rows.viewport(), rows.visualRect(rows.model()->index(row, 0)).center());
    };
    clickAt(place, times);
}

void User::turnWheel(const QString& name)
{
    clickAt([&] { return onDisplay(*control(name), control(name)->rect().center()); }, 0);
    sendToDisplay({"click", "5"});
}

void User::choose(const QStringList& captions)
{
    QWidget* menu = onProgram([] { return mainWindow()->menuBar(); });
    for (const QString& caption : captions) {
        QAction* action = nullptr;
        waitFor(caption, [&] { return menu->isVisible() && (action = actionOf(*menu, caption)) != nullptr; });
        clickAt([&] {
            const auto* bar = qobject_cast<QMenuBar*>(menu);
            const QRect area = bar ? bar->actionGeometry(action) : qobject_cast<QMenu*>(menu)->actionGeometry(action);
            return onDisplay(*menu, area.center());
        });
        menu = action->menu();
    }
}

void User::waitForWindow(const QString& nameOrText, int milliseconds)
{
    const auto isThere = [&] {
        QWidget* window = QApplication::activeModalWidget();
        const auto* box = qobject_cast<QMessageBox*>(window);
        return window && window->isActiveWindow() && (box ? box->text() : window->objectName()) == nameOrText;
    };
    waitFor(nameOrText, isThere, milliseconds);
}

void User::waitForNoWindow()
{
    waitFor("the main window", [] { return !QApplication::activeModalWidget() && mainWindow()->isActiveWindow(); });
}

void User::waitForText(const QString& name, const QString& text, int milliseconds)
{
    const auto isShown = [&] { return shownText(name) == text; };
    waitFor(name + " to show " + text, isShown, milliseconds);
}

void User::waitForTitle(const QString& title)
{
    waitFor(title, [&] { return mainWindow()->windowTitle() == title; });
}

QString User::text(const QString& name)
{
    return onProgram([&] { return shownText(name); });
}

QString User::focusedControl()
{
    return onProgram(
        [] { return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString(); });
}

void User::waitForFocus(const QString& name)
{
    const auto hasFocus = [&] {
        return QApplication::focusWidget() && QApplication::focusWidget()->objectName() == name;
    };
    waitFor("the focus on " + name, hasFocus);
}

QWidget* User::control(const QString& name)
{
    QWidget* root = QApplication::activeModalWidget();
    for (QWidget* widget : (root ? root : mainWindow())->findChildren<QWidget*>(name)) {
        if (widget->isVisible())
            return widget;
    }
    return nullptr;
}

QImage User::takePicture(const QString& name, Area area)
{
    // Time for painting and for the window manager to draw its frames; a new window of another program takes longer.
    std::this_thread::sleep_for(std::chrono::milliseconds(area == Area::Program ? 250 : 1250));
    const auto grab = [&] {
        QScreen& screen = *mainWindow()->screen();
        const QRect place = area == Area::Program ? mainWindow()->frameGeometry() : screen.geometry();
        return screen.grabWindow(0, place.x(), place.y(), place.width(), place.height()).toImage();
    };
    QImage picture = onProgram(grab);
    picture.save(m_pictureFolder + u'/' + name + ".png");
    return picture;
}
