#include "messages.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScreen>
#include <QStyle>
#include <QTextLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

constexpr int maximumLineCharacters = 100;
constexpr int brokenLineCharacters = 75;

/// The text in lines of this width; a word longer than a line is broken.
QStringList breakIntoLines(const QString& text, const QFont& font, qreal width)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QStringList lines;
    for (const QString& paragraph : text.split(u'\n')) {
        QTextLayout layout(paragraph, font);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            lines << paragraph.mid(line.textStart(), line.textLength());
        }
        layout.endLayout();
    }
    return lines;
}

// A message box breaks lines only between words and grows beyond the display with a long path or statement, so such
// texts are broken, and cut at the end, here.
QString fitToDisplay(const QString& text, const QLabel& label)
{
    const QFontMetrics metrics = label.fontMetrics();
    const int width = brokenLineCharacters * metrics.averageCharWidth();
    const int maximumLines = label.screen()->availableSize().height() / 2 / metrics.lineSpacing();
    static const QRegularExpression blank(u"\\s"_s);
    const QStringList words = text.split(blank);
    const bool hasLongWord =
        std::ranges::any_of(words, [&](const QString& word) { return metrics.horizontalAdvance(word) > width; });
    QStringList lines = breakIntoLines(text, label.font(), width);
    if (!hasLongWord && lines.size() <= maximumLines)
        return text;
    if (lines.size() > maximumLines) {
        lines.resize(maximumLines);
        lines.last() += u'\u2026';
    }
    return lines.join(u'\n');
}

// A window is as wide as its contents and may cut its title.
int measureTitle(const QMessageBox& box)
{
    constexpr int buttonsAndIcon = 4;
    QFont font = QApplication::font("QMdiSubWindowTitleBar");
    font.setBold(true);
    return QFontMetrics(font).horizontalAdvance(box.windowTitle()) +
           buttonsAndIcon * box.style()->pixelMetric(QStyle::PM_TitleBarHeight);
}

// A text with line breaks keeps its lines; the box would break even short ones again.
int measureLines(const QString& text, const QFontMetrics& metrics)
{
    const int width = metrics.size(0, text).width();
    return text.contains(u'\n') && width < maximumLineCharacters * metrics.averageCharWidth() ? width : 0;
}

// The texts contain names that people typed, which must not be read as markup.
void setPlainText(QMessageBox& box, const QString& text, const QString& title)
{
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    auto* label = box.findChild<QLabel*>(u"qt_msgbox_label"_s);
    if (!label)
        return;
    box.setText(fitToDisplay(text, *label));
    const int titleWidth = measureTitle(box);
    label->setMinimumWidth(label->sizeHint().width() < titleWidth ? titleWidth
                                                                  : measureLines(box.text(), label->fontMetrics()));
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
