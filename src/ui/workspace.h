#pragma once

#include <QDateTime>
#include <QString>

namespace ui {

/// The workspace as other forms see it.
class Workspace {
public:
    Workspace() = default;
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;
    virtual ~Workspace() = default;

    /// Lists clients ("accts"), types ("type") or the jobs of a day ("job") in the grid. An invalid date means today;
    /// the text is not used. Shows its errors itself.
    virtual void ShowList(const QString& mode, const QDateTime& listDate, const QString& text) = 0;

    /// Opens a stored job in the job panel and disables the menus. Shows its errors itself.
    virtual void OpenJob(qint32 jobId, const QString& reference, qint16 typeId, const QDateTime& jobDate) = 0;

    /// Shows the template panel and lists the templates. Throws what reading them throws.
    virtual void ShowTemplateManager() = 0;
};

} // namespace ui
