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

Q_SIGNALS:
    /// The job was saved, closed or deleted; the day whose jobs are listed next, invalid for today.
    void ended(const QDateTime& day);

private:
    /// The value labels by their index.
    enum Value { Date, Client, Type, Unit, Characters, Lines, Rate, Started, Length, Submitted, Reference };

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
    void cmdStart_Click();
    void cmdStop_Click();
    void cmdReset_Click();
    void Timer1_Timer();
    void txtChar_LostFocus();
    void lblJob_Click(int index);
    void cmdSave_Click();
    void cmdClose_Click();
    void cmdDeleteJob_Click();
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
};

} // namespace workspace
