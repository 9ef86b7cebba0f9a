#include "collation.h"

#include <QString>

#include <sqlite3.h>

#include <algorithm>

namespace store {

namespace {

constexpr bool isAscii(unsigned char c)
{
    return c < 0x80;
}

constexpr int toLower(unsigned char c)
{
    return c >= 'A' && c <= 'Z' ? c + 32 : c;
}

int compareForEngine(void*, int leftSize, const void* left, int rightSize, const void* right)
{
    return compareTexts({static_cast<const char*>(left), leftSize}, {static_cast<const char*>(right), rightSize});
}

} // namespace

// Almost every text is plain ASCII, and lists compare thousands of them: only other texts take the slow way.
int compareTexts(QByteArrayView left, QByteArrayView right)
{
    const qsizetype common = std::min(left.size(), right.size());
    for (qsizetype i = 0; i < common; ++i) {
        const auto l = static_cast<unsigned char>(left[i]);
        const auto r = static_cast<unsigned char>(right[i]);
        if (!isAscii(l) || !isAscii(r))
            return QString::fromUtf8(left.sliced(i)).compare(QString::fromUtf8(right.sliced(i)), Qt::CaseInsensitive);
        if (const int difference = toLower(l) - toLower(r); difference != 0)
            return difference;
    }
    return static_cast<int>(left.size() - right.size());
}

void registerTextCollation(sqlite3* database)
{
    sqlite3_create_collation_v2(database, textCollation, SQLITE_UTF8, nullptr, compareForEngine, nullptr);
}

} // namespace store
