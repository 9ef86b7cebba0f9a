#include "retrieval.h"

#include "mdWord.h"
#include "playAlert.h"

#include "office/document.h"
#include "ui/eventGuard.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace templates {

Retrieval::Retrieval(ui::EntryBox& keyCode, QPushButton& getButton, QPushButton& resetButton, QLabel& message)
    : QObject(&keyCode), m_keyCode(keyCode), m_known(this), m_message(message)
{
    keyCode.setCompleter(&m_known);
    // Enter in the list of codes. The code that was chosen there reaches the box after this signal.
    ui::onEvent(&keyCode, &QLineEdit::returnPressed, this,
                [this] { QTimer::singleShot(0, this, [this] { ui::guard([this] { retrieve(); }); }); });
    ui::onEvent(&getButton, &QPushButton::clicked, this, &Retrieval::retrieve);
    ui::onEvent(&resetButton, &QPushButton::clicked, this, &Retrieval::clear);
    keyCode.installEventFilter(this);
    // Room for two lines even when the message is short, so that nothing below moves.
    message.setMinimumHeight(2 * message.fontMetrics().lineSpacing());
}

void Retrieval::clear()
{
    m_keyCode.clear();
    m_message.setText(u".."_s);
}

// Enter goes no further: the form would press its default button as well.
bool Retrieval::eventFilter(QObject*, QEvent* event)
{
    // Whoever is about to type a key code need not wait for the suite's start any more.
    if (event->type() == QEvent::FocusIn)
        enter(*static_cast<QFocusEvent*>(event));
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return false;
    ui::guard([this] { retrieve(); });
    return true;
}

// The list of codes gives the focus back to the box each time it closes.
void Retrieval::enter(const QFocusEvent& event)
{
    if (event.reason() != Qt::PopupFocusReason)
        m_known.refresh();
    office::prepareReading();
}

// When the person cancels, an exception leaves box and message unchanged.
void Retrieval::retrieve()
{
    m_known.popup()->hide();
    const QString keyCode = m_keyCode.text();
    if (keyCode.isEmpty())
        return;
    if (mdWord::GetTemplate(keyCode)) {
        showMessage(u"Position your cursor in the document where you want to paste the template.  Press 'ctrl + v' "
                    "to paste."_s,
                    ui::Outcome::Success);
    } else {
        modMain::PlayAlert();
        showMessage(u"There is no Template in the system with that Key Code. Please try again"_s, ui::Outcome::Failure);
    }
    m_keyCode.clear();
}

void Retrieval::showMessage(const QString& text, ui::Outcome outcome)
{
    QPalette palette = m_message.palette();
    palette.setColor(QPalette::WindowText, ui::messageColor(outcome));
    m_message.setPalette(palette);
    m_message.setText(text);
}

} // namespace templates
