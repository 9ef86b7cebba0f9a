#pragma once

#include "ui/shell.h"

#include <QMainWindow>
#include <QPointer>

#include <memory>

class QAction;

namespace Ui {
class mdiMain;
}

namespace workspace {
class frmJobs;
}

namespace app {

/// The main window: every menu command goes from here to the form or routine that serves it.
class mdiMain : public QMainWindow, public ui::Shell {
    Q_OBJECT

public:
    mdiMain();
    ~mdiMain() override;

    ui::Workspace& workspace() override;
    void setMenusEnabled(bool enabled) override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void connectMenus();
    void fitToScreen();
    void mnuFileBackup_Click();
    void mnuDataJobsAdd_Click();
    void mnuDataJobList_Click();
    void mnuDataJobsUp_Click();
    void mnuDataAcctAdd_Click();
    void mnuDataAcctList_Click();
    void mnuDataTypeAdd_Click();
    void mnuDataTypeList_Click();
    void mnuTempCall_Click();
    void mnuTempManage_Click();
    void mnuReportManager_Click();
    void mnuReportTempList_Click();
    void mnuHelpShow_Click();
    void mnuHelpAbout_Click();
    void mnuFileExit_Click();

    std::unique_ptr<Ui::mdiMain> m_controls;
    QPointer<workspace::frmJobs> m_workspace;
    bool m_isClosing = false; // so that closing again during the backup does not start it twice
};

} // namespace app
