#include "accessKeys.h"

#include <QShortcut>

namespace ui {

namespace {

template <typename Action>
void connectKey(QWidget& widget, QChar letter, Action action)
{
    const QKeySequence keys(Qt::ALT | static_cast<Qt::Key>(letter.toUpper().unicode()));
    auto* shortcut = new QShortcut(keys, &widget);
    QObject::connect(shortcut, &QShortcut::activated, &widget, action);
    widget.setToolTip(keys.toString(QKeySequence::NativeText));
}

} // namespace

void setAccessKey(QAbstractButton& button, QChar letter)
{
    connectKey(button, letter, [&button] {
        button.setFocus(Qt::ShortcutFocusReason);
        button.click();
    });
}

void setAccessKey(QWidget& box, QChar letter)
{
    connectKey(box, letter, [&box] { box.setFocus(Qt::ShortcutFocusReason); });
}

} // namespace ui
