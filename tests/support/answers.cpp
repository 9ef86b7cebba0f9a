#include "answers.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QProgressDialog>

Answers::Answers()
{
    // Restarted each time: a repeating timer does not fire again while its own event waits in a dialog.
    m_timer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, [this] {
        m_timer.start(1);
        look();
    });
    m_timer.start(1);
}

void Answers::expectBox(const QString& text, QMessageBox::StandardButton button, const QString& title)
{
    m_expected.enqueue({text, title, button, {}});
}

void Answers::expectDialog(const QString& objectName, std::function<void(QWidget&)> work)
{
    m_expected.enqueue({objectName, {}, QMessageBox::NoButton, std::move(work)});
}

QStringList Answers::differences() const
{
    QStringList result = m_differences;
    for (const Expected& missing : m_expected)
        result << QStringLiteral("did not come: ") + missing.text;
    return result;
}

void Answers::look()
{
    QWidget* window = QApplication::activeModalWidget();
    if (!window || window == m_working)
        return;
    // A progress box that is not expected is ignored: whether it shows depends on how long the work takes.
    const bool isExpected = !m_expected.isEmpty() && m_expected.head().text == window->objectName();
    if (qobject_cast<QProgressDialog*>(window) && !isExpected)
        return;
    if (auto* box = qobject_cast<QMessageBox*>(window))
        answerBox(*box);
    else
        answerDialog(*window);
}

void Answers::answerBox(QMessageBox& box)
{
    const Expected expected = m_expected.isEmpty() ? Expected{} : m_expected.dequeue();
    if (box.text() != expected.text || box.windowTitle() != expected.title)
        m_differences << QStringLiteral("box \"%1\" titled \"%2\" instead of \"%3\" titled \"%4\"")
                             .arg(box.text(), box.windowTitle(), expected.text, expected.title);
    QAbstractButton* button = box.button(expected.button);
    if (button)
        button->click();
    else
        box.reject();
}

void Answers::answerDialog(QWidget& dialog)
{
    if (m_expected.isEmpty() || dialog.objectName() != m_expected.head().text) {
        m_differences << QStringLiteral("dialog ") + dialog.objectName();
        dialog.close();
        return;
    }
    const Expected expected = m_expected.dequeue();
    QWidget* const before = m_working;
    m_working = &dialog;
    expected.work(dialog);
    m_working = before;
    if (dialog.isVisible()) {
        m_differences << QStringLiteral("still open: ") + expected.text;
        dialog.close();
    }
}
