#pragma once

#include <QValidator>

namespace ui {

/// Each of these is a rule: it gives a text as a box may hold it.
/// One line: every line break becomes a blank.
QString oneLine(QString text);
/// A number without blanks and digit grouping: "12,345" becomes "12345". What is no number stays as it is.
QString bareNumber(QString text);

/// Rewrites what comes into a box by a rule, however it comes: typed, pasted, dropped or set. Refuses nothing.
class TextRule : public QValidator {
public:
    using Rule = QString (*)(QString text);

    TextRule(Rule rule, QObject* parent) : QValidator(parent), m_rule(rule) {}

    State validate(QString& text, int& cursor) const override;

private:
    Rule m_rule;
};

} // namespace ui
