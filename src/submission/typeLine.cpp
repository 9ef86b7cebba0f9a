#include "typeLine.h"

#include "values/money.h"

#include <QList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace submission {

namespace {

// Whole characters of any script: one outside the first 65,536 is two units in the text.
QString column(const QString& field, int blanks, int width)
{
    const QList<uint> characters = (field + QString(blanks, u' ')).toUcs4();
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.constData()),
                             std::min<qsizetype>(width, characters.size()));
}

} // namespace

QString PadTypeLine(const QString& client, const QString& type, const QString& unit, double rate)
{
    const QString gap = u"  "_s;
    return column(client, 14, 16) + gap + column(type, 13, 15) + gap + column(unit, 9, 10) + gap +
           column(values::rateText(rate), 4, 7);
}

} // namespace submission
