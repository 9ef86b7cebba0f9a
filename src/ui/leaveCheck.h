#pragma once

#include <QDialog>
#include <QObject>

#include <functional>

class QMouseEvent;

namespace ui {

/// Asks before the focus leaves a box of a dialog for another control of it, by Tab, access key or mouse: a rule that
/// keeps the focus cannot wait until it has moved. One control (Cancel) can always be reached.
class LeaveCheck : public QObject {
    Q_OBJECT

public:
    using MayLeave = std::function<bool(QWidget* box)>;

    LeaveCheck(QDialog& dialog, const QWidget& free, MayLeave mayLeave);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The control that the event takes the focus to; null when it stays.
    const QWidget* destination(QObject* watched, const QEvent& event) const;
    const QWidget* pressed(const QMouseEvent& event) const;

    QDialog& m_dialog;
    const QWidget& m_free;
    MayLeave m_mayLeave;
};

} // namespace ui
