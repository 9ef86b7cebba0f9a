#include "textRule.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace ui {

QString joinLines(QString text)
{
    static const QRegularExpression lineBreak(u"\\R"_s);
    return text.replace(lineBreak, u" "_s);
}

QString removeGrouping(QString text)
{
    static const QRegularExpression blankOrGrouping(u"[\\s,]"_s, QRegularExpression::UseUnicodePropertiesOption);
    return text.remove(blankOrGrouping);
}

QValidator::State TextRule::validate(QString& text, int& cursor) const
{
    // Keeps the cursor behind the same character.
    cursor = static_cast<int>(m_rule(text.left(cursor)).size());
    text = m_rule(text);
    return Acceptable;
}

} // namespace ui
