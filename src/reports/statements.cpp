#include "statements.h"

#include "store/dateConditions.h"

#include <array>

namespace reports {

namespace {

struct DetailColumn {
    QString expression;
    Column column;
};

const QString total = QStringLiteral("jobs.joblines * accttype.acctrate");

const DetailColumn& detailColumn(Field field)
{
    static const std::array<DetailColumn, 7> columns{{
        {QStringLiteral("jobs.jobchar"), {QStringLiteral("Char #"), Values::Count}},
        {QStringLiteral("jobs.joblines"), {QStringLiteral("Lines"), Values::Lines}},
        {QStringLiteral("accttype.acctrate"), {QStringLiteral("Rate"), Values::Rate}},
        {total, {QStringLiteral("Job Total"), Values::Amount}},
        {QStringLiteral("jobs.jobstart"), {QStringLiteral("Job Start"), Values::DateTime}},
        {QStringLiteral("jobs.joblength"), {QStringLiteral("Job Length"), Values::Text}},
        {QStringLiteral("jobs.jobuploaded"), {QStringLiteral("Submitted"), Values::Text}},
    }};
    return columns[static_cast<std::size_t>(field)];
}

QString fromJobs(const values::PeriodChoice& period, const Subject& subject)
{
    const QString criterion =
        subject.kind == Subject::Kind::Client ? QStringLiteral("jobs.jobacctid=") : QStringLiteral("jobs.jobtypeid=");
    return QStringLiteral(" from jobs,accttype where jobs.jobtypeid=accttype.id") +
           store::jobDateCondition(period, QStringLiteral("jobs.jobdate")) + QStringLiteral(" AND ") + criterion +
           QString::number(subject.id);
}

} // namespace

QString selectClients()
{
    return QStringLiteral("select id,acctname from jobacct");
}

QString selectTypes()
{
    return QStringLiteral("select id,accttype from accttype");
}

QString selectSummary(const values::PeriodChoice& period, const Subject& subject)
{
    return QStringLiteral("SELECT count(jobs.jobreference),sum(") + total + QStringLiteral(") ") +
           fromJobs(period, subject);
}

std::vector<Column> summaryColumns()
{
    return {{QStringLiteral("Job Count"), Values::Count}, {QStringLiteral("Total Jobs"), Values::Amount}};
}

QString selectDetail(const values::PeriodChoice& period, const Subject& subject, const std::vector<Field>& fields)
{
    QString statement = QStringLiteral("SELECT jobs.jobreference");
    for (const Field field : fields)
        statement += u',' + detailColumn(field).expression;
    return statement + fromJobs(period, subject);
}

// A total that comes first is headed "Total", as people know their reports.
std::vector<Column> detailColumns(const std::vector<Field>& fields)
{
    std::vector<Column> columns;
    for (const Field field : fields) {
        columns.push_back(detailColumn(field).column);
        if (field == Field::Total && columns.size() == 1)
            columns.back().heading = QStringLiteral("Total");
    }
    return columns;
}

} // namespace reports
