#include "panelContent.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace workspace {

namespace {

QStringList readTexts(const QJsonValue& array)
{
    return array.toVariant().toStringList();
}

} // namespace

QByteArray PanelContent::toJson() const
{
    return QJsonDocument(QJsonObject{{"jobId", jobId},
                                     {"typeId", typeId},
                                     {"stored", QJsonArray::fromStringList(stored)},
                                     {"captions", QJsonArray::fromStringList(captions)},
                                     {"total", total},
                                     {"characters", characters},
                                     {"charactersPerLine", charactersPerLine},
                                     {"timer", timer.toJson()},
                                     {"isRefused", isRefused}})
        .toJson(QJsonDocument::Compact);
}

std::optional<PanelContent> readPanelContent(const QByteArray& json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    PanelContent content{.jobId = object["jobId"].toInt(),
                         .typeId = static_cast<qint16>(object["typeId"].toInt()),
                         .stored = readTexts(object["stored"]),
                         .captions = readTexts(object["captions"]),
                         .total = object["total"].toString(),
                         .characters = object["characters"].toString(),
                         .charactersPerLine = object["charactersPerLine"].toInt(),
                         .timer = JobTimer::fromJson(object["timer"].toObject()),
                         .isRefused = object["isRefused"].toBool()};
    if (content.captions.size() != jobValue::Count || content.stored.isEmpty())
        return std::nullopt;
    return content;
}

} // namespace workspace
