#pragma once

#include "jobStatements.h"
#include "jobTimer.h"

#include "ui/valueLabel.h"

#include <QDateTime>
#include <QGroupBox>
#include <QTimer>

#include <memory>
#include <vector>

namespace Ui {
class jobPanel;
}

namespace store {
class Connection;
}

namespace templates {
class Retrieval;
}

namespace workspace {

/// The "Job Frame": the job that is worked on, its timer and its characters. What ends the job is left to the form.
class JobPanel : public QGroupBox {
    Q_OBJECT

public:
    explicit JobPanel(QWidget* parent);
    ~JobPanel() override;

    /// No job is loaded from here on until LoadForm() has begun: should it not come to that, Save and "Delete this job"
    /// must not reach the job that was open before.
    void forgetJob() { m_jobId = 0; }
    /// Shows a stored job. Throws what its reading and calculation throw; what was shown until then stays.
    void LoadForm(qint32 jobId, const QString& reference, qint16 typeId, const QDateTime& jobDate);
    /// Shows or hides characters and lines for the unit and works out the total. Throws as calculated() does.
    void CalcForm();
    /// Empties the value labels.
    void ClearJob();
    /// Gives the job another type: shows its client, name, unit and rate. The total stays empty until the next
    /// calculation. Throws what its reading throws.
    void changeType(qint32 typeId);
    QString caption(int index) const { return value(index).text(); }
    void setCaption(int index, const QString& text) { value(index).setText(text); }
    /// The client that owns a type. Throws what its reading throws.
    static qint32 GetAcctID(qint32 typeId);

    /// The job as the captions say it, with the counted time as its length. A job that was never started starts now.
    JobEntry takeEntry();

    qint32 jobId() const { return m_jobId; }
    qint16 typeId() const { return m_typeId; }
    const QDateTime& jobDate() const { return m_jobDate; }

    /// Ends the timing of a job that was saved, or closed without saving.
    void endTimingSaved();
    void endTimingClosed();

    /// Empties the key code box and its message.
    void clearTemplate();

    /// Where the keyboard starts when a job comes into view.
    void focusFirst();

Q_SIGNALS:
    void saveClicked();
    void closeClicked();
    void deleteClicked();
    /// The value label of this index was clicked.
    void valueClicked(int index);

private:
    void connectEvents();
    void setAccessKeys();
    void setLook();
    void loadCharactersPerLine(store::Connection& connection, qint16 typeId);
    void loadValues(store::Connection& connection, qint32 jobId);
    void cmdStart_Click();
    void cmdStop_Click();
    void cmdReset_Click();
    void Timer1_Timer();
    void txtChar_LostFocus();
    void showTimer();
    void showLineControls(bool isLine);
    ui::ValueLabel& value(int index) const { return *m_values[static_cast<std::size_t>(index)]; }

    std::unique_ptr<Ui::jobPanel> m_controls;
    std::vector<ui::ValueLabel*> m_values;
    templates::Retrieval* m_retrieval;
    QTimer m_tick;
    JobTimer m_timer;
    qint32 m_jobId = 0;
    QString m_reference;
    qint16 m_typeId = 0;
    QDateTime m_jobDate;
    qint32 m_charactersPerLine = 0;
    qint32 m_lines = 0;
};

} // namespace workspace
