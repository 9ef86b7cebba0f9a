#pragma once

#include "keyCodes.h"

#include "ui/contrast.h"
#include "ui/entryBox.h"

#include <QLabel>
#include <QObject>
#include <QPushButton>

namespace templates {

/// Fetches templates by key code. Every form that offers this hands over its box, its two buttons and its message line.
class Retrieval : public QObject {
    Q_OBJECT

public:
    Retrieval(ui::EntryBox& keyCode, QPushButton& getButton, QPushButton& resetButton, QLabel& message);

    /// Empties the box and sets the message line to "..".
    void clear();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void enter(const QFocusEvent& event);
    void retrieve();
    void showMessage(const QString& text, ui::Outcome outcome);

    ui::EntryBox& m_keyCode;
    KeyCodes m_known;
    QLabel& m_message;
};

} // namespace templates
