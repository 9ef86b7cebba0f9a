#pragma once

#include <QTest>

/// A row of data for each of the texts, named after it: the text and what is expected of all of them.
template <typename Expected, typename... Texts>
void textRows(const Expected& expected, Texts... texts)
{
    ((QTest::addRow("'%s'", texts) << QString::fromUtf8(texts) << expected), ...);
}
