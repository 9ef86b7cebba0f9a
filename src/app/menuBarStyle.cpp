#include "menuBarStyle.h"

#include <QStyleOptionMenuItem>
#include <QWidget>

namespace app {

MenuBarStyle::MenuBarStyle(QObject* parent)
{
    setParent(parent);
}

void MenuBarStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    const bool isMarked =
        element == CE_MenuBarItem && entry && entry->state.testFlag(State_Selected) && widget && widget->hasFocus();
    if (!isMarked)
        return QProxyStyle::drawControl(element, option, painter, widget);
    QStyleOptionMenuItem marked = *entry;
    marked.state |= State_Sunken;
    QProxyStyle::drawControl(element, &marked, painter, widget);
}

} // namespace app
