#include "optionGroup.h"

#include <QAbstractButton>

namespace ui {

namespace {

// The group itself leaves one stop only once the focus has been in it, and that where the focus was.
void stopAtChosen(const QButtonGroup& options)
{
    for (QAbstractButton* option : options.buttons())
        option->setFocusPolicy(option->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
}

} // namespace

void tabToChosen(QButtonGroup& options)
{
    QObject::connect(&options, &QButtonGroup::idToggled, &options, [&options](int, bool isChosen) {
        if (isChosen)
            stopAtChosen(options);
    });
    if (options.checkedButton())
        stopAtChosen(options);
}

} // namespace ui
