#pragma once

#include <QMessageBox>
#include <QQueue>
#include <QTimer>

#include <functional>

/// Answers the message boxes and dialogs that an action opens, in the expected order, and notes every difference. A
/// test ends with QCOMPARE(answers.differences(), QStringList()).
class Answers {
public:
    Answers();

    /// The next modal window must be a message box with this text and title; it is closed with the button.
    void expectBox(const QString& text, QMessageBox::StandardButton button = QMessageBox::Ok,
                   const QString& title = QStringLiteral("Penwright"));
    /// The next modal window must be a dialog of this object name; the work is done while it is open and must close it.
    void expectDialog(const QString& objectName, std::function<void(QWidget&)> work);

    /// What did not come as expected, and what has not come yet.
    QStringList differences() const;

private:
    struct Expected {
        QString text;
        QString title;
        QMessageBox::StandardButton button;
        std::function<void(QWidget&)> work;
    };

    void look();
    void answerBox(QMessageBox& box);
    void answerDialog(QWidget& dialog);

    QTimer m_timer;
    QQueue<Expected> m_expected;
    QStringList m_differences;
    QWidget* m_working = nullptr;
};
