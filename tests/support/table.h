#pragma once

#include <QTest>

/// Adds rows of texts to a data-driven test: the first line names the columns, every other line begins with its name.
inline void addRows(std::initializer_list<std::initializer_list<const char*>> lines)
{
    for (const char* column : *lines.begin())
        QTest::addColumn<QString>(column);
    for (const auto* line = lines.begin() + 1; line != lines.end(); ++line) {
        QTestData& row = QTest::newRow(*line->begin());
        for (const char* const* text = line->begin() + 1; text != line->end(); ++text)
            row << QString::fromUtf8(*text);
    }
}

/// The text of the current row in this column.
inline QString cell(const char* column)
{
    return *static_cast<QString*>(QTest::qData(column, QMetaType::QString));
}
