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

/// What a person waits for a document, in milliseconds: without a word, and at all.
constexpr int boxAfter = 1'000;
constexpr int patience = 20'000;

QByteArray contentOf(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw accessError(fileName, u"could not be read."_s);
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

} // namespace

Content readDocument(const QString& fileName)
{
    if (!QFileInfo(fileName).isFile())
        throw values::RuntimeError(values::Fault::FileNotFound);
    Content content;
    onSuite(
        [&](Bridge& bridge, const QString& folder, QPromise<void>&) {
            const QStringList made{folder + u"/rtf"_s, folder + u"/html"_s, folder + u"/text"_s};
            const QString copy = copyOf(fileName, folder);
            const auto tidyUp = qScopeGuard([&] {
                for (const QString& each : made + QStringList{copy})
                    QFile::remove(each);
            });
            const Form form = isText(fileName) ? Form{encodedText, "UTF8,LF"} : Form{};
            if (!bridge.convert(
                    copy, form, made,
                    {{"Rich Text Format", ""}, {"HTML (StarWriter)", "EmbedImages"}, {encodedText, "UTF8,LF"}}))
                throw accessError(fileName, u"could not be opened. It may be damaged or protected by a password."_s);
            content.rtf = contentOf(made[0]);
            content.html = contentOf(made[1]);
            content.text = QString::fromUtf8(contentOf(made[2]));
        },
        {.text = u"Fetching the template"_s, .boxAfter = boxAfter}, patience);
    return content;
}

} // namespace office
