#pragma once

#include <QDialog>
#include <QObject>

#include <functional>

class QMouseEvent;

namespace ui {

/// Asks a rule before Tab, an access key or the mouse moves the focus from one control of a dialog to another, and
/// keeps the focus where it is if the rule says no. One control (Cancel) can always be reached.
class LeaveCheck : public QObject {
    Q_OBJECT

public:
    using CanLeave = std::function<bool(QWidget* box)>;

    LeaveCheck(QDialog& dialog, const QWidget& freeControl, CanLeave canLeave);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The control to which the event would move the focus; null when it would not move it.
    const QWidget* findTarget(QObject* watched, const QEvent& event) const;
    const QWidget* findPressedControl(const QMouseEvent& event) const;

    QDialog& m_dialog;
    const QWidget& m_freeControl;
    CanLeave m_canLeave;
};

} // namespace ui
