#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace store {

/// One piece of a statement in the program's dialect.
struct SqlToken {
    enum Kind { Word, Number, Text, Date, Symbol };

    Kind kind;
    /// Where it begins in the statement.
    qsizetype start;
    /// Words, numbers and symbols as they stand, texts and dates without their marks.
    QString text;

    bool isSymbol(QStringView symbol) const { return kind == Symbol && text == symbol; }
    bool isWord(QStringView word) const { return kind == Word && text.compare(word, Qt::CaseInsensitive) == 0; }
};

/// Splits a statement. Throws a syntax error with the offending text for a text or date without an end, a comment, a
/// sign that the dialect does not have, and anything behind the semicolon that may end it.
std::vector<SqlToken> sqlTokens(const QString& statement);

} // namespace store
