#include "document.h"

#include "reference.h"
#include "suite.h"
#include "suiteError.h"

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QStringDecoder>

#include <optional>

using namespace Qt::StringLiterals;

namespace office {

namespace {

constexpr char encodedText[] = "Text (encoded)";

/// How long a person waits for a document: before a box appears, and in all.
constexpr int boxDelayMilliseconds = 1'000;
constexpr int timeoutMilliseconds = 20'000;

QByteArray readContent(const QString& fileName)
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

// The encoding of a text file is known only if it begins with a byte order mark.
QByteArray toUtf8(const QByteArray& bytes)
{
    const auto encoding = QStringDecoder::encodingForData(bytes);
    QStringDecoder decoder(encoding.value_or(QStringDecoder::Utf8));
    QString text = decoder(bytes);
    if (!encoding && decoder.hasError())
        text = QStringDecoder("windows-1252")(bytes);
    return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').toUtf8();
}

/// A document's copy in our own folder, which the suite opens.
struct Copy {
    QString name;
    bool isZipped = false;
};

// The second mark is where the list of the parts ends.
bool isZipped(const QByteArray& content)
{
    return content.startsWith("PK") && content.contains("PK\5\6");
}

QString writeCopy(const QByteArray& content, const QString& name)
{
    QFile copy(name);
    if (!copy.open(QIODevice::WriteOnly) || copy.write(content) != content.size() || !copy.flush())
        throw writeError(copy, name);
    return name;
}

// A copy in our own folder is open nowhere else, and the neighbours that it may link to are not there.
Copy makeCopy(const QString& fileName, const QString& folder)
{
    const QByteArray content = readContent(fileName);
    const QString name = folder + u"/template."_s + QFileInfo(fileName).suffix().left(20);
    if (isText(fileName))
        return {writeCopy(toUtf8(content), name)};
    if (isZipped(content))
        return {writeCopy(content, name), true};
    return {writeCopy(removeReferences(content), name)};
}

/// Reads a copy in the exchange folder and removes it; nothing when the suite cannot open it.
std::optional<Content> readCopy(Bridge& bridge, const Copy& copy, const QString& folder)
{
    const QStringList converted{folder + u"/rtf"_s, folder + u"/html"_s, folder + u"/text"_s};
    const auto tidyUp = qScopeGuard([&] {
        for (const QString& each : converted + QStringList{copy.name})
            QFile::remove(each);
    });
    if (copy.isZipped && !bridge.changeParts(copy.name, removePartReferences))
        return std::nullopt;
    const FileFormat format = isText(copy.name) ? FileFormat{encodedText, "UTF8,LF"} : FileFormat{};
    const ConvertResult result =
        bridge.convert(copy.name, format, converted,
                       {{"Rich Text Format", ""}, {"HTML (StarWriter)", "EmbedImages"}, {encodedText, "UTF8,LF"}});
    if (result == ConvertResult::NotOpened)
        return std::nullopt;
    return Content{readContent(converted[0]), readContent(converted[1]), QString::fromUtf8(readContent(converted[2])),
                   result == ConvertResult::Converted};
}

} // namespace

void prepareReading()
{
    // The first document loads the suite's word processor and its writers.
    prepareSuite([](Bridge& bridge, const QString& folder, QPromise<void>&) {
        readCopy(bridge, {writeCopy("Ready", folder + u"/ahead.txt"_s)}, folder);
    });
}

Content readDocument(const QString& fileName)
{
    if (!QFileInfo(fileName).isFile())
        throw values::RuntimeError(values::Fault::FileNotFound);
    Content content;
    runOnSuite(
        [&](Bridge& bridge, const QString& folder, QPromise<void>&) {
            const std::optional<Content> read = readCopy(bridge, makeCopy(fileName, folder), folder);
            if (!read)
                throw accessError(fileName, u"could not be opened. It may be damaged or protected by a password."_s);
            content = *read;
        },
        {.text = u"Fetching the template"_s, .boxAfter = boxDelayMilliseconds}, timeoutMilliseconds);
    return content;
}

} // namespace office
