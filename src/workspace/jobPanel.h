#pragma once

#include "jobKeeper.h"
#include "jobStatements.h"
#include "jobTimer.h"
#include "storedJob.h"

#include "ui/valueLabel.h"

#include <QDateTime>
#include <QGroupBox>
#include <QTimer>

#include <memory>
#include <optional>
#include <vector>

namespace Ui {
class frJob;
}

namespace store {
class Connection;
}

namespace templates {
class Retrieval;
}

namespace workspace {

/// The "Job Frame": the job that is worked on, with its timer and its characters, until it is saved, closed or deleted.
class JobPanel : public QGroupBox {
    Q_OBJECT

public:
    explicit JobPanel(QWidget* parent);
    ~JobPanel() override;

    /// Removes the earlier job from the panel. Until LoadForm() has loaded another one, there is none to save.
    void begin();
    /// Shows a stored job. Throws what its reading and calculation throw; what was shown until then stays.
    void LoadForm(qint32 jobId, const QString& reference, qint16 typeId, const QDateTime& jobDate);
    /// What is kept of this job, and of those that were left open.
    JobKeeper& keeper() { return m_keeper; }

Q_SIGNALS:
    /// The job was saved, closed or deleted; the day whose jobs are listed next, invalid for today.
    void ended(const QDateTime& day);

private:
    using enum jobValue::Index;

    void connectEvents();
    void setLook();
    void loadCharactersPerLine(store::Connection& connection, qint16 typeId);
    void loadValues(store::Connection& connection, qint32 jobId);
    void CalcForm();
    void ClearJob();
    void clear();
    static qint32 GetAcctID(qint32 typeId);
    JobEntry takeEntry();
    void changeType(qint32 typeId);
    void showLineControls();
    void showTimer();
    void showRunning(bool isRunning);
    void cmdStart_Click();
    void cmdStop_Click();
    void cmdReset_Click();
    void Timer1_Timer();
    void txtChar_LostFocus();
    void lblJob_Click(int index);
    void cmdSave_Click();
    void cmdClose_Click();
    void cmdDeleteJob_Click();
    PanelContent takeContent(const StoredJob& stored) const;
    void beginKeeping();
    void keep();
    void write(const PanelContent& content);
    void endKeeping(bool isDone);
    void offerLeftJobs();
    void takeUp(const LeftJob& left);
    void showContent(const PanelContent& content);
    bool isLine() const;
    ui::ValueLabel& value(int index) const { return *m_values[static_cast<std::size_t>(index)]; }

    std::unique_ptr<Ui::frJob> m_controls;
    std::vector<ui::ValueLabel*> m_values;
    templates::Retrieval* m_retrieval;
    QTimer m_tick;
    JobTimer m_timer;
    qint32 m_jobId = 0;
    qint16 m_typeId = 0;
    QDateTime m_jobDate;
    qint32 m_charactersPerLine = 0;
    JobKeeper m_keeper;
    std::optional<StoredJob> m_stored; // the open job, once it is loaded
    QByteArray m_kept;                 // what was kept last
};

} // namespace workspace
