#include "reference.h"

#include <QRegularExpression>
#include <QStringConverter>

#include <optional>

using namespace Qt::StringLiterals;

namespace office {

namespace {

constexpr auto anyCase = QRegularExpression::CaseInsensitiveOption;

/// In XML nothing but a mark can stand before it.
constexpr char16_t startOfXml = u'<';

/// The text with what the function makes of each match in its place.
template <typename Replacement>
QString replaceEach(const QString& text, const QRegularExpression& pattern, Replacement replacementFor)
{
    QString replaced;
    qsizetype at = 0;
    for (auto it = pattern.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        replaced += QStringView(text).mid(at, match.capturedStart() - at);
        replaced += replacementFor(match);
        at = match.capturedEnd();
    }
    return replaced += QStringView(text).mid(at);
}

QByteArray removeFieldPictures(const QByteArray& rtf)
{
    static const QRegularExpression field(u"INCLUDEPICTURE"_s, anyCase);
    return QString::fromLatin1(rtf).replace(field, u"NOPICTURE"_s).toLatin1();
}

/// Whether an attribute's value, with what stands behind it, may be an address outside the document: one with a scheme,
/// from the root or upwards, or with an entity that may hide such. Pictures in SVG, which our settings forbid, would
/// displace the same picture in another format.
bool leadsOut(const QString& attribute)
{
    static const QRegularExpression data(uR"(\A\s*+["']?\s*+data:)"_s, anyCase);
    static const QRegularExpression value(uR"rx(\A\s*+(?|"([^"]*+)"|'([^']*+)'|([^\s>"'][^\s>]*+)(?=[\s>])))rx"_s);
    static const QRegularExpression outward(uR"(\A(?:[/\\]|[^/?#]*:)|\.\.|&(?!amp;)|\.svgz?\z)"_s, anyCase);
    if (data.match(attribute).hasMatch())
        return false;
    const QRegularExpressionMatch address = value.match(attribute);
    // One that is cut off is longer than any of an honest document.
    return !address.hasMatch() || outward.match(address.captured(1).trimmed()).hasMatch();
}

// What looks like an attribute within another one is looked at as well, because a suite may read it as one.
QString removeOutwardLinks(const QString& tag)
{
    static const QRegularExpression link(u"\\bhref(?=\\s*+=(.{0,1024}))"_s,
                                         anyCase | QRegularExpression::DotMatchesEverythingOption);
    return replaceEach(tag, link, [](const QRegularExpressionMatch& match) {
        return leadsOut(match.captured(1)) ? u"none"_s : match.captured();
    });
}

/// Writes the characters of names and addresses as themselves, which changes no meaning.
QString decodeCharacters(const QString& tag)
{
    static const QRegularExpression reference(u"&#(?:x([0-9a-f]{1,8})|([0-9]{1,8}));?"_s, anyCase);
    static const QRegularExpression plain(u"[\\w:/.=()@\\\\-]"_s);
    return replaceEach(tag, reference, [](const QRegularExpressionMatch& match) {
        const bool isHex = match.hasCaptured(1);
        const uint code = match.captured(isHex ? 1 : 2).toUInt(nullptr, isHex ? 16 : 10);
        const QString character(code < 0x80 ? QChar(code) : QChar());
        return plain.match(character).hasMatch() ? character : match.captured();
    });
}

QString removeLinksFromTag(const QString& tag)
{
    // Frames and plug-ins, which our settings forbid, would end some suites. Of XML: the fill of a shape, what a
    // document type puts in later, and the encodings in which letters do not stand for themselves.
    static const QRegularExpression link(
        u"(?<=<)(?:link|iframe|embed|applet)\\b|\\bbackground(?=\\s*=)|url\\s*(?=\\()|@import"
        "|(?<=:)link(?=\\s*=)|(?<=<!)(?:entity|attlist)\\b"
        "|\\A<\\?xml\\b.*?\\Kencoding(?=\\s*=\\s*[\"'](?!(?:utf-8|utf-16|us-ascii|iso-8859-\\d+|windows-\\d+)[\"']))"_s,
        anyCase | QRegularExpression::DotMatchesEverythingOption);
    // A person follows these, not the suite. A second tag in such a one is a trick.
    static const QRegularExpression hyperlink(u"\\A<(?:[\\w.-]+:)?(?:a|area(?:-\\w+)?|base)(?=[\\s/>])[^<]*\\z"_s,
                                              anyCase);
    static const QRegularExpression input(u"(?<=<)input\\b"_s, anyCase);
    QString kept = tag.contains(u"&#") ? decodeCharacters(tag) : tag;
    kept.replace(link, u"none"_s);
    if (kept.contains(u"image", Qt::CaseInsensitive))
        kept.replace(input, u"none"_s);
    return hyperlink.match(kept).hasMatch() ? kept : removeOutwardLinks(kept);
}

QString removeLinks(const QString& markup)
{
    // The value of an attribute may hold the sign that ends a tag.
    static const QRegularExpression tag(
        u"<style(?![\\w:.-]).*?(?:</style|\\z)|<(?:=\\s*(?:\"[^\"]*\"|'[^']*')|[^>])*+(?:>|\\z)"_s,
        anyCase | QRegularExpression::DotMatchesEverythingOption);
    return replaceEach(markup, tag,
                       [](const QRegularExpressionMatch& match) { return removeLinksFromTag(match.captured()); });
}

std::optional<QStringConverter::Encoding> findWideEncoding(const QByteArray& document)
{
    using Encoding = QStringConverter::Encoding;
    const auto found = QStringConverter::encodingForData(document, startOfXml);
    return found == Encoding::Utf16LE || found == Encoding::Utf16BE ? found : std::nullopt;
}

} // namespace

// The suite takes much for HTML, whatever it begins with, so every text is treated as such. Latin 1 keeps the bytes of
// all encodings but the wide ones.
QByteArray removeReferences(const QByteArray& document)
{
    if (document.startsWith("{\\rtf"))
        return removeFieldPictures(document);
    if (document.startsWith("\xD0\xCF\x11\xE0"))
        return document;
    const auto encoding = findWideEncoding(document).value_or(QStringConverter::Latin1);
    QStringDecoder decode(encoding, QStringConverter::Flag::ConvertInitialBom);
    QStringEncoder encode(encoding);
    return encode(removeLinks(decode(document)));
}

QByteArray removePartReferences(const QByteArray& part)
{
    const QByteArrayView start = QByteArrayView(part).sliced(part.startsWith("\xEF\xBB\xBF") ? 3 : 0).trimmed();
    return start.startsWith('<') || findWideEncoding(part) ? removeReferences(part) : part;
}

} // namespace office
