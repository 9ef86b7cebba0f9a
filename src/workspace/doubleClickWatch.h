#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPoint>
#include <QTimer>

namespace workspace {

/// Recognises the second press of a double click wherever it arrives. The first click may have hidden the grid or
/// opened a dialog, so that the press lands on another control, or on a window that the dialog blocks and that gets no
/// event.
class DoubleClickWatch : public QObject {
    Q_OBJECT

public:
    explicit DoubleClickWatch(QObject* parent = nullptr);

    /// Starts watching after a click at this position of the screen; the timestamp is that of its event.
    void begin(QPoint globalPosition, quint64 timestamp);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void doubleClicked();

private:
    void end();
    void pollButtons();
    bool isSecondPress(QPoint globalPosition) const;
    void report();

    QPoint m_place;
    quint64 m_clickTime = 0;
    QElapsedTimer m_sinceClick;
    QTimer m_pollTimer;
};

} // namespace workspace
