#include "reference.h"

#include <QRegularExpression>
#include <QStringConverter>

using namespace Qt::StringLiterals;

namespace office {

namespace {

constexpr auto anyCase = QRegularExpression::CaseInsensitiveOption;

QByteArray removeFieldPictures(const QByteArray& rtf)
{
    static const QRegularExpression field(u"INCLUDEPICTURE"_s, anyCase);
    return QString::fromLatin1(rtf).replace(field, u"NOPICTURE"_s).toLatin1();
}

QString removeLinks(const QString& html)
{
    // The value of an attribute may hold the sign that ends a tag.
    static const QRegularExpression markup(
        u"<style\\b.*?(?:</style|\\z)|<(?:=\\s*(?:\"[^\"]*\"|'[^']*')|[^>])*+(?:>|\\z)"_s,
        anyCase | QRegularExpression::DotMatchesEverythingOption);
    // Frames and plug-ins, which our settings forbid, would end some suites.
    static const QRegularExpression link(
        u"(?<=<)(?:link|iframe|embed|applet|input(?=[^>]*\\bimage\\b))\\b|\\bbackground(?=\\s*=)|url\\s*(?=\\()|@import"_s,
        anyCase);
    QString kept;
    qsizetype at = 0;
    for (auto it = markup.globalMatch(html); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        kept += QStringView(html).mid(at, match.capturedStart() - at);
        kept += match.captured().replace(link, u"none"_s);
        at = match.capturedEnd();
    }
    return kept += QStringView(html).mid(at);
}

} // namespace

// The suite takes much for HTML, whatever it begins with, so every text is treated as such. Latin 1 keeps the bytes of
// all encodings but the wide ones.
QByteArray removeReferences(const QByteArray& document)
{
    if (document.startsWith("{\\rtf"))
        return removeFieldPictures(document);
    using Encoding = QStringConverter::Encoding;
    const auto marked = QStringConverter::encodingForData(document);
    const bool isWide = marked == Encoding::Utf16LE || marked == Encoding::Utf16BE;
    if (!isWide && document.contains('\0'))
        return document;
    const Encoding encoding = isWide ? *marked : Encoding::Latin1;
    QStringDecoder decode(encoding, QStringConverter::Flag::ConvertInitialBom);
    QStringEncoder encode(encoding);
    return encode(removeLinks(decode(document)));
}

} // namespace office
