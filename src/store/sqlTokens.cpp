#include "sqlTokens.h"

#include "storeError.h"

#include "values/digits.h"

#include <array>

using namespace Qt::StringLiterals;

namespace store {

using values::isDigit;

namespace {

bool isWordStart(QChar c)
{
    return c.isLetter() || c == u'_';
}

class Scanner {
public:
    explicit Scanner(QStringView statement) : m_text(statement) {}

    std::vector<SqlToken> readAll()
    {
        std::vector<SqlToken> tokens;
        for (skipBlanks(); !atEnd(); skipBlanks()) {
            if (peek() == u';') {
                endStatement();
                break;
            }
            tokens.push_back(readToken());
        }
        return tokens;
    }

private:
    bool atEnd() const { return m_position >= m_text.size(); }
    QChar peek(qsizetype ahead = 0) const
    {
        return m_position + ahead < m_text.size() ? m_text[m_position + ahead] : QChar();
    }
    [[noreturn]] void refuse(qsizetype from) const { throw syntaxError(m_text.mid(from).toString()); }

    void skipBlanks()
    {
        while (!atEnd() && peek().isSpace())
            ++m_position;
    }

    void endStatement()
    {
        const qsizetype start = m_position++;
        skipBlanks();
        if (!atEnd())
            refuse(start);
    }

    SqlToken readToken()
    {
        const QChar c = peek();
        if (c == u'\'' || c == u'"')
            return readText(c);
        if (c == u'#')
            return readDate();
        if (isDigit(c) || (c == u'.' && isDigit(peek(1))))
            return readNumber();
        if (isWordStart(c))
            return readWord();
        return readSymbol();
    }

    // A doubled mark inside a text stands for one.
    SqlToken readText(QChar mark)
    {
        const qsizetype start = m_position++;
        QString content;
        while (!atEnd()) {
            const QChar c = m_text[m_position++];
            if (c == mark) {
                if (peek() != mark)
                    return {SqlToken::Text, start, content};
                ++m_position;
            }
            content += c;
        }
        throw storeError(StoreFault::Syntax, u"Syntax error in string in query expression '%1'."_s.arg(
                                                 shorten(m_text.mid(start).toString())));
    }

    SqlToken readDate()
    {
        const qsizetype start = m_position++;
        const qsizetype end = m_text.indexOf(u'#', m_position);
        if (end < 0)
            throw storeError(StoreFault::Syntax, u"Syntax error in date in query expression '%1'."_s.arg(
                                                     shorten(m_text.mid(start).toString())));
        m_position = end + 1;
        return {SqlToken::Date, start, m_text.mid(start + 1, end - start - 1).toString()};
    }

    void skipDigits()
    {
        while (isDigit(peek()))
            ++m_position;
    }

    // A number that runs into a word (65abc, 0x41) would mean something else to the engine than to the person.
    SqlToken readNumber()
    {
        const qsizetype start = m_position;
        skipDigits();
        if (peek() == u'.')
            ++m_position;
        skipDigits();
        const qsizetype sign = peek(1) == u'+' || peek(1) == u'-' ? 1 : 0;
        if ((peek() == u'e' || peek() == u'E') && isDigit(peek(1 + sign))) {
            m_position += 1 + sign;
            skipDigits();
        }
        if (isWordStart(peek()) || peek() == u'.')
            refuse(start);
        return {SqlToken::Number, start, m_text.mid(start, m_position - start).toString()};
    }

    SqlToken readWord()
    {
        const qsizetype start = m_position;
        while (isWordStart(peek()) || isDigit(peek()))
            ++m_position;
        return {SqlToken::Word, start, m_text.mid(start, m_position - start).toString()};
    }

    SqlToken readSymbol()
    {
        static constexpr std::array pairs{u"<=", u">=", u"<>"};
        const qsizetype start = m_position;
        const QStringView rest = m_text.mid(start);
        for (const QStringView pair : pairs) {
            if (rest.startsWith(pair)) {
                m_position += pair.size();
                return {SqlToken::Symbol, start, pair.toString()};
            }
        }
        if (rest.startsWith(u"/*") || !QStringView(u"(),.=<>+-*/&").contains(peek()))
            refuse(m_position);
        return {SqlToken::Symbol, start, QString(m_text[m_position++])};
    }

    QStringView m_text;
    qsizetype m_position = 0;
};

} // namespace

std::vector<SqlToken> sqlTokens(const QString& statement)
{
    return Scanner(statement).readAll();
}

} // namespace store
