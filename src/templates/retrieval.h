#pragma once

#include "ui/entryBox.h"

#include <QLabel>
#include <QObject>
#include <QPushButton>

namespace templates {

/// Fetches templates by key code: one behaviour for the box, the two buttons and the message line of every place that
/// offers it.
class Retrieval : public QObject {
    Q_OBJECT

public:
    Retrieval(ui::EntryBox& keyCode, QPushButton& get, QPushButton& reset, QLabel& message);

    /// Empties the box and sets the message line to "..".
    void clear();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void retrieve();
    void say(const QString& text, const QColor& color);

    ui::EntryBox& m_keyCode;
    QLabel& m_message;
};

} // namespace templates
