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

// In these marks a name is a name to the engine, whatever it means otherwise.
QString marked(const QString& name)
{
    return u'[' + name + u']';
}

struct ColumnName {
    QString table; // empty where the statement does not say it
    QString column;

    QString text() const { return table.isEmpty() ? marked(column) : marked(table) + u'.' + marked(column); }
};

class Translator {
public:
    explicit Translator(const QString& statement) : m_reader(statement) {}

    Translation run()
    {
        if (m_reader.skipWord(u"insert"))
            insert();
        else if (m_reader.skipWord(u"update"))
            update();
        else if (m_reader.skipWord(u"delete"))
            remove();
        else if (m_reader.skipWord(u"select"))
            select();
        else
            throw storeError(StoreFault::Syntax,
                             u"Invalid SQL statement; expected 'DELETE', 'INSERT', 'SELECT', or 'UPDATE'."_s);
        m_reader.end();
        return {m_text, m_values};
    }

private:
    QString name() { return m_reader.take(SqlToken::Word); }

    ColumnName column()
    {
        const QString first = name();
        return m_reader.skipSymbol(u".") ? ColumnName{first, name()} : ColumnName{QString(), first};
    }

    QString parameter(const Field::Value& value)
    {
        m_values.push_back(value);
        return u"?"_s;
    }

    void insert()
    {
        m_reader.word(u"into");
        const QString table = name();
        m_reader.symbol(u"(");
        QStringList columns;
        do
            columns << name();
        while (m_reader.skipSymbol(u","));
        m_reader.symbol(u")");
        m_reader.word(u"values");
        m_reader.symbol(u"(");
        QStringList parameters;
        do
            parameters << parameter(readAssigned(m_reader, table, columns.value(parameters.size())));
        while (m_reader.skipSymbol(u","));
        m_reader.symbol(u")");
        if (parameters.size() != columns.size())
            throw storeError(StoreFault::Syntax, u"Number of query values and destination fields are not the same."_s);
        for (QString& column : columns)
            column = marked(column);
        m_text =
            u"insert into %1 (%2) values (%3)"_s.arg(marked(table), columns.join(u", "_s), parameters.join(u", "_s));
    }

    void update()
    {
        const QString table = name();
        m_reader.word(u"set");
        QStringList assigned;
        QStringList settings;
        do {
            const QString column = name();
            refuseSecond(column, assigned);
            m_reader.symbol(u"=");
            settings << marked(column) + u" = "_s + parameter(readAssigned(m_reader, table, column));
            assigned << column;
        } while (m_reader.skipSymbol(u","));
        m_text = u"update %1 set %2"_s.arg(marked(table), settings.join(u", "_s));
        onlyWhere();
    }

    // A text that brings an assignment of its own along meets the program's.
    static void refuseSecond(const QString& column, const QStringList& assigned)
    {
        if (assigned.contains(column, Qt::CaseInsensitive))
            throw storeError(StoreFault::Syntax, u"Duplicate output destination '%1'."_s.arg(shortened(column)));
    }

    void remove()
    {
        m_reader.word(u"from");
        m_text = u"delete from "_s + marked(name());
        onlyWhere();
    }

    // Which rows are changed is never more than one comparison; there is no room for typed text to widen it.
    void onlyWhere()
    {
        if (!m_reader.skipWord(u"where"))
            return;
        m_text += u" where "_s + column().text();
        m_reader.symbol(u"=");
        m_text += u" = "_s + parameter(readCompared(m_reader));
    }

    void select()
    {
        m_text = m_reader.skipWord(u"distinct") ? u"select distinct "_s : u"select "_s;
        QStringList items;
        do
            items << selected();
        while (m_reader.skipSymbol(u","));
        m_reader.word(u"from");
        QStringList tables;
        do {
            m_tables << name();
            tables << marked(m_tables.last());
        } while (m_reader.skipSymbol(u","));
        m_text += items.join(u", "_s) + u" from "_s + tables.join(u", "_s);
        if (m_reader.skipWord(u"where"))
            conditions();
        if (m_reader.skipWord(u"order"))
            order();
    }

    QString selected()
    {
        if (m_reader.skipSymbol(u"*"))
            return u"*"_s;
        const ColumnName first = column();
        if (!m_reader.skipSymbol(u"("))
            return product(first);
        const QString argument = m_reader.skipSymbol(u"*") ? u"*"_s : product(column());
        m_reader.symbol(u")");
        return aggregate(first.column) + u'(' + argument + u')';
    }

    static QString aggregate(const QString& name)
    {
        static constexpr std::array known{u"count", u"sum", u"max"};
        for (const QStringView each : known) {
            if (name.compare(each, Qt::CaseInsensitive) == 0)
                return each.toString();
        }
        throw storeError(StoreFault::Syntax, u"Undefined function '%1' in expression."_s.arg(shortened(name)));
    }

    QString product(const ColumnName& first)
    {
        QString text = first.text();
        while (m_reader.skipSymbol(u"*"))
            text += u" * "_s + column().text();
        return text;
    }

    void conditions()
    {
        QString joint = u" where "_s;
        do {
            m_text += joint + condition();
            joint = u" and "_s;
        } while (m_reader.skipWord(u"and"));
    }

    QString condition()
    {
        const QString left = column().text();
        if (m_reader.skipWord(u"between")) {
            const QString least = operand();
            m_reader.word(u"and");
            return left + u" between "_s + least + u" and "_s + operand();
        }
        for (const QStringView sign : {u"=", u"<>", u"<=", u">=", u"<", u">"}) {
            if (m_reader.skipSymbol(sign))
                return left + u' ' + sign.toString() + u' ' + operand();
        }
        m_reader.refuse();
    }

    QString operand()
    {
        const bool isColumn =
            m_reader.nextIs(SqlToken::Word) && !m_reader.nextIsWord(u"true") && !m_reader.nextIsWord(u"false");
        return isColumn ? column().text() : parameter(readCompared(m_reader));
    }

    void order()
    {
        m_reader.word(u"by");
        QStringList items;
        do
            items << orderItem();
        while (m_reader.skipSymbol(u","));
        m_text += u" order by "_s + items.join(u", "_s);
    }

    QString orderItem()
    {
        const ColumnName name = column();
        QString text = name.text();
        if (isText(name))
            text += u" collate "_s + QLatin1String(listCollation);
        if (m_reader.skipWord(u"desc"))
            return text + u" desc"_s;
        m_reader.skipWord(u"asc");
        return text;
    }

    bool isText(const ColumnName& name) const
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
