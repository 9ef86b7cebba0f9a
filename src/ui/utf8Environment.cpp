#include "utf8Environment.h"

#include <clocale>
#include <langinfo.h>

namespace ui {

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
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    return environment;
}

} // namespace ui
