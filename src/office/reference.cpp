#include "reference.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace office {

namespace {

constexpr auto anyCase = QRegularExpression::CaseInsensitiveOption;

QByteArray removeFieldPictures(const QByteArray& rtf)
{
    static const QRegularExpression field(u"INCLUDEPICTURE"_s, anyCase);
    return QString::fromLatin1(rtf).replace(field, u"NOPICTURE"_s).toLatin1();
}

QByteArray removeLinks(const QByteArray& html)
{
    static const QRegularExpression markup(u"<style\\b.*?</style|<[^>]*>"_s,
                                           anyCase | QRegularExpression::DotMatchesEverythingOption);
    // Frames and plug-ins, which our settings forbid, would end some suites.
    static const QRegularExpression link(
        u"(?<=<)(?:link|iframe|embed|applet)\\b|\\bbackground(?=\\s*=)|url\\s*(?=\\()|@import"_s, anyCase);
    const QString text = QString::fromLatin1(html);
    QString kept;
    qsizetype at = 0;
    for (auto it = markup.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        kept += QStringView(text).mid(at, match.capturedStart() - at);
        kept += match.captured().replace(link, u"none"_s);
        at = match.capturedEnd();
    }
    return (kept += QStringView(text).mid(at)).toLatin1();
}

} // namespace

QByteArray removeReferences(const QByteArray& document)
{
    if (document.startsWith("{\\rtf"))
        return removeFieldPictures(document);
    static const QRegularExpression beginning(u"<(!doctype html|html|head|body|p|div)\\b"_s, anyCase);
    const bool isPacked = document.startsWith("PK") || document.startsWith("\xD0\xCF\x11\xE0");
    return !isPacked && beginning.match(QString::fromLatin1(document.left(1000))).hasMatch() ? removeLinks(document)
                                                                                             : document;
}

} // namespace office
