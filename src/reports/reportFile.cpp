#include "reportFile.h"

#include <QStringView>
#include <QTextBoundaryFinder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace reports {

namespace {

/// File systems allow 255; other programs add endings while they write.
constexpr qsizetype maximumBytes = 200;

bool isForbidden(QChar c)
{
    return c < u' ' || c == QChar(0x7F) || QStringView(u"/\\:*?\"<>|").contains(c);
}

QString cutToBytes(const QString& text, qsizetype bytes)
{
    QTextBoundaryFinder character(QTextBoundaryFinder::Grapheme, text);
    qsizetype end = 0;
    for (qsizetype next = character.toNextBoundary(); next > 0; next = character.toNextBoundary()) {
        if (QStringView(text).first(next).toUtf8().size() > bytes)
            break;
        end = next;
    }
    return text.first(end);
}

} // namespace

QString reportFileName(const QString& title, QDate day)
{
    QString name = title;
    std::ranges::replace_if(name, isForbidden, u'_');
    if (name.startsWith(u'.'))
        name[0] = u'_';
    const QString ending = day.toString(u"'_'MMdd'.xls'"_s);
    return cutToBytes(name, maximumBytes - ending.size()) + ending;
}

} // namespace reports
