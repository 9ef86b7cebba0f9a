#include "statements.h"

#include "store/dateConditions.h"
#include "store/joinSql.h"

#include <array>

using namespace Qt::StringLiterals;
using store::joinSql;

namespace reports {

namespace {

struct DetailColumn {
    QString expression;
    Column column;
};

const QString total = u"jobs.joblines * accttype.acctrate"_s;

const DetailColumn& detailColumn(Field field)
{
    static const std::array<DetailColumn, 7> columns{{
        {u"jobs.jobchar"_s, {u"Char #"_s, Values::Count}},
        {u"jobs.joblines"_s, {u"Lines"_s, Values::Lines}},
        {u"accttype.acctrate"_s, {u"Rate"_s, Values::Rate}},
        {total, {u"Job Total"_s, Values::Amount}},
        {u"jobs.jobstart"_s, {u"Job Start"_s, Values::DateTime}},
        {u"jobs.joblength"_s, {u"Job Length"_s, Values::Text}},
        {u"jobs.jobuploaded"_s, {u"Submitted"_s, Values::Text}},
    }};
    return columns[static_cast<std::size_t>(field)];
}

QString fromJobs(const values::PeriodChoice& period, const Subject& subject)
{
    const QString criterion = subject.kind == Subject::Kind::Client ? u"jobs.jobacctid="_s : u"jobs.jobtypeid="_s;
    return joinSql(u" from jobs,accttype where jobs.jobtypeid=accttype.id",
                   store::jobDateCondition(period, u"jobs.jobdate"_s), u" AND ", criterion, subject.id);
}

} // namespace

QString selectSummary(const values::PeriodChoice& period, const Subject& subject)
{
    return joinSql(u"SELECT count(jobs.jobreference),sum(", total, u") ", fromJobs(period, subject));
}

std::vector<Column> summaryColumns()
{
    return {{u"Job Count"_s, Values::Count}, {u"Total Jobs"_s, Values::Amount}};
}

QString selectDetail(const values::PeriodChoice& period, const Subject& subject, const std::vector<Field>& fields)
{
    QString statement = u"SELECT jobs.jobreference"_s;
    for (const Field field : fields)
        statement += u',' + detailColumn(field).expression;
    return statement + fromJobs(period, subject);
}

// A total in the first of these columns has the heading "Total", in any other "Job Total".
std::vector<Column> detailColumns(const std::vector<Field>& fields)
{
    std::vector<Column> columns;
    for (const Field field : fields) {
        columns.push_back(detailColumn(field).column);
        if (field == Field::Total && columns.size() == 1)
            columns.back().heading = u"Total"_s;
    }
    return columns;
}

} // namespace reports
