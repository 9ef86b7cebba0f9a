#include "permissions.h"

#include "schema.h"

#include <QByteArrayView>

#include <sqlite3.h>

namespace store {

namespace {

int permitFunction(QByteArrayView name)
{
    return name == "count" || name == "sum" || name == "max" ? SQLITE_OK : SQLITE_DENY;
}

int permit(void*, int action, const char* first, const char* second, const char*, const char*)
{
    switch (action) {
    case SQLITE_SELECT:
        return SQLITE_OK;
    case SQLITE_READ:
    case SQLITE_INSERT:
    case SQLITE_UPDATE:
    case SQLITE_DELETE:
        return isTable(QLatin1String(first)) ? SQLITE_OK : SQLITE_DENY;
    case SQLITE_FUNCTION:
        return permitFunction(second);
    default:
        return SQLITE_DENY;
    }
}

} // namespace

Permissions::Permissions(sqlite3* database) : m_database(database)
{
    sqlite3_set_authorizer(m_database, permit, nullptr);
}

Permissions::~Permissions()
{
    sqlite3_set_authorizer(m_database, nullptr, nullptr);
}

} // namespace store
