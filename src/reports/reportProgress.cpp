#include "reportProgress.h"

#include <limits>

namespace reports {

namespace {

constexpr int lookMilliseconds = 50;
constexpr int longWorkMilliseconds = 500;

} // namespace

ReportProgress::ReportProgress(QWidget* parent, int rows)
    : m_dialog(QStringLiteral("Making the report"), QStringLiteral("Cancel"), 0, rows + 1, parent)
{
    m_dialog.setWindowModality(Qt::WindowModal);
    // When it shows is decided here: what it makes of the first rows says little about how long the suite takes.
    m_dialog.setMinimumDuration(std::numeric_limits<int>::max());
    m_dialog.setAutoReset(false);
    QObject::connect(&m_dialog, &QProgressDialog::canceled, &m_dialog, [this] {
        m_progress.isCancelled = true;
        m_progress.isVisible = false;
    });
    QObject::connect(&m_timer, &QTimer::timeout, &m_dialog, [this] { look(); });
    m_timer.start(lookMilliseconds);
}

void ReportProgress::look()
{
    if (m_progress.isCancelled)
        return;
    if (++m_looks * lookMilliseconds >= longWorkMilliseconds && !m_dialog.isVisible()) {
        m_dialog.show();
        m_progress.isVisible = true;
    }
    // The last step, writing the file, is never shown as done.
    m_dialog.setValue(m_progress.rowsWritten);
}

} // namespace reports
