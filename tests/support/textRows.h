#pragma once

#include <QTest>

/// Adds a row for each of the texts, named after it: the text and the expected value, the same for all of them.
template <typename Expected, typename... Texts>
void addTextRows(const Expected& expected, Texts... texts)
{
    ((QTest::addRow("'%s'", texts) << QString::fromUtf8(texts) << expected), ...);
}
