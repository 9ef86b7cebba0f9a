#include "nameStatements.h"

using namespace Qt::StringLiterals;

namespace store {

QString selectClients()
{
    return u"select id,acctname from jobacct"_s;
}

QString selectTypes()
{
    return u"select id,accttype from accttype"_s;
}

} // namespace store
