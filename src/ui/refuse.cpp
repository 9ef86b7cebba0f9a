#include "refuse.h"

#include "messages.h"

#include <QComboBox>
#include <QLineEdit>

#include <algorithm>

using namespace Qt::StringLiterals;

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

const QString selectionMessage = u"You must select from the list."_s;
const QString dateMessage = u"Please insert a date in this field."_s;
const QString numberMessage = u"Please enter a number ONLY."_s;

} // namespace ui
