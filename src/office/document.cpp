#include "document.h"

#include "reference.h"
#include "suite.h"
#include "suiteError.h"

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace office {

namespace {

constexpr char encodedText[] = "Text (encoded)";

QByteArray contentOf(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw accessError(fileName, QStringLiteral("could not be read."));
    return file.readAll();
}

bool isText(const QString& fileName)
{
    return QFileInfo(fileName).suffix().compare(u"txt", Qt::CaseInsensitive) == 0;
}

// A text file says how it is written by a mark at its beginning, if at all.
QByteArray inUtf8(const QByteArray& bytes)
{
    const auto marked = QStringDecoder::encodingForData(bytes);
    QStringDecoder decoder(marked.value_or(QStringDecoder::Utf8));
    QString text = decoder(bytes);
    if (!marked && decoder.hasError())
        text = QStringDecoder("windows-1252")(bytes);
    return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').toUtf8();
}

// In a folder of ours: nobody else has it open, and what it names beside itself is not there.
QString copyOf(const QString& fileName, const QString& folder)
{
    const QByteArray content = contentOf(fileName);
    QFile copy(folder + u"/template."_s + QFileInfo(fileName).suffix().left(20));
    const QByteArray written = isText(fileName) ? inUtf8(content) : withoutReferences(content);
    if (!copy.open(QIODevice::WriteOnly) || copy.write(written) != written.size() || !copy.flush())
        throw writeError(copy, copy.fileName());
    return copy.fileName();
}

/// Says what went wrong, if anything did.
void check(Made made, const QString& fileName, const QString& folder)
{
    if (made == Made::NotOpened)
        throw accessError(fileName,
                          QStringLiteral("could not be opened. It may be damaged or protected by a password."));
    if (made != Made::Yes)
        throw notWritten(folder);
}

} // namespace

Content readDocument(const QString& fileName)
{
    if (!QFileInfo(fileName).isFile())
        throw values::RuntimeError(values::Fault::FileNotFound);
    Content content;
    onSuite([&](Bridge& bridge, const QString& folder) {
        const QStringList made{folder + QStringLiteral("/rtf"), folder + QStringLiteral("/html"),
                               folder + QStringLiteral("/text")};
        const QString copy = copyOf(fileName, folder);
        const auto tidyUp = qScopeGuard([&] {
            for (const QString& each : made + QStringList{copy})
                QFile::remove(each);
        });
        const Form form = isText(fileName) ? Form{encodedText, "UTF8,LF"} : Form{};
        check(
            bridge.convert(copy, form, made,
                           {{"Rich Text Format", ""}, {"HTML (StarWriter)", "EmbedImages"}, {encodedText, "UTF8,LF"}}),
            fileName, folder);
        content.rtf = contentOf(made[0]);
        content.html = contentOf(made[1]);
        content.text = QString::fromUtf8(contentOf(made[2]));
    });
    return content;
}

} // namespace office
