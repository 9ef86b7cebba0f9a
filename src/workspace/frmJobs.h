// workspace: the main working form: the lists with their filters, the job panel with its timer, the template panel.
#pragma once

#include "store/rowSet.h"
#include "ui/shell.h"
#include "ui/workspace.h"

#include <QScrollArea>

namespace workspace {

class JobPanel;
class ListPanel;
class TemplatePanel;

/// The workspace: the list and, over the same area, the panel of the job that is worked on.
class frmJobs : public QScrollArea, public ui::Workspace {
    Q_OBJECT

public:
    /// Throws what filling the filters throws.
    explicit frmJobs(ui::Shell& shell);

    void ShowList(const QString& mode, const QDateTime& listDate, const QString& text) override;
    void OpenJob(qint32 jobId, const QString& reference, qint16 typeId, const QDateTime& jobDate) override;

    void ShowTemplateManager() override;

    /// Opens the grid's current row in the way of the list that it belongs to.
    void GridClick();
    /// Takes the grid's current job into the job panel; reports its own errors.
    void DoJob();
    /// The instruction for a list. The mode becomes upper-case.
    static QString GridInstruction(QString& mode);

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Form_Load();
    void list(const QString& mode, const QDateTime& listDate);
    void bindJobs(store::RowSet jobs);
    void editClient();
    void editType();
    void editTemplate();
    void listTemplates();
    bool refuseSecondJob() const;
    void enterJob();
    void leaveJob();
    void setJobPanelInView(bool inView);
    bool isJobPanelInView() const;
    void setTemplatePanelInView(bool inView);
    bool isTemplatePanelInView() const;
    void arrange();
    void cmdList_Click();
    void cmdSave_Click();
    void cmdClose_Click();
    void cmdDeleteJob_Click();
    void lblJob_Click(int index);
    void cmdTempSave_Click();
    void cmdDeleteTemp_Click();
    void cmdCancel_Click();
    void dgList_BeforeDelete();
    void dgList_DblClick();

    ui::Shell& m_shell;
    QWidget* m_area;
    ListPanel* m_list;
    JobPanel* m_job;
    TemplatePanel* m_template;
    QString m_listMode;
    bool m_jobRunning = false;
};

} // namespace workspace
