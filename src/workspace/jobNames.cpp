#include "jobNames.h"

#include "listStatements.h"

#include "store/connectionStrings.h"
#include "store/nameStatements.h"
#include "store/recordset.h"
#include "values/money.h"

namespace workspace {

namespace {

QString textOf(const store::Field& field)
{
    return field.isNull() ? QString() : field.toText();
}

} // namespace

JobNames readJobNames()
{
    JobNames names;
    store::Connection connection(modMain::DBConnString);
    for (store::Recordset client(connection, store::selectClients()); !client.atEnd(); client.moveNext())
        names.clients[client.field(0).toText()] = textOf(client.field(1));
    for (store::Recordset type(connection, selectTypes()); !type.atEnd(); type.moveNext()) {
        const store::Field rate = type.field(3);
        names.types[type.field(0).toText()] = {textOf(type.field(2)), textOf(type.field(4)),
                                               rate.isNull() ? QString() : values::rateText(rate.toDouble())};
    }
    return names;
}

} // namespace workspace
