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

void setAccessKey(QWidget& control, QChar letter)
{
    const QKeySequence keys(Qt::ALT | static_cast<Qt::Key>(letter.toUpper().unicode()));
    const auto* shortcut = new QShortcut(keys, &control);
    QObject::connect(shortcut, &QShortcut::activated, &control, [&control] { press(control); });
    control.setToolTip(keys.toString(QKeySequence::NativeText));
}

} // namespace

void applyAccessKeys(QWidget& form)
{
    for (QWidget* control : form.findChildren<QWidget*>()) {
        if (const QString letter = control->property("accessKey").toString(); !letter.isEmpty())
            setAccessKey(*control, letter.front());
    }
}

} // namespace ui
