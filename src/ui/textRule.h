#pragma once

#include <QValidator>

namespace ui {

/// A rule for one line of text: every line break becomes a blank.
QString joinLines(QString text);
/// A rule for numbers: removes blanks and commas, so that "12,345" becomes "12345". Letters stay.
QString removeGrouping(QString text);

/// Rewrites by a rule whatever is typed, pasted or dropped into a box, or set by the program. Refuses nothing.
class TextRule : public QValidator {
public:
    using Rule = QString (*)(QString text);

    TextRule(Rule rule, QObject* parent) : QValidator(parent), m_rule(rule) {}

    State validate(QString& text, int& cursor) const override;

private:
    Rule m_rule;
};

} // namespace ui
