#pragma once

#include <QApplication>

namespace app {

/// The application with a net under it: an error that Qt itself would have to carry (from painting, a filter, a show or
/// close event) ends the program with the box of every other error, not without a word.
class Application : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace app
