#include "accessKeys.h"

#include <QAbstractButton>
#include <QShortcut>

namespace ui {

namespace {

void press(QWidget& control)
{
    control.setFocus(Qt::ShortcutFocusReason);
    if (auto* button = qobject_cast<QAbstractButton*>(&control))
        button->click();
}

void setAccessKey(QWidget& control, const QKeySequence& keys)
{
    const auto* shortcut = new QShortcut(keys, &control);
    QObject::connect(shortcut, &QShortcut::activated, &control, [&control] { press(control); });
    control.setToolTip(keys.toString(QKeySequence::NativeText));
}

} // namespace

void applyAccessKeys(QWidget& form)
{
    for (QWidget* control : form.findChildren<QWidget*>()) {
        if (const QKeySequence keys = accessKeyOf(*control); !keys.isEmpty())
            setAccessKey(*control, keys);
    }
}

QKeySequence accessKeyOf(const QWidget& control)
{
    const QString letter = control.property("accessKey").toString();
    return letter.isEmpty() ? QKeySequence() : QKeySequence(Qt::ALT | Qt::Key(letter.front().toUpper().unicode()));
}

} // namespace ui
