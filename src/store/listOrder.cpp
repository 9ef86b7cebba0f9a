#include "listOrder.h"

#include "collation.h"

#include <QCollator>

#include <sqlite3.h>

namespace store {

namespace {

// One language for everybody, as for dates and numbers.
QCollator languageRules()
{
    QCollator rules(QLocale(QLocale::English, QLocale::UnitedStates));
    rules.setCaseSensitivity(Qt::CaseInsensitive);
    return rules;
}

// What the rules hold for equal and the data file does not, such as ß and ss, keeps a fixed order all the same.
int compareByLanguage(void*, int leftSize, const void* left, int rightSize, const void* right)
{
    static const QCollator rules = languageRules();
    const QByteArrayView leftText(static_cast<const char*>(left), leftSize);
    const QByteArrayView rightText(static_cast<const char*>(right), rightSize);
    const int order = rules.compare(QString::fromUtf8(leftText), QString::fromUtf8(rightText));
    return order != 0 ? order : compareTexts(leftText, rightText);
}

} // namespace

void registerListOrder(sqlite3* database)
{
    sqlite3_create_collation_v2(database, listCollation, SQLITE_UTF8, nullptr, compareByLanguage, nullptr);
}

} // namespace store
