#pragma once

#include "jobTimer.h"

#include <QByteArray>
#include <QStringList>

#include <optional>

namespace workspace {

/// The values of a job that the panel shows, by the index of their labels.
namespace jobValue {
enum Index { Date, Client, Type, Unit, Characters, Lines, Rate, Started, Length, Submitted, Reference, Count };
}

/// What the job panel holds of its job: enough to go on with it as if the program had not ended.
struct PanelContent {
    qint32 jobId = 0;
    qint16 typeId = 0;
    QStringList stored;   ///< StoredJob::texts when the job was opened
    QStringList captions; ///< of the value labels
    QString total;
    QString characters; ///< as typed
    qint32 charactersPerLine = 0;
    JobTimer timer;
    bool isRefused = false; ///< saving the job failed

    QByteArray toJson() const;
};

/// Empty when the text is not that of a content.
std::optional<PanelContent> readPanelContent(const QByteArray& json);

} // namespace workspace
