#include "lists.h"

#include "listStatements.h"
#include "templateStatements.h"

#include "store/nameStatements.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace workspace {

namespace {

using enum ColumnLook;

// In the order of RecordKind.
const std::array<List, 4> lists{
    {{RecordKind::Client, u"accts"_s, u"Clients List"_s, u"jobacct"_s, {{u"ID"_s, 500, Number}, {u"Name"_s, 2000}}, 1},
     {RecordKind::Type,
      u"type"_s,
      u"Job Type List"_s,
      u"accttype"_s,
      {{u"ID"_s, 500, Number},
       {u"Acct"_s, 500, Number, NameOf::Client},
       {u"Type"_s, 2000},
       {u"Rate"_s, 800, Rate},
       {u"Unit"_s, 1000},
       {u"Char/Line"_s, 1000, Number}},
      2},
     {RecordKind::Job,
      u"job"_s,
      u"Job List"_s,
      u"jobs"_s,
      {{u"ID"_s, 700, Number},
       {u"Date"_s, 1000, Day},
       {u"Client"_s, 550, Number, NameOf::Client},
       {u"Acct/Type"_s, 930, Number, NameOf::Type},
       {u"Reference #"_s, 1650},
       {u"Start Time"_s, 1950},
       {u"Time"_s, 800},
       {u"Submitted"_s, 1500},
       {u"Lines"_s, 525, Number},
       {u"$$$"_s, 675, Amount}},
      4},
     {RecordKind::Template,
      u"temp"_s,
      u"Manage Templates"_s,
      u"template"_s,
      {{u"ID"_s, 500, Number}, {u"Name"_s, 2000}, {u"Key Code"_s, 1000}, {u"Description"_s, 3000}, {u"Path"_s, 3500}},
      3}}};

} // namespace

const List& listOf(RecordKind kind)
{
    return lists[static_cast<std::size_t>(kind)];
}

const List* findList(const QString& mode)
{
    const auto found = std::ranges::find(lists, mode, &List::mode);
    return found != lists.end() && found->kind != RecordKind::Template ? &*found : nullptr;
}

QString selectRows(const List& list, const QDateTime& day)
{
    switch (list.kind) {
    case RecordKind::Client:
        return store::selectClients();
    case RecordKind::Type:
        return selectTypes();
    case RecordKind::Job:
        return selectJobsOf(day);
    case RecordKind::Template:
        return selectTemplates();
    }
    Q_UNREACHABLE();
}

} // namespace workspace
