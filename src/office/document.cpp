#include "document.h"

#include "session.h"
#include "suite.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <com/sun/star/frame/XStorable.hpp>

namespace office {

using values::Fault;
using values::RuntimeError;

namespace {

const QString encodedText = QStringLiteral("Text (encoded)");

RuntimeError unreadable(const QString& fileName)
{
    return {static_cast<int>(Fault::PathFileAccess),
            QStringLiteral(
                "Path/File access error: '%1' could not be opened. It may be damaged or protected by a password.")
                .arg(QDir::toNativeSeparators(fileName))};
}

QByteArray contentOf(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw unreadable(fileName);
    return file.readAll();
}

// A text file does not say how it is written; what is no UTF-8 is taken for Latin-1.
QString encodingOf(const QString& textFile)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString decoded = decoder(contentOf(textFile));
    return decoder.hasError() ? QStringLiteral("ISO_8859_1") : QStringLiteral("UTF8");
}

uno::Reference<lang::XComponent> openAny(Session& session, const QString& fileName)
{
    if (QFileInfo(fileName).suffix().compare(u"txt", Qt::CaseInsensitive) == 0)
        return session.open(fileName, true, encodedText, encodingOf(fileName));
    return session.open(fileName, true);
}

/// Has the suite write the document in another form and reads that.
QByteArray converted(Session& session, const uno::Reference<lang::XComponent>& document, const char* filter,
                     const char* options)
{
    const QString fileName = session.exchangeFolder() + QStringLiteral("/content");
    const uno::Reference<com::sun::star::frame::XStorable> storable(document, uno::UNO_QUERY_THROW);
    storable->storeToURL(urlOf(fileName),
                         sequence({property("FilterName", uno::Any(rtl::OUString::createFromAscii(filter))),
                                   property("FilterOptions", uno::Any(rtl::OUString::createFromAscii(options)))}));
    const QByteArray bytes = contentOf(fileName);
    QFile::remove(fileName);
    return bytes;
}

} // namespace

Content readDocument(const QString& fileName)
{
    if (!QFileInfo(fileName).isFile())
        throw RuntimeError(Fault::FileNotFound);
    Content content;
    onSuite([&](Session& session) {
        const uno::Reference<lang::XComponent> document = openAny(session, fileName);
        if (!document.is())
            throw unreadable(fileName);
        const ClosedAtEnd closed(document);
        content.rtf = converted(session, document, "Rich Text Format", "");
        content.html = converted(session, document, "HTML (StarWriter)", "EmbedImages");
        content.text = QString::fromUtf8(converted(session, document, "Text (encoded)", "UTF8,LF"));
    });
    return content;
}

} // namespace office
