// workspace: the main working form: the lists with their filters, the job panel with its timer, the template panel.
#pragma once

#include "panelArea.h"

#include "store/rowSet.h"
#include "ui/shell.h"
#include "ui/workspace.h"

#include <QScrollArea>

namespace workspace {

class GridView;

/// The workspace: the list and, over the same area, the panel of the job that is worked on or of the templates.
class frmJobs : public QScrollArea, public ui::Workspace {
    Q_OBJECT

public:
    explicit frmJobs(ui::Shell& shell);

    void ShowList(const QString& mode, const QDateTime& listDate, const QString& text) override;
    void OpenJob(qint32 jobId, const QString& reference, qint16 typeId, const QDateTime& jobDate) override;
    void ShowTemplateManager() override;

    /// Opens the job, client, type or template of the grid's current row.
    void GridClick();
    /// Opens the grid's current job in the job panel; reports its own errors.
    void DoJob();
    /// The list that was asked for last: "JOB", "ACCTS" or "TYPE", or "temp" for the templates.
    const QString& ListMode() const { return m_listMode; }
    /// The instruction for a list. The mode becomes upper-case.
    static QString GridInstruction(QString& mode);

    QSize sizeHint() const override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void connectEvents();
    void Form_Load();
    void bringIntoView(PanelArea::Panel panel);
    void showJobs(store::RowSet jobs);
    void listTemplates();
    void editTemplate(qint32 id);
    bool refuseSecondJob() const;
    void enterJob();
    void leaveJob(const QDateTime& day);
    void cmdList_Click();
    void cmdCancel_Click();
    void dgList_BeforeDelete();
    void dgList_DblClick();

    ui::Shell& m_shell;
    PanelArea* m_area;
    ListPanel& m_list;
    GridView& m_grid;
    JobPanel& m_job;
    TemplatePanel& m_templates;
    QString m_listMode;
    bool m_isLoaded = false;
    bool m_jobRunning = false;
};

} // namespace workspace
