#include "connectionStrings.h"

namespace modMain {

QString DBConnString;
QString BUConnString;
QString ProgramFolder;

namespace {

QString connectionString(const QString& programFolder, const QString& file, const QString& password)
{
    return QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + programFolder + file +
           QStringLiteral(";Jet OLEDB:Database Password=") + password + QStringLiteral(";Jet OLEDB:Engine Type=4");
}

} // namespace

QString mainConnectionString(const QString& programFolder)
{
    return connectionString(programFolder, QStringLiteral("\\data\\dB.mdb"), QStringLiteral("keRV3047BoQ"));
}

QString backupConnectionString(const QString& programFolder)
{
    return connectionString(programFolder, QStringLiteral("\\data\\BU.mdb"), QStringLiteral("mW372"));
}

void setConnectionStrings(const QString& programFolder)
{
    ProgramFolder = programFolder;
    DBConnString = mainConnectionString(programFolder);
    BUConnString = backupConnectionString(programFolder);
}

} // namespace modMain
