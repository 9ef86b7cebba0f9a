#pragma once

#include <QLayout>
#include <QWidget>

namespace workspace {

/// Removes all widgets of a layout from sight, and deletes them after the event that is being handled: one of them may
/// have sent it.
inline void clearLayout(QLayout& layout)
{
    while (const QLayoutItem* item = layout.takeAt(0)) {
        if (QWidget* widget = item->widget()) {
            widget->hide();
            widget->deleteLater();
        }
        delete item;
    }
}

} // namespace workspace
