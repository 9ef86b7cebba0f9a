#include "messages.h"

#include <QApplication>
#include <QMessageBox>

namespace ui {

namespace {

// Names that people typed stand in these texts: they show as they are, whatever marks they hold.
void setPlainText(QMessageBox& box, const QString& text, const QString& title)
{
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
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
