#include "refuse.h"

#include "messages.h"

#include <QComboBox>
#include <QLineEdit>

#include <algorithm>

namespace ui {

QWidget* findFirstEmpty(std::initializer_list<QWidget*> boxes)
{
    const auto isEmpty = [](const QWidget* box) {
        const auto* combo = qobject_cast<const QComboBox*>(box);
        return (combo ? combo->currentText() : qobject_cast<const QLineEdit*>(box)->text()).isEmpty();
    };
    const auto* found = std::ranges::find_if(boxes, isEmpty);
    return found != boxes.end() ? *found : nullptr;
}

void refuse(const QString& message, QWidget& box)
{
    showMessage(message);
    box.setFocus();
    const auto* combo = qobject_cast<QComboBox*>(&box);
    if (auto* line = combo ? combo->lineEdit() : qobject_cast<QLineEdit*>(&box))
        line->selectAll();
}

} // namespace ui
