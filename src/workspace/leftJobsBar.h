#pragma once

#include "jobKeeper.h"
#include "storedJob.h"

#include <QVBoxLayout>
#include <QWidget>

namespace workspace {

/// Tells of the jobs that were left open, a line and a button for each. Takes no room when there are none.
class LeftJobsBar : public QWidget {
    Q_OBJECT

public:
    explicit LeftJobsBar(QWidget* parent);

    void setKeeper(JobKeeper& keeper);
    /// Shows what is true now. When reading fails, the error stands in place of the jobs.
    void refresh();

Q_SIGNALS:
    void openClicked(qint32 jobId, const StoredJob& job);

private:
    template <typename Add>
    void addRows(Add add);
    void addJob(const LeftJob& left);
    QWidget* addRow(const QString& text);
    void cmdForgetLeft_Click(qint64 id);

    JobKeeper* m_keeper = nullptr;
    QVBoxLayout* m_rows;
};

} // namespace workspace
