#include "dialect.h"

#include "listOrder.h"
#include "schema.h"
#include "statementReader.h"
#include "storeError.h"
#include "typedValue.h"

#include <QStringList>

#include <array>

using namespace Qt::StringLiterals;

namespace store {

namespace {

// Between these marks even a keyword of the engine is a name.
QString quoteName(const QString& name)
{
    return u'[' + name + u']';
}

struct ColumnName {
    QString table; // empty when the statement does not name it
    QString column;

    QString text() const { return table.isEmpty() ? quoteName(column) : quoteName(table) + u'.' + quoteName(column); }
};

class Translator {
public:
    explicit Translator(const QString& statement) : m_reader(statement) {}

    Translation run()
    {
        if (m_reader.skipWord(u"insert"))
            translateInsert();
        else if (m_reader.skipWord(u"update"))
            translateUpdate();
        else if (m_reader.skipWord(u"delete"))
            translateDelete();
        else if (m_reader.skipWord(u"select"))
            translateSelect();
        else
            throw storeError(StoreFault::Syntax,
                             u"Invalid SQL statement; expected 'DELETE', 'INSERT', 'SELECT', or 'UPDATE'."_s);
        m_reader.requireEnd();
        return {m_text, m_values};
    }

private:
    QString takeName() { return m_reader.take(SqlToken::Word); }

    ColumnName takeColumn()
    {
        const QString first = takeName();
        return m_reader.skipSymbol(u".") ? ColumnName{first, takeName()} : ColumnName{QString(), first};
    }

    QString addParameter(const Field::Value& value)
    {
        m_values.push_back(value);
        return u"?"_s;
    }

    void translateInsert()
    {
        m_reader.takeWord(u"into");
        const QString table = takeName();
        m_reader.takeSymbol(u"(");
        QStringList columns;
        do
            columns << takeName();
        while (m_reader.skipSymbol(u","));
        m_reader.takeSymbol(u")");
        m_reader.takeWord(u"values");
        m_reader.takeSymbol(u"(");
        QStringList parameters;
        do
            parameters << addParameter(readAssignedValue(m_reader, table, columns.value(parameters.size())));
        while (m_reader.skipSymbol(u","));
        m_reader.takeSymbol(u")");
        if (parameters.size() != columns.size())
            throw storeError(StoreFault::Syntax, u"Number of query values and destination fields are not the same."_s);
        for (QString& column : columns)
            column = quoteName(column);
        m_text =
            u"insert into %1 (%2) values (%3)"_s.arg(quoteName(table), columns.join(u", "_s), parameters.join(u", "_s));
    }

    void translateUpdate()
    {
        const QString table = takeName();
        m_reader.takeWord(u"set");
        QStringList assigned;
        QStringList settings;
        do {
            const QString column = takeName();
            refuseTypedAssignment(table, column, assigned);
            m_reader.takeSymbol(u"=");
            settings << quoteName(column) + u" = "_s + addParameter(readAssignedValue(m_reader, table, column));
            assigned << column;
        } while (m_reader.skipSymbol(u","));
        m_text = u"update %1 set %2"_s.arg(quoteName(table), settings.join(u", "_s));
        translateComparison();
    }

    // Typed text that contains an assignment repeats a column of the program's own, names one before its first in the
    // table, as the id is, or a name that the engine alone has for the id.
    static void refuseTypedAssignment(const QString& table, const QString& column, const QStringList& assigned)
    {
        if (assigned.contains(column, Qt::CaseInsensitive))
            throw storeError(StoreFault::Syntax, u"Duplicate output destination '%1'."_s.arg(shorten(column)));
        if (!assigned.isEmpty() && columnPosition(table, column) < columnPosition(table, assigned.first()))
            throw syntaxError(column);
    }

    void translateDelete()
    {
        m_reader.takeWord(u"from");
        m_text = u"delete from "_s + quoteName(takeName());
        translateComparison();
    }

