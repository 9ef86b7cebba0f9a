#pragma once

#include <QMenuBar>

namespace app {

/// The keys of a menu bar whose captions have no marked letters: Alt and a menu's first letter open it and highlight
/// its first command; F10 goes to the menu bar; in an open menu a letter goes to the next command that begins with it.
class MenuKeys : public QObject {
    Q_OBJECT

public:
    /// Works for the menus that the bar has at this moment.
    MenuKeys(QMenuBar& bar, QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace app
