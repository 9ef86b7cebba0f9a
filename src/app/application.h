#pragma once

#include <QApplication>

namespace app {

/// The application. An exception that would otherwise pass through Qt (from painting, an event filter, a show or close
/// event) is shown like any other error before the program ends.
class Application : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace app
