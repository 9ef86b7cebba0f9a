#include "statementReader.h"

#include "storeError.h"

using namespace Qt::StringLiterals;

namespace store {

StatementReader::StatementReader(const QString& statement) : m_statement(statement), m_tokens(sqlTokens(statement)) {}

QString StatementReader::take(SqlToken::Kind kind)
{
    require(isNext(kind));
    return m_tokens[m_position++].text;
}

void StatementReader::refuse() const
{
    if (atEnd())
        throw storeError(StoreFault::Syntax, u"Syntax error: the statement is not complete."_s);
    throw syntaxError(m_statement.sliced(m_tokens[m_position].start));
}

} // namespace store
