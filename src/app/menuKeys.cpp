#include "menuKeys.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QShortcut>

#include <algorithm>

namespace app {

namespace {

void press(QWidget& widget, int key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

void open(QMenuBar& bar, QAction* menu)
{
    bar.setActiveAction(menu);
    press(*menu->menu(), Qt::Key_Down);
}

// As Alt alone does it, which counts when it is let go. An event's modifiers are those before it.
void goToBar(QWidget& window)
{
    QKeyEvent down(QEvent::ShortcutOverride, Qt::Key_Alt, Qt::NoModifier);
    QKeyEvent up(QEvent::KeyRelease, Qt::Key_Alt, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &down);
    QCoreApplication::sendEvent(&window, &up);
}

// By as many steps as it takes: to choose a command that is a menu in itself any other way would open that.
bool goToNext(QMenu& menu, const QString& letter)
{
    const auto isMeant = [&](const QAction* command) {
        return command && command->isEnabled() && command->text().startsWith(letter, Qt::CaseInsensitive);
    };
    const QList<QAction*> commands = menu.actions();
    if (std::ranges::none_of(commands, isMeant))
        return false;
    // Not every style goes from the last command on to the first.
    for (qsizetype steps = 0; steps < commands.size(); ++steps) {
        press(menu, Qt::Key_Down);
        if (isMeant(menu.activeAction()))
            break;
    }
    return true;
}

} // namespace

MenuKeys::MenuKeys(QMenuBar& bar, QWidget& window) : QObject(&bar)
{
    for (QAction* menu : bar.actions()) {
        const auto letter = static_cast<Qt::Key>(menu->text().at(0).toUpper().unicode());
        const auto* key = new QShortcut(Qt::ALT | letter, &window);
        connect(key, &QShortcut::activated, &bar, [&bar, menu] {
            if (menu->isEnabled())
                open(bar, menu);
        });
    }
    const auto* key = new QShortcut(Qt::Key_F10, &window);
    connect(key, &QShortcut::activated, &bar, [&window] { goToBar(window); });
    for (QMenu* menu : bar.findChildren<QMenu*>())
        menu->installEventFilter(this);
}

bool MenuKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const QString typed = static_cast<QKeyEvent*>(event)->text();
    return typed.size() == 1 && typed.at(0).isLetterOrNumber() && goToNext(*static_cast<QMenu*>(watched), typed);
}

} // namespace app
