#include "schema.h"

#include "collation.h"

#include <QByteArrayList>

#include <algorithm>
#include <array>

namespace store {

namespace {

using enum ColumnKind;

struct DeclaredType {
    ColumnKind kind;
    const char* text;
};

// The last word gives the engine the affinity; DATE and YESNO tell a result set what the stored value means.
constexpr std::array<DeclaredType, 7> declaredTypes{{{Id, "INTEGER"},
                                                     {Whole, "INTEGER"},
                                                     {Number, "REAL"},
                                                     {Money, "REAL"},
                                                     {Text, "TEXT"},
                                                     {Date, "DATE TEXT"},
                                                     {YesNo, "YESNO INTEGER"}}};

QByteArray columnDefinition(const Column& column)
{
    const auto* type =
        std::ranges::find_if(declaredTypes, [&](const DeclaredType& each) { return each.kind == column.kind; });
    QByteArray text = QByteArray(column.name) + ' ' + type->text;
    if (column.kind == Id)
        text += " PRIMARY KEY AUTOINCREMENT";
    if (column.kind == Text)
        text += QByteArray(" COLLATE ") + textCollation;
    if (column.defaultValue)
        text += QByteArray(" DEFAULT ") + column.defaultValue;
    return text;
}

const Table* findTable(const QString& name)
{
    const auto matches = [&](const Table& table) {
        return name.compare(QLatin1String(table.name), Qt::CaseInsensitive) == 0;
    };
    const auto found = std::ranges::find_if(mainTables(), matches);
    if (found != mainTables().end())
        return &*found;
    return matches(backupTable()) ? &backupTable() : nullptr;
}

} // namespace

const std::vector<Table>& mainTables()
{
    static const std::vector<Table> tables{
        {"jobacct", {{"id", Id}, {"acctname", Text}}},
        {"accttype",
         {{"id", Id},
          {"acctid", Whole},
          {"accttype", Text},
          {"acctrate", Money},
          {"acctunit", Text},
          {"acctcharline", Whole}}},
        {"jobs",
         {{"id", Id},
          {"jobdate", Date},
          {"jobacctid", Whole},
          {"jobtypeid", Whole},
          {"jobreference", Text},
          {"jobstart", Date},
          {"jobchar", Whole, "0"},
          {"joblines", Number, "0"},
          {"joblength", Text},
          {"jobuploaded", Text, "'.'"}}},
        {"template", {{"id", Id}, {"tempname", Text}, {"tempref", Text}, {"tempdesc", Text}, {"temppath", Text}}},
    };
    return tables;
}

const Table& backupTable()
{
    static const Table table{"bu",
                             {{"id", Id}, {"freq", Whole}, {"lastbu", Date}, {"path", Text}, {"dobackup", YesNo}}};
    return table;
}

const Table& openJobsTable()
{
    static const Table table{"openjob", {{"id", Id}, {"content", Text}}};
    return table;
}

bool isTable(const QString& name)
{
    return findTable(name) != nullptr;
}

int columnPosition(const QString& table, const QString& column)
{
    const Table* found = findTable(table);
    if (!found)
        return -1;
    const auto each = std::ranges::find_if(found->columns, [&](const Column& candidate) {
        return column.compare(QLatin1String(candidate.name), Qt::CaseInsensitive) == 0;
    });
    return each == found->columns.end() ? -1 : static_cast<int>(each - found->columns.begin());
}

std::optional<ColumnKind> columnKind(const QString& table, const QString& column)
{
    const int position = columnPosition(table, column);
    if (position < 0)
        return std::nullopt;
    return findTable(table)->columns[static_cast<std::size_t>(position)].kind;
}

QByteArray createTableStatement(const Table& table)
{
    QByteArrayList columns;
    for (const Column& column : table.columns)
        columns << columnDefinition(column);
    return QByteArray("CREATE TABLE ") + table.name + " (" + columns.join(", ") + ')';
}

std::vector<QByteArray> indexStatements()
{
    return {"CREATE INDEX jobs_date ON jobs (jobdate)", "CREATE INDEX jobs_uploaded ON jobs (jobuploaded, jobdate)",
            "CREATE INDEX jobs_reference ON jobs (jobreference)", "CREATE INDEX template_ref ON template (tempref)"};
}

std::optional<ColumnKind> kindOfDeclaredType(QByteArrayView declaredType)
{
    for (const DeclaredType& each : declaredTypes) {
        if (declaredType == QByteArrayView(each.text))
            return each.kind;
    }
    return std::nullopt;
}

} // namespace store
