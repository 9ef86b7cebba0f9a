#include "user.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QScreen>
#include <QTableView>
#include <QTest>

#include <stdexcept>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void giveUp(const QString& what)
{
    throw std::runtime_error(what.toStdString());
}

QMainWindow* mainWindow()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* main = qobject_cast<QMainWindow*>(window))
            return main;
    }
    return nullptr;
}

QWidget* visibleWidget(const QString& name)
{
    QWidget* root = QApplication::activeModalWidget();
    for (QWidget* widget : (root ? root : mainWindow())->findChildren<QWidget*>(name)) {
        if (widget->isVisible())
            return widget;
    }
    return nullptr;
}

QTableView* grid()
{
    return qobject_cast<QTableView*>(visibleWidget("dgList"));
}

QString shownText(const QString& name)
{
    QWidget* widget = visibleWidget(name);
    if (auto* label = qobject_cast<QLabel*>(widget))
        return label->text();
    if (auto* box = qobject_cast<QLineEdit*>(widget))
        return box->text();
    if (auto* button = qobject_cast<QAbstractButton*>(widget))
        return button->text();
    if (auto* combo = qobject_cast<QComboBox*>(widget))
        return combo->currentText();
    if (auto* picker = qobject_cast<QAbstractSpinBox*>(widget))
        return picker->text();
    return "(no such control)";
}

QAction* actionOf(const QWidget& menu, const QString& caption)
{
    for (QAction* action : menu.actions()) {
        if (action->text() == caption)
            return action;
    }
    return nullptr;
}

// The display counts pixels, the program counts in units that are larger on a fine screen.
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

QString User::play(const std::function<void()>& story)
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
    // No event loop of the application's kind: it would not start again once the program has ended it.
    while (!isOver)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    person.join();
    return failure;
}

void User::onProgram(const std::function<void()>& look)
{
    QMetaObject::invokeMethod(qApp, look, Qt::BlockingQueuedConnection);
}

void User::display(const QStringList& arguments)
{
    if (QProcess::execute("xdotool", arguments) != 0)
        giveUp(u"xdotool "_s + arguments.join(u' '));
}

void User::waitFor(const QString& what, const std::function<bool()>& condition, int milliseconds)
{
    QElapsedTimer since;
    since.start();
    for (bool met = false; !met;) {
        onProgram([&] { met = condition(); });
        if (!met && since.elapsed() > milliseconds)
            giveUp(u"did not come: "_s + what);
        if (!met)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

void User::press(const QString& keys)
{
    display(QStringList{"key", "--delay", "20"} + keys.split(u' '));
}

void User::type(const QString& text)
{
    display({"type", "--delay", "8", text});
}

void User::clickAt(const std::function<QPoint()>& place, int times)
{
    QPoint point;
    onProgram([&] { point = place(); });
    QStringList gesture{"mousemove", QString::number(point.x()), QString::number(point.y())};
    // Down and up as long as a finger takes.
    for (int i = 0; i < times; ++i)
        gesture << u"mousedown 1 sleep 0.06 mouseup 1 sleep 0.06"_s.split(u' ');
    display(gesture);
}

void User::click(const QString& name)
{
    waitFor(name, [&] { return visibleWidget(name) != nullptr; });
    clickAt([&] {
        const QWidget& widget = *visibleWidget(name);
        return onDisplay(widget, widget.rect().center());
    });
}

void User::clickEntry(const QString& list, int row, int times)
{
    const auto view = [list] { return qobject_cast<QAbstractItemView*>(visibleWidget(list)); };
    waitFor(QStringLiteral("entry %1").arg(row), [&] { return view() && view()->model()->rowCount() > row; });
    clickAt(
        [&] {
            const QAbstractItemView& entries = *view();
            return onDisplay(*entries.viewport(), entries.visualRect(entries.model()->index(row, 0)).center());
        },
        times);
}

void User::turnWheel(const QString& name)
{
    clickAt([&] { return onDisplay(*visibleWidget(name), visibleWidget(name)->rect().center()); }, 0);
    display({QStringLiteral("click"), QStringLiteral("5")});
}

void User::choose(const QStringList& captions)
{
    QWidget* menu = nullptr;
    onProgram([&] { menu = mainWindow()->menuBar(); });
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

void User::clickCell(int row, int column, int times)
{
    waitFor(u"row %1"_s.arg(row), [&] { return grid() && grid()->model()->rowCount() > row; });
    clickAt(
        [&] {
            const QTableView& table = *grid();
            return onDisplay(*table.viewport(), table.visualRect(table.model()->index(row, column)).center());
        },
        times);
}

void User::waitForWindow(const QString& nameOrText, int milliseconds)
{
    waitFor(
        nameOrText,
        [&] {
            QWidget* window = QApplication::activeModalWidget();
            if (!window || !window->isActiveWindow())
                return false;
            const auto* box = qobject_cast<QMessageBox*>(window);
            return box ? box->text() == nameOrText : window->objectName() == nameOrText;
        },
        milliseconds);
}

void User::waitForNoWindow()
{
    waitFor("the main window", [] { return !QApplication::activeModalWidget() && mainWindow()->isActiveWindow(); });
}

void User::waitForText(const QString& name, const QString& text, int milliseconds)
{
    waitFor(
        name + u" to show "_s + text, [&] { return shownText(name) == text; }, milliseconds);
}

void User::waitForTitle(const QString& title)
{
    waitFor(title, [&] { return mainWindow()->windowTitle() == title; });
}

QString User::text(const QString& name)
{
    QString result;
    onProgram([&] { result = shownText(name); });
    return result;
}

QString User::focused()
{
    QString name;
    onProgram([&] { name = QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString(); });
    return name;
}

QWidget* User::control(const QString& name)
{
    return visibleWidget(name);
}

QString User::cell(int row, int column)
{
    QString result;
    onProgram([&] { result = grid()->model()->index(row, column).data().toString(); });
    return result;
}

void User::takePicture(const QString& name)
{
    savePicture(name, [] { return mainWindow()->frameGeometry(); });
}

void User::takePictureOfDisplay(const QString& name)
{
    savePicture(name, [] { return mainWindow()->screen()->geometry(); });
}

void User::savePicture(const QString& name, const std::function<QRect()>& area)
{
    // What the last event changed is painted by then, and the window manager has drawn its frames.
    std::this_thread::sleep_for(std::chrono::milliseconds(250));
    onProgram([&] {
        const QRect place = area();
        mainWindow()
            ->screen()
            ->grabWindow(0, place.x(), place.y(), place.width(), place.height())
            .save(m_pictureFolder + u'/' + name + ".png");
    });
}
