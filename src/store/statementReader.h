#pragma once

#include "sqlTokens.h"

#include <QString>

#include <vector>

namespace store {

/// Reads a statement of the program's dialect from left to right. A syntax error shows the rest of the statement, as it
/// was typed, from the unexpected piece on.
class StatementReader {
public:
    /// Throws what sqlTokens() throws.
    explicit StatementReader(const QString& statement);

    bool atEnd() const { return m_position == m_tokens.size(); }
    bool isNext(SqlToken::Kind kind) const { return !atEnd() && m_tokens[m_position].kind == kind; }
    bool isNextWord(QStringView word) const { return !atEnd() && m_tokens[m_position].isWord(word); }
    bool isNextSymbol(QStringView symbol) const { return !atEnd() && m_tokens[m_position].isSymbol(symbol); }

    // Each skips a piece if it comes next, and says whether it did.
    bool skipWord(QStringView word) { return skipIf(isNextWord(word)); }
    bool skipSymbol(QStringView symbol) { return skipIf(isNextSymbol(symbol)); }

    // Each throws a syntax error when something else comes next.
    void takeWord(QStringView word) { require(skipWord(word)); }
    void takeSymbol(QStringView symbol) { require(skipSymbol(symbol)); }
    void requireEnd() const { require(atEnd()); }

    /// The next piece of this kind, without its marks; throws a syntax error when it is of another kind.
    QString take(SqlToken::Kind kind);

    /// Throws a syntax error at the current piece.
    [[noreturn]] void refuse() const;

private:
    bool skipIf(bool isFound)
    {
        m_position += isFound ? 1 : 0;
        return isFound;
    }
    void require(bool isMet) const
    {
        if (!isMet)
            refuse();
    }

    QString m_statement;
    std::vector<SqlToken> m_tokens;
    std::size_t m_position = 0;
};

} // namespace store
