#include "document.h"

#include "suite.h"
#include "suiteError.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

namespace office {

namespace {

constexpr char encodedText[] = "Text (encoded)";

/// What a person waits for a document, in milliseconds: without a word, and at all.
constexpr int boxAfter = 1'000;
constexpr int patience = 20'000;

QByteArray contentOf(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw accessError(fileName, QStringLiteral("could not be read."));
    return file.readAll();
}

// A text file does not say how it is written; what is no UTF-8 is taken for Latin-1.
Form formOf(const QString& fileName)
{
    if (QFileInfo(fileName).suffix().compare(u"txt", Qt::CaseInsensitive) != 0)
        return {};
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString decoded = decoder(contentOf(fileName));
    const bool isDos = decoded.contains(u"\r\n");
    if (decoder.hasError())
        return {encodedText, isDos ? "ISO_8859_1,CRLF" : "ISO_8859_1,LF"};
    return {encodedText, isDos ? "UTF8,CRLF" : "UTF8,LF"};
}

QByteArray taken(const QString& fileName)
{
    const QByteArray bytes = contentOf(fileName);
    QFile::remove(fileName);
    return bytes;
}

} // namespace

Content readDocument(const QString& fileName)
{
    if (!QFileInfo(fileName).isFile())
        throw values::RuntimeError(values::Fault::FileNotFound);
    const Form form = formOf(fileName);
    Content content;
    onSuite(
        [&](Bridge& bridge, const QString& folder, QPromise<void>&) {
            const QStringList made{folder + QStringLiteral("/rtf"), folder + QStringLiteral("/html"),
                                   folder + QStringLiteral("/text")};
            if (!bridge.convert(
                    fileName, form, made,
                    {{"Rich Text Format", ""}, {"HTML (StarWriter)", "EmbedImages"}, {encodedText, "UTF8,LF"}}))
                throw accessError(fileName,
                                  QStringLiteral("could not be opened. It may be damaged or protected by a password."));
            content.rtf = taken(made[0]);
            content.html = taken(made[1]);
            content.text = QString::fromUtf8(taken(made[2]));
        },
        {.text = QStringLiteral("Fetching the template"), .boxAfter = boxAfter}, patience);
    return content;
}

} // namespace office
