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

// Deeper than anybody types, and far from where the stack ends.
constexpr int deepestBrackets = 100;

// What stands where a number must, and is none.
[[noreturn]] void refuseOperand(StatementReader& statement, const QString& table)
{
    if (statement.nextIs(SqlToken::Text) || statement.nextIs(SqlToken::Date))
        throw typeMismatch();
    if (!statement.nextIs(SqlToken::Word) || statement.nextIsWord(u"select"))
        statement.refuse();
    const bool isWordOfNoNumber =
        statement.nextIsWord(u"true") || statement.nextIsWord(u"false") || statement.nextIsWord(u"null");
    const QString word = statement.take(SqlToken::Word);
    if (statement.nextIsSymbol(u"("))
        throw storeError(StoreFault::Syntax, u"Undefined function '%1' in expression."_s.arg(shortened(word)));
    if (isWordOfNoNumber || columnKind(table, word))
        throw typeMismatch();
    throw storeError(StoreFault::UnknownName, u"No value given for one or more required parameters."_s);
}

class Arithmetic {
public:
    Arithmetic(StatementReader& statement, const QString& table) : m_statement(statement), m_table(table) {}

    double run()
    {
        const double result = sum();
        if (!std::isfinite(result))
            throw RuntimeError(Fault::Overflow);
        return result;
    }

private:
    double sum()
    {
        double result = product();
        for (;;) {
            if (m_statement.skipSymbol(u"+"))
                result += product();
            else if (m_statement.skipSymbol(u"-"))
                result -= product();
            else
                return result;
        }
    }

    double product()
    {
        double result = factor();
        for (;;) {
            if (m_statement.skipSymbol(u"*"))
                result *= factor();
            else if (m_statement.skipSymbol(u"/"))
                result /= divisor();
            else
                return result;
        }
    }

    double divisor()
    {
        const double result = factor();
        if (result == 0)
            throw RuntimeError(Fault::DivisionByZero);
        return result;
    }

    double factor()
    {
        double sign = 1;
        for (;;) {
            if (m_statement.skipSymbol(u"-"))
                sign = -sign;
            else if (!m_statement.skipSymbol(u"+"))
                return sign * operand();
        }
    }

    double operand()
    {
        if (m_statement.nextIsSymbol(u"("))
            return bracket();
        if (m_statement.nextIs(SqlToken::Number))
            return m_statement.take(SqlToken::Number).toDouble();
        refuseOperand(m_statement, m_table);
    }

    double bracket()
    {
        if (m_depth == deepestBrackets)
            m_statement.refuse();
        ++m_depth;
        m_statement.symbol(u"(");
        const double result = sum();
        m_statement.symbol(u")");
        --m_depth;
        return result;
    }

    StatementReader& m_statement;
    const QString& m_table;
    int m_depth = 0;
};

QString joinedTexts(StatementReader& statement, const QString& table)
{
    QString result;
    do {
        if (statement.nextIs(SqlToken::Number))
            throw typeMismatch();
        if (!statement.nextIs(SqlToken::Text))
            refuseOperand(statement, table);
        result += statement.take(SqlToken::Text);
    } while (statement.skipSymbol(u"&") || statement.skipSymbol(u"+"));
    return result;
}

QDateTime date(const QString& text)
{
    const std::optional<QDateTime> result = values::readDate(text);
    if (!result)
        throw storeError(StoreFault::Syntax,
                         u"Syntax error in date in query expression '#%1#'."_s.arg(shortened(text)));
    return *result;
}

Field::Value single(StatementReader& statement, const QString& table, bool takesYesNo)
{
    if (statement.nextIs(SqlToken::Text))
        return statement.take(SqlToken::Text);
    if (statement.nextIs(SqlToken::Date))
        return date(statement.take(SqlToken::Date));
    if (takesYesNo && (statement.nextIsWord(u"true") || statement.nextIsWord(u"false")))
        return statement.take(SqlToken::Word).compare(u"true", Qt::CaseInsensitive) == 0;
    return Arithmetic(statement, table).run();
}

} // namespace

Field::Value readAssigned(StatementReader& statement, const QString& table, const QString& column)
{
    const std::optional<ColumnKind> kind = columnKind(table, column);
    // What is no column is for the engine to refuse.
    if (!kind)
        return single(statement, table, true);
    if (kind == ColumnKind::Text)
        return fitColumn(*kind, joinedTexts(statement, table));
    return fitColumn(*kind, single(statement, table, kind == ColumnKind::YesNo));
}

Field::Value readCompared(StatementReader& statement)
{
    return single(statement, QString(), true);
}

} // namespace store
