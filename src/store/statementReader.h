#pragma once

#include "sqlTokens.h"

#include <QString>

#include <vector>

namespace store {

/// Reads a statement of the program's dialect from left to right. What does not stand where it must is a syntax error
/// that shows the rest of the statement as it was typed.
class StatementReader {
public:
    /// Throws what sqlTokens() throws.
    explicit StatementReader(const QString& statement);

    bool atEnd() const { return m_position == m_tokens.size(); }
    bool nextIs(SqlToken::Kind kind) const { return !atEnd() && m_tokens[m_position].kind == kind; }
    bool nextIsWord(QStringView word) const { return !atEnd() && m_tokens[m_position].isWord(word); }
    bool nextIsSymbol(QStringView symbol) const { return !atEnd() && m_tokens[m_position].isSymbol(symbol); }

    bool skipWord(QStringView word) { return skipIf(nextIsWord(word)); }
    bool skipSymbol(QStringView symbol) { return skipIf(nextIsSymbol(symbol)); }

    // Each throws a syntax error when something else comes next.
    void word(QStringView word) { require(skipWord(word)); }
    void symbol(QStringView symbol) { require(skipSymbol(symbol)); }
    void end() const { require(atEnd()); }

    /// The next piece of this kind, without its marks; a syntax error when it is of another kind.
    QString take(SqlToken::Kind kind);

    [[noreturn]] void refuse() const;

private:
    bool skipIf(bool found)
    {
        m_position += found ? 1 : 0;
        return found;
    }
    void require(bool met) const
    {
        if (!met)
            refuse();
    }

    QString m_statement;
    std::vector<SqlToken> m_tokens;
    std::size_t m_position = 0;
};

} // namespace store