    // At most one comparison, so that typed text cannot add further rows.
    void translateComparison()
    {
        if (!m_reader.skipWord(u"where"))
            return;
        m_text += u" where "_s + takeColumn().text();
        m_reader.takeSymbol(u"=");
        m_text += u" = "_s + addParameter(readComparedValue(m_reader));
    }

    void translateSelect()
    {
        m_text = m_reader.skipWord(u"distinct") ? u"select distinct "_s : u"select "_s;
        QStringList items;
        do
            items << translateItem();
        while (m_reader.skipSymbol(u","));
        m_reader.takeWord(u"from");
        QStringList tables;
        do {
            m_tables << takeName();
            tables << quoteName(m_tables.last());
        } while (m_reader.skipSymbol(u","));
        m_text += items.join(u", "_s) + u" from "_s + tables.join(u", "_s);
        if (m_reader.skipWord(u"where"))
            translateConditions();
        if (m_reader.skipWord(u"order"))
            translateOrder();
    }

    QString translateItem()
    {
        if (m_reader.skipSymbol(u"*"))
            return u"*"_s;
        const ColumnName first = takeColumn();
        if (!m_reader.skipSymbol(u"("))
            return translateProduct(first);
        const QString argument = m_reader.skipSymbol(u"*") ? u"*"_s : translateProduct(takeColumn());
        m_reader.takeSymbol(u")");
        return findAggregate(first.column) + u'(' + argument + u')';
    }

    static QString findAggregate(const QString& name)
    {
        static constexpr std::array functions{u"count", u"sum", u"max"};
        for (const QStringView function : functions) {
            if (name.compare(function, Qt::CaseInsensitive) == 0)
                return function.toString();
        }
        throw storeError(StoreFault::Syntax, u"Undefined function '%1' in expression."_s.arg(shorten(name)));
    }

    QString translateProduct(const ColumnName& first)
    {
        QString text = first.text();
        while (m_reader.skipSymbol(u"*"))
            text += u" * "_s + takeColumn().text();
        return text;
    }

    void translateConditions()
    {
        QString separator = u" where "_s;
        do {
            m_text += separator + translateCondition();
            separator = u" and "_s;
        } while (m_reader.skipWord(u"and"));
    }

    QString translateCondition()
    {
        const QString left = takeColumn().text();
        if (m_reader.skipWord(u"between")) {
            const QString minimum = translateOperand();
            m_reader.takeWord(u"and");
            return left + u" between "_s + minimum + u" and "_s + translateOperand();
        }
        for (const QStringView sign : {u"=", u"<>", u"<=", u">=", u"<", u">"}) {
            if (m_reader.skipSymbol(sign))
                return left + u' ' + sign.toString() + u' ' + translateOperand();
        }
        m_reader.refuse();
    }

    QString translateOperand()
    {
        const bool isColumn =
            m_reader.isNext(SqlToken::Word) && !m_reader.isNextWord(u"true") && !m_reader.isNextWord(u"false");
        return isColumn ? takeColumn().text() : addParameter(readComparedValue(m_reader));
    }

    void translateOrder()
    {
        m_reader.takeWord(u"by");
        QStringList items;
        do
            items << translateOrderItem();
        while (m_reader.skipSymbol(u","));
        m_text += u" order by "_s + items.join(u", "_s);
    }

    QString translateOrderItem()
    {
        const ColumnName name = takeColumn();
        QString text = name.text();
        if (isTextColumn(name))
            text += u" collate "_s + QLatin1String(listCollation);
        if (m_reader.skipWord(u"desc"))
            return text + u" desc"_s;
        m_reader.skipWord(u"asc");
        return text;
    }

    bool isTextColumn(const ColumnName& name) const
    {
        for (const QString& table : name.table.isEmpty() ? m_tables : QStringList(name.table)) {
            if (columnKind(table, name.column) == ColumnKind::Text)
                return true;
        }
        return false;
    }

    StatementReader m_reader;
    QString m_text;
    std::vector<Field::Value> m_values;
    QStringList m_tables;
};

} // namespace

Translation translate(const QString& statement)
{
    return Translator(statement).run();
}

} // namespace store
