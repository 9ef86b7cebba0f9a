#include "scratchFolder.h"

#include "store/command.h"
#include "store/connectionStrings.h"
#include "store/dataFiles.h"
#include "store/recordset.h"

QStringList readRows(const QString& connectionString, const QString& statement)
{
    store::Connection connection(connectionString);
    QStringList result;
    for (store::Recordset set(connection, statement); !set.atEnd(); set.moveNext()) {
        QStringList fields;
        for (int i = 0; i < set.fieldCount(); ++i)
            fields << (set.field(i).isNull() ? "(null)" : set.field(i).toText());
        result << fields.join(u'|');
    }
    return result;
}

ScratchFolder::ScratchFolder()
{
    store::createDataFiles(path());
    modMain::setConnectionStrings(path());
}

void ScratchFolder::run(const QString& statement) const
{
    store::Connection connection(modMain::mainConnectionString(path()));
    store::Command(connection, statement).execute();
}

QStringList ScratchFolder::rows(const QString& statement) const
{
    return readRows(modMain::mainConnectionString(path()), statement);
}
