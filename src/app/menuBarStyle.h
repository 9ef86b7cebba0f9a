#pragma once

#include <QProxyStyle>

namespace app {

/// The application's style, which also marks the menu that the keyboard is at. Some styles mark only an open one, and
/// nothing would tell that F10 has gone to the bar.
class MenuBarStyle : public QProxyStyle {
public:
    explicit MenuBarStyle(QObject* parent);

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

} // namespace app
