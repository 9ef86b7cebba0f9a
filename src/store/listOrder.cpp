#include "listOrder.h"

#include "collation.h"

#include <QCollator>

#include <sqlite3.h>

namespace store {

namespace {

// Curved quotes sort like straight ones. Versions of the library disagree on that, and lists must be the same on every
// machine.
QString straightenQuotes(QString text)
{
    for (QChar& c : text) {
        if (c >= u'\u2018' && c <= u'\u201F')
            c = c <= u'\u201B' ? u'\'' : u'"';
    }
    return text;
}

// One language for all users, as for dates and numbers.
QCollator makeRules()
{
    QCollator rules(QLocale(QLocale::English, QLocale::UnitedStates));
    rules.setCaseSensitivity(Qt::CaseInsensitive);
    return rules;
}

QString readText(int size, const void* utf8)
{
    return straightenQuotes(QString::fromUtf8(static_cast<const char*>(utf8), size));
}

// Texts that only these rules take for equal, such as those with different quotes, still get a fixed order.
int compareByLanguage(void*, int leftSize, const void* left, int rightSize, const void* right)
{
    static const QCollator rules = makeRules();
    const int order = rules.compare(readText(leftSize, left), readText(rightSize, right));
    return order != 0
               ? order
               : compareTexts({static_cast<const char*>(left), leftSize}, {static_cast<const char*>(right), rightSize});
}

} // namespace

void registerListOrder(sqlite3* database)
{
    sqlite3_create_collation_v2(database, listCollation, SQLITE_UTF8, nullptr, compareByLanguage, nullptr);
}

} // namespace store
