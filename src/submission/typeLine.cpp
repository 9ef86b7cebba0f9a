#include "typeLine.h"

#include "values/money.h"

#include <QList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace submission {

namespace {

// Counts whole characters: those beyond U+FFFF are two units of a QString.
QString padColumn(const QString& field, int blanks, int width)
{
    const QList<uint> characters = (field + QString(blanks, u' ')).toUcs4();
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.constData()),
                             std::min<qsizetype>(width, characters.size()));
}

} // namespace

QString PadTypeLine(const QString& client, const QString& type, const QString& unit, double rate)
{
    const QString gap = u"  "_s;
    return padColumn(client, 14, 16) + gap + padColumn(type, 13, 15) + gap + padColumn(unit, 9, 10) + gap +
           padColumn(values::rateText(rate), 4, 7);
}

} // namespace submission
