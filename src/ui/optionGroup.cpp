#include "optionGroup.h"

#include <QAbstractButton>

namespace ui {

namespace {

// Qt by itself does so only after the focus has been in the group, and then stops where the focus was.
void moveTabStopToChosen(const QButtonGroup& options)
{
    for (QAbstractButton* option : options.buttons())
        option->setFocusPolicy(option->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
}

} // namespace

void setTabStopAtChosen(QButtonGroup& options)
{
    QObject::connect(&options, &QButtonGroup::idToggled, &options, [&options](int, bool isChosen) {
        if (isChosen)
            moveTabStopToChosen(options);
    });
    if (options.checkedButton())
        moveTabStopToChosen(options);
}

} // namespace ui
