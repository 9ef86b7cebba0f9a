#pragma once

#include "office/progress.h"

#include <QProgressDialog>
#include <QTimer>

namespace reports {

/// Shows how far a long report is and lets it be cancelled; a short one is done before this shows.
class ReportProgress {
public:
    ReportProgress(QWidget* parent, int rows);

    office::Progress* progress() { return &m_progress; }

private:
    void look();

    office::Progress m_progress;
    QProgressDialog m_dialog;
    QTimer m_timer;
    int m_looks = 0;
};

} // namespace reports
