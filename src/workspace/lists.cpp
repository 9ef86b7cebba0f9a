#include "gridLayouts.h"

namespace workspace {

using enum ColumnLook;

const GridLayout& clientLayout()
{
    static const GridLayout layout{
        QStringLiteral("jobacct"), 4000, {{QStringLiteral("ID"), 500, Number}, {QStringLiteral("Name"), 2000}}};
    return layout;
}

const GridLayout& typeLayout()
{
    static const GridLayout layout{QStringLiteral("accttype"),
                                   7000,
                                   {{QStringLiteral("ID"), 500, Number},
                                    {QStringLiteral("Acct"), 500, Number},
                                    {QStringLiteral("Type"), 2000},
                                    {QStringLiteral("Rate"), 800, Currency},
                                    {QStringLiteral("Unit"), 1000},
                                    {QStringLiteral("Char/Line"), 1000, Number}}};
    return layout;
}

const GridLayout& jobLayout()
{
    static const GridLayout layout{QStringLiteral("jobs"),
                                   11100,
                                   {{QStringLiteral("ID"), 700, Number},
                                    {QStringLiteral("Date"), 1000},
                                    {QStringLiteral("Client"), 550, Number},
                                    {QStringLiteral("Acct/Type"), 930, Number},
                                    {QStringLiteral("Reference #"), 1650},
                                    {QStringLiteral("Start Time"), 1950},
                                    {QStringLiteral("Time"), 800},
                                    {QStringLiteral("Submitted"), 1500},
                                    {QStringLiteral("Lines"), 525, Number},
                                    {QStringLiteral("$$$"), 675, Currency}}};
    return layout;
}

const GridLayout& templateLayout()
{
    static const GridLayout layout{QStringLiteral("template"),
                                   11100,
                                   {{QStringLiteral("ID"), 500, Number},
                                    {QStringLiteral("Name"), 2000},
                                    {QStringLiteral("Key Code"), 1000},
                                    {QStringLiteral("Description"), 3000},
                                    {QStringLiteral("Path"), 3500}}};
    return layout;
}

} // namespace workspace
