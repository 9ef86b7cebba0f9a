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

constexpr int mostCharactersOfLine = 100;
constexpr int charactersOfBrokenLine = 75;

/// The text in lines of this width, broken inside a word where it must be.
QStringList brokenIntoLines(const QString& text, const QFont& font, qreal width)
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

// The box breaks a text only between words, and grows with it beyond the display: a long path or statement needs help.
QString fitted(const QString& text, const QLabel& label)
{
    const QFontMetrics metrics = label.fontMetrics();
    const int width = charactersOfBrokenLine * metrics.averageCharWidth();
    const int mostLines = label.screen()->availableSize().height() / 2 / metrics.lineSpacing();
    static const QRegularExpression blank(u"\\s"_s);
    const QStringList words = text.split(blank);
    const bool breaksInWords =
        std::ranges::any_of(words, [&](const QString& word) { return metrics.horizontalAdvance(word) > width; });
    QStringList lines = brokenIntoLines(text, label.font(), width);
    if (!breaksInWords && lines.size() <= mostLines)
        return text;
    if (lines.size() > mostLines) {
        lines.resize(mostLines);
        lines.last() += u'\u2026';
    }
    return lines.join(u'\n');
}

// A window is as wide as its contents, whatever its title needs.
int widthOfTitle(const QMessageBox& box)
{
    constexpr int buttonsAndIcon = 4;
    QFont font = QApplication::font("QMdiSubWindowTitleBar");
    font.setBold(true);
    return QFontMetrics(font).horizontalAdvance(box.windowTitle()) +
           buttonsAndIcon * box.style()->pixelMetric(QStyle::PM_TitleBarHeight);
}

// A text that comes in lines keeps them; the box by itself would break even short ones once more.
int widthOfLines(const QString& text, const QFontMetrics& metrics)
{
    const int width = metrics.size(0, text).width();
    return text.contains(u'\n') && width < mostCharactersOfLine * metrics.averageCharWidth() ? width : 0;
}

// Names that people typed stand in these texts: they show as they are, whatever marks they hold.
void setPlainText(QMessageBox& box, const QString& text, const QString& title)
{
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    auto* label = box.findChild<QLabel*>(u"qt_msgbox_label"_s);
    if (!label)
        return;
    box.setText(fitted(text, *label));
    const int titleWidth = widthOfTitle(box);
    label->setMinimumWidth(label->sizeHint().width() < titleWidth ? titleWidth
                                                                  : widthOfLines(box.text(), label->fontMetrics()));
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
