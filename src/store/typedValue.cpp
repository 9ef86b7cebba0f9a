#include "typedValue.h"

#include "fitColumn.h"
#include "schema.h"
#include "storeError.h"

#include "values/dates.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace store {

using values::Fault;
using values::RuntimeError;

namespace {

// Deeper than anybody types, but far from a stack overflow.
constexpr int maximumBracketDepth = 100;

// Throws the error that fits what stands in place of a number.
[[noreturn]] void refuseOperand(StatementReader& statement, const QString& table)
{
    if (statement.isNext(SqlToken::Text) || statement.isNext(SqlToken::Date))
        throw typeMismatchError();
    if (!statement.isNext(SqlToken::Word) || statement.isNextWord(u"select"))
        statement.refuse();
    const bool isOtherValue =
        statement.isNextWord(u"true") || statement.isNextWord(u"false") || statement.isNextWord(u"null");
    const QString word = statement.take(SqlToken::Word);
    if (statement.isNextSymbol(u"("))
        throw storeError(StoreFault::Syntax, u"Undefined function '%1' in expression."_s.arg(shorten(word)));
    if (isOtherValue || columnKind(table, word))
        throw typeMismatchError();
    throw storeError(StoreFault::UnknownName, u"No value given for one or more required parameters."_s);
}

class Arithmetic {
public:
    Arithmetic(StatementReader& statement, const QString& table) : m_statement(statement), m_table(table) {}

    double evaluate()
    {
        const double result = readSum();
        if (!std::isfinite(result))
            throw RuntimeError(Fault::Overflow);
        return result;
    }

private:
    double readSum()
    {
        double result = readProduct();
        for (;;) {
            if (m_statement.skipSymbol(u"+"))
                result += readProduct();
            else if (m_statement.skipSymbol(u"-"))
                result -= readProduct();
            else
                return result;
        }
    }

    double readProduct()
    {
        double result = readFactor();
        for (;;) {
            if (m_statement.skipSymbol(u"*"))
                result *= readFactor();
            else if (m_statement.skipSymbol(u"/"))
                result /= readDivisor();
            else
                return result;
        }
    }

    double readDivisor()
    {
        const double result = readFactor();
        if (result == 0)
            throw RuntimeError(Fault::DivisionByZero);
        return result;
    }

    double readFactor()
    {
        double sign = 1;
        for (;;) {
            if (m_statement.skipSymbol(u"-"))
                sign = -sign;
            else if (!m_statement.skipSymbol(u"+"))
                return sign * readOperand();
        }
    }

    double readOperand()
    {
        if (m_statement.isNextSymbol(u"("))
            return readBracket();
        if (m_statement.isNext(SqlToken::Number))
            return m_statement.take(SqlToken::Number).toDouble();
        refuseOperand(m_statement, m_table);
    }

    double readBracket()
    {
        if (m_depth == maximumBracketDepth)
            m_statement.refuse();
        ++m_depth;
        m_statement.takeSymbol(u"(");
        const double result = readSum();
        m_statement.takeSymbol(u")");
        --m_depth;
        return result;
    }

    StatementReader& m_statement;
    const QString& m_table;
    int m_depth = 0;
};

QString readJoinedTexts(StatementReader& statement, const QString& table)
{
    QString result;
    do {
        if (statement.isNext(SqlToken::Number))
            throw typeMismatchError();
        if (!statement.isNext(SqlToken::Text))
            refuseOperand(statement, table);
        result += statement.take(SqlToken::Text);
    } while (statement.skipSymbol(u"&") || statement.skipSymbol(u"+"));
    return result;
}

QDateTime readDateLiteral(const QString& text)
{
    const std::optional<QDateTime> result = values::readDate(text);
    if (!result)
        throw storeError(StoreFault::Syntax, u"Syntax error in date in query expression '#%1#'."_s.arg(shorten(text)));
    return *result;
}

Field::Value readSingleValue(StatementReader& statement, const QString& table, bool canBeYesNo)
{
    if (statement.isNext(SqlToken::Text))
        return statement.take(SqlToken::Text);
    if (statement.isNext(SqlToken::Date))
        return readDateLiteral(statement.take(SqlToken::Date));
    if (canBeYesNo && (statement.isNextWord(u"true") || statement.isNextWord(u"false")))
        return statement.take(SqlToken::Word).compare(u"true", Qt::CaseInsensitive) == 0;
    return Arithmetic(statement, table).evaluate();
}

} // namespace

Field::Value readAssignedValue(StatementReader& statement, const QString& table, const QString& column)
{
    const std::optional<ColumnKind> kind = columnKind(table, column);
    // The engine refuses an unknown column.
    if (!kind)
        return readSingleValue(statement, table, true);
    if (kind == ColumnKind::Text)
        return fitColumn(*kind, readJoinedTexts(statement, table));
    return fitColumn(*kind, readSingleValue(statement, table, kind == ColumnKind::YesNo));
}

Field::Value readComparedValue(StatementReader& statement)
{
    return readSingleValue(statement, QString(), true);
}

} // namespace store
