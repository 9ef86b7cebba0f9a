#pragma once

#include <QMenuBar>

namespace app {

/// The keys of a menu bar whose captions name none: Alt and a menu's first letter opens it, with its first command
/// chosen; F10 goes to the bar; in an open menu a letter goes to the next command that begins with it.
class MenuKeys : public QObject {
    Q_OBJECT

public:
    /// For the menus that the bar has by now.
    MenuKeys(QMenuBar& bar, QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace app
