#include "connectionStrings.h"

#include "values/programFolder.h"

using namespace Qt::StringLiterals;

namespace modMain {

QString DBConnString;
QString BUConnString;

namespace {

QString connectionString(const QString& programFolder, const QString& file, const QString& password)
{
    return u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + programFolder + file +
           u";Jet OLEDB:Database Password="_s + password + u";Jet OLEDB:Engine Type=4"_s;
}

} // namespace

QString mainConnectionString(const QString& programFolder)
{
    return connectionString(programFolder, u"\\data\\dB.mdb"_s, u"keRV3047BoQ"_s);
}

QString backupConnectionString(const QString& programFolder)
{
    return connectionString(programFolder, u"\\data\\BU.mdb"_s, u"mW372"_s);
}

QString openJobsConnectionString(const QString& programFolder)
{
    return connectionString(programFolder, u"\\data\\open.mdb"_s, u"qT81wLz5RcE"_s);
}

void setConnectionStrings(const QString& programFolder)
{
    ProgramFolder = programFolder;
    DBConnString = mainConnectionString(programFolder);
    BUConnString = backupConnectionString(programFolder);
}

} // namespace modMain
