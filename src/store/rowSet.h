#pragma once

#include "field.h"
#include "schema.h"
#include "textBlocks.h"

#include <QByteArrayView>

#include <deque>
#include <optional>
#include <vector>

namespace store {

/// Stored values as fields of a column of that kind, which is empty for the column of an expression.
Field wholeField(std::optional<ColumnKind> kind, qint64 number);
Field textField(std::optional<ColumnKind> kind, QByteArrayView utf8);

/// Rows kept in memory after their file is closed: sixteen bytes for each value, and the texts in large blocks, so that
/// a list of a hundred thousand jobs stays small and takes no longer than reading the file.
class RowSet {
public:
    RowSet() = default;
    /// The kind of each column; empty for an expression.
    explicit RowSet(std::vector<std::optional<ColumnKind>> columns);

    int rowCount() const;
    int columnCount() const { return static_cast<int>(m_columns.size()); }

    /// A value by row and column. Throws SubscriptOutOfRange.
    Field at(int row, int column) const;

    /// Removes a row. Throws SubscriptOutOfRange.
    void removeRow(int row);

    // Each call adds the next value, row by row.
    void appendNull();
    void appendWhole(qint64 number);
    void appendNumber(double number);
    void appendText(QByteArrayView utf8);

private:
    enum class Kind : quint8 { Null, Whole, Number, Text };

    struct Cell {
        union {
            qint64 whole;
            double number;
            const char* text;
        };
        quint32 length;
        Kind kind;
    };

    std::size_t indexOf(int row, int column) const;

    std::vector<std::optional<ColumnKind>> m_columns;
    // Neither is copied while it grows: a list's length is known only at its end.
    std::deque<Cell> m_cells;
    TextBlocks m_texts;
};

} // namespace store
