#include "dialect.h"

#include "sqlFunctions.h"
#include "sqlTokens.h"
#include "storeError.h"
#include "storedDate.h"

#include "values/dates.h"

#include <QStringList>

#include <span>

namespace store {

namespace {

using Tokens = std::span<const SqlToken>;

QString quoted(const QString& text)
{
    return u'\'' + QString(text).replace(u'\'', QStringLiteral("''")) + u'\'';
}

QString dateText(const QString& text)
{
    const std::optional<QDateTime> date = values::readDate(text);
    if (!date)
        throw storeError(StoreFault::Syntax,
                         QStringLiteral("Syntax error in date in query expression '#%1#'.").arg(text));
    return quoted(QString::fromLatin1(toStoredDate(*date)));
}

QString wordText(const SqlToken& token)
{
    if (token.isWord(u"true"))
        return QStringLiteral("1");
    return token.isWord(u"false") ? QStringLiteral("0") : token.text;
}

// Whole numbers divide to a fraction here, and & joins texts.
QString symbolText(const QString& symbol)
{
    if (symbol == u"/")
        return QStringLiteral("* 1.0 /");
    return symbol == u"&" ? QStringLiteral("||") : symbol;
}

QString tokenText(const SqlToken& token)
{
    switch (token.kind) {
    case SqlToken::Text:
        return quoted(token.text);
    case SqlToken::Date:
        return dateText(token.text);
    case SqlToken::Word:
        return wordText(token);
    case SqlToken::Symbol:
        return symbolText(token.text);
    case SqlToken::Number:
        break;
    }
    return token.text;
}

// A blank between any two pieces: neither two minus signs nor two texts may grow together into something else.
QString plainText(Tokens tokens)
{
    QStringList pieces;
    for (const SqlToken& token : tokens)
        pieces << tokenText(token);
    return pieces.join(u' ');
}

// Reads an insert or update from left to right.
class Reader {
public:
    explicit Reader(Tokens tokens) : m_rest(tokens) {}

    bool atEnd() const { return m_rest.empty(); }
    bool nextIsWord(QStringView word) const { return !atEnd() && m_rest.front().isWord(word); }
    bool nextIsSymbol(QStringView symbol) const { return !atEnd() && m_rest.front().isSymbol(symbol); }
    Tokens rest() const { return m_rest; }

    void word(QStringView word) { require(nextIsWord(word)); }
    void symbol(QStringView symbol) { require(nextIsSymbol(symbol)); }
    bool skipSymbol(QStringView symbol)
    {
        const bool found = nextIsSymbol(symbol);
        if (found)
            m_rest = m_rest.subspan(1);
        return found;
    }
    QString name()
    {
        const QString text = atEnd() ? QString() : m_rest.front().text;
        require(!atEnd() && m_rest.front().kind == SqlToken::Word);
        return text;
    }

    /// An expression: up to the comma, bracket or "where" that ends it.
    Tokens expression()
    {
        std::size_t length = 0;
        for (int depth = 0; length < m_rest.size(); ++length) {
            const SqlToken& token = m_rest[length];
            if (depth == 0 && (token.isSymbol(u",") || token.isSymbol(u")") || token.isWord(u"where")))
                break;
            depth += token.isSymbol(u"(") ? 1 : token.isSymbol(u")") ? -1 : 0;
        }
        if (length == 0)
            refuse();
        const Tokens result = m_rest.first(length);
        m_rest = m_rest.subspan(length);
        return result;
    }

    [[noreturn]] void refuse() const
    {
        if (atEnd())
            throw storeError(StoreFault::Syntax, QStringLiteral("Syntax error: the statement is not complete."));
        throw syntaxError(plainText(m_rest));
    }

private:
    void require(bool met)
    {
        if (!met)
            refuse();
        m_rest = m_rest.subspan(1);
    }

    Tokens m_rest;
};

QString fitted(const QString& table, const QString& column, Tokens expression)
{
    const QString value = plainText(expression);
    const std::optional<ColumnKind> kind = columnKind(table, column);
    return kind ? assignmentFunction(*kind) + u'(' + value + u')' : value;
}

QString translateInsert(Reader reader)
{
    reader.word(u"insert");
    reader.word(u"into");
    const QString table = reader.name();
    QStringList columns;
    reader.symbol(u"(");
    do
        columns << reader.name();
    while (reader.skipSymbol(u","));
    reader.symbol(u")");
    reader.word(u"values");
    QStringList fittedValues;
    reader.symbol(u"(");
    do {
        const Tokens expression = reader.expression();
        if (fittedValues.size() < columns.size())
            fittedValues << fitted(table, columns[fittedValues.size()], expression);
        else
            fittedValues << plainText(expression);
    } while (reader.skipSymbol(u","));
    reader.symbol(u")");
    if (!reader.atEnd())
        reader.refuse();
    if (fittedValues.size() != columns.size())
        throw storeError(StoreFault::Syntax,
                         QStringLiteral("Number of query values and destination fields are not the same."));
    return QStringLiteral("insert into %1 (%2) values (%3)")
        .arg(table, columns.join(QStringLiteral(", ")), fittedValues.join(QStringLiteral(", ")));
}

QString translateUpdate(Reader reader)
{
    reader.word(u"update");
    const QString table = reader.name();
    reader.word(u"set");
    QStringList settings;
    do {
        const QString column = reader.name();
        reader.symbol(u"=");
        settings << column + QStringLiteral(" = ") + fitted(table, column, reader.expression());
    } while (reader.skipSymbol(u","));
    if (!reader.atEnd() && !reader.nextIsWord(u"where"))
        reader.refuse();
    return QStringLiteral("update ") + table + QStringLiteral(" set ") + settings.join(QStringLiteral(", ")) + u' ' +
           plainText(reader.rest());
}

} // namespace

QString translate(const QString& statement)
{
    const std::vector<SqlToken> tokens = sqlTokens(statement);
    const Reader reader(tokens);
    if (reader.nextIsWord(u"insert"))
        return translateInsert(reader);
    if (reader.nextIsWord(u"update"))
        return translateUpdate(reader);
    if (reader.nextIsWord(u"select") || reader.nextIsWord(u"delete"))
        return plainText(tokens);
    throw storeError(StoreFault::Syntax, QStringLiteral("Invalid SQL statement; expected 'DELETE', 'INSERT', 'SELECT', "
                                                        "or 'UPDATE'."));
}

} // namespace store
