#include "utf8Environment.h"

#include <clocale>
#include <langinfo.h>

using namespace Qt::StringLiterals;

namespace values {

namespace {

// A locale that is not installed counts as none.
bool isLocaleUtf8()
{
    const locale_t locale = newlocale(LC_CTYPE_MASK, "", nullptr);
    if (!locale)
        return false;
    const bool result = QByteArrayView(nl_langinfo_l(CODESET, locale)) == QByteArrayView("UTF-8");
    freelocale(locale);
    return result;
}

} // namespace

QProcessEnvironment utf8Environment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!isLocaleUtf8())
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    return environment;
}

} // namespace values
