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

void openMenu(QMenuBar& bar, QAction* menu)
{
    bar.setActiveAction(menu);
    press(*menu->menu(), Qt::Key_Down);
}

// Sends what pressing and releasing Alt alone sends. An event's modifiers are those before it.
void activateMenuBar(QWidget& window)
{
    QKeyEvent down(QEvent::ShortcutOverride, Qt::Key_Alt, Qt::NoModifier);
    QKeyEvent up(QEvent::KeyRelease, Qt::Key_Alt, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &down);
    QCoreApplication::sendEvent(&window, &up);
}

// Goes there with the Down key: to highlight a submenu in any other way would open it.
bool goToNextCommand(QMenu& menu, const QString& letter)
{
    const auto isMatch = [&](const QAction* command) {
        return command && command->isEnabled() && command->text().startsWith(letter, Qt::CaseInsensitive);
    };
    const QList<QAction*> commands = menu.actions();
    if (std::ranges::none_of(commands, isMatch))
        return false;
    // Limited, because in some styles Down stops at the last command.
    for (qsizetype steps = 0; steps < commands.size(); ++steps) {
        press(menu, Qt::Key_Down);
        if (isMatch(menu.activeAction()))
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
                openMenu(bar, menu);
        });
    }
    const auto* key = new QShortcut(Qt::Key_F10, &window);
    connect(key, &QShortcut::activated, &bar, [&window] { activateMenuBar(window); });
    for (QMenu* menu : bar.findChildren<QMenu*>())
        menu->installEventFilter(this);
}

bool MenuKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const QString typed = static_cast<QKeyEvent*>(event)->text();
    return typed.size() == 1 && typed.at(0).isLetterOrNumber() && goToNextCommand(*static_cast<QMenu*>(watched), typed);
}

} // namespace app
