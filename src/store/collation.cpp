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

constexpr int lowered(unsigned char c)
{
    return c >= 'A' && c <= 'Z' ? c + 32 : c;
}

int compareUnicode(const char* left, int leftSize, const char* right, int rightSize)
{
    return QString::fromUtf8(left, leftSize).compare(QString::fromUtf8(right, rightSize), Qt::CaseInsensitive);
}

// Almost every text is plain ASCII, and lists sort thousands of them: only what is not goes the long way.
int compareTexts(void*, int leftSize, const void* leftText, int rightSize, const void* rightText)
{
    const auto* left = static_cast<const unsigned char*>(leftText);
    const auto* right = static_cast<const unsigned char*>(rightText);
    const int common = std::min(leftSize, rightSize);
    for (int i = 0; i < common; ++i) {
        if (!isAscii(left[i]) || !isAscii(right[i])) {
            return compareUnicode(static_cast<const char*>(leftText) + i, leftSize - i,
                                  static_cast<const char*>(rightText) + i, rightSize - i);
        }
        if (const int difference = lowered(left[i]) - lowered(right[i]); difference != 0)
            return difference;
    }
    return leftSize - rightSize;
}

} // namespace

void registerTextCollation(sqlite3* database)
{
    sqlite3_create_collation_v2(database, textCollation, SQLITE_UTF8, nullptr, compareTexts, nullptr);
}

} // namespace store
