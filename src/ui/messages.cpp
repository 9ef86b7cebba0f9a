#include "messages.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>

namespace ui {

namespace {

constexpr int mostCharactersOfLine = 100;

// Names that people typed stand in these texts: they show as they are, whatever marks they hold.
void setPlainText(QMessageBox& box, const QString& text, const QString& title)
{
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    // A text that comes in lines keeps them; the box by itself would break even short ones once more.
    auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    const int width = label ? label->fontMetrics().size(0, text).width() : 0;
    if (text.contains(u'\n') && width < mostCharactersOfLine * label->fontMetrics().averageCharWidth())
        label->setMinimumWidth(width);
}

} // namespace

void showMessage(const QString& text, const QString& title)
{
    QMessageBox box(QApplication::activeWindow());
    setPlainText(box, text, title);
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

bool confirm(const QString& text, const QString& title)
{
    QMessageBox box(QApplication::activeWindow());
    setPlainText(box, text, title);
    box.setIcon(QMessageBox::Warning);
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

} // namespace ui
