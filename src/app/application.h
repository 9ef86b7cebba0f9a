#pragma once

#include <QApplication>

namespace app {

/// The application. An exception that would otherwise pass through Qt (from painting, an event filter, a show or close
/// event) is shown like any other error before the program ends. What is selected can be read in every theme.
class Application : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;

protected:
    bool event(QEvent* event) override;
};

} // namespace app
