#include "suiteSettings.h"

#include "suiteError.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace office {

namespace {

struct Setting {
    QLatin1StringView place;
    QLatin1StringView name;
    QLatin1StringView value;
};

// The suite ignores settings that its version does not know.
constexpr Setting settings[] = {
    {"Office.Writer/Content/Update"_L1, "Link"_L1, "0"_L1},
    {"Office.Calc/Content/Update"_L1, "Link"_L1, "1"_L1},
    // Linked pictures and objects load only from trusted places, and there are none.
    {"Office.Common/Security/Scripting"_L1, "BlockUntrustedRefererLinks"_L1, "true"_L1},
    {"Office.Common/Security/Scripting"_L1, "DisableActiveContent"_L1, "true"_L1},
    // Macros run from trusted places only, and there are none. To forbid them here would overrule Session::show().
    {"Office.Common/Security/Scripting"_L1, "MacroSecurityLevel"_L1, "3"_L1},
    // As a second safeguard, a proxy at which nothing listens.
    {"Inet/Settings"_L1, "ooInetProxyType"_L1, "1"_L1},
    {"Inet/Settings"_L1, "ooInetNoProxy"_L1, ""_L1},
    {"Inet/Settings"_L1, "ooInetHTTPProxyName"_L1, "127.0.0.1"_L1},
    {"Inet/Settings"_L1, "ooInetHTTPProxyPort"_L1, "1"_L1},
    {"Inet/Settings"_L1, "ooInetHTTPSProxyName"_L1, "127.0.0.1"_L1},
    {"Inet/Settings"_L1, "ooInetHTTPSProxyPort"_L1, "1"_L1},
};

// Pictures in SVG may show files of the disk, whatever document they are in. Packed ones have a reader of their own in
// newer suites.
constexpr QLatin1StringView noVectorPictures = "<item oor:path='/org.openoffice.TypeDetection.GraphicFilter/Filters'>"
                                               "<node oor:name='svg_Import' oor:op='remove'/>"
                                               "<node oor:name='svgz_Import' oor:op='remove'/></item>\n"_L1;

QString settingsFile()
{
    QString items;
    for (const Setting& setting : settings)
        items += u"<item oor:path='/org.openoffice.%1'><prop oor:name='%2' oor:op='fuse'><value>%3</value></prop>"
                 "</item>\n"_s.arg(setting.place, setting.name, setting.value);
    return u"<?xml version='1.0' encoding='UTF-8'?>\n<oor:items xmlns:oor='http://openoffice.org/2001/registry'>\n%1%2"
           "</oor:items>\n"_s.arg(noVectorPictures, items);
}

} // namespace

void writeSettings(const QString& profile)
{
    const QString folder = profile + u"/user"_s;
    QFile file(folder + u"/registrymodifications.xcu"_s);
    const QByteArray content = settingsFile().toUtf8();
    if (!QDir().mkpath(folder) || !file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
        !file.flush())
        throw writeError(file, file.fileName());
}

} // namespace office
