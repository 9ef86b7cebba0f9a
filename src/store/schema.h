#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>
#include <vector>

namespace store {

/// What a column holds. Whole numbers have 32 bits, texts at most 255 characters. Money is a number within the range of
/// values::Money.
enum class ColumnKind { Id, Whole, Number, Money, Text, Date, YesNo };

struct Column {
    const char* name;
    ColumnKind kind;
    const char* defaultValue = nullptr;
};

struct Table {
    const char* name;
    std::vector<Column> columns;
};

/// The tables of the main data file.
const std::vector<Table>& mainTables();

/// The one table of the backup-settings file.
const Table& backupTable();

/// The one table of the file with the jobs that were left open: what the job panel showed, as JSON, by the job's id. It
/// is none of those that the program's statements may name.
const Table& openJobsTable();

/// Whether one of the two files has this table, in any case of the name.
bool isTable(const QString& name);

/// Where a column stands in its table, from 0, in any case of the names; -1 when there is no such table or column.
int columnPosition(const QString& table, const QString& column);

/// The kind of a column, in any case of the names; empty when there is no such table or column.
std::optional<ColumnKind> columnKind(const QString& table, const QString& column);

/// The statement that creates a table, in the engine's own SQL.
QByteArray createTableStatement(const Table& table);

/// The statements that create the indexes for the lists of the main data file.
std::vector<QByteArray> indexStatements();

/// The kind that a declared column type stands for; empty when there is none, as for an expression. Money is declared
/// as a number and read back as one.
std::optional<ColumnKind> kindOfDeclaredType(QByteArrayView declaredType);

} // namespace store
