#pragma once

#include <QLineEdit>

namespace ui {

/// A box for one line of text: pale yellow with all its text selected while it has the focus, white without it. A menu
/// or another program's window in front does not count as losing the focus.
class EntryBox : public QLineEdit {
    Q_OBJECT

public:
    explicit EntryBox(QWidget* parent = nullptr);

    /// Turns yellow and selects all text, as when it gets the focus.
    void highlight();

Q_SIGNALS:
    /// The focus went to another control.
    void left();

protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void leave();

    bool m_isEntered = false;
};

} // namespace ui
