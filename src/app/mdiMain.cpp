#include "mdiMain.h"
#include "ui_mdiMain.h"

#include "menuBarStyle.h"
#include "menuKeys.h"

#include "about/frmAbout.h"
#include "about/helpFile.h"
#include "backup/backUp.h"
#include "backup/frmBackup.h"
#include "masterdata/frmAddAcct.h"
#include "masterdata/frmAddJob.h"
#include "masterdata/frmAddType.h"
#include "reports/frmReport.h"
#include "submission/frmUpload.h"
#include "templates/frmCallTemp.h"
#include "templates/mdWord.h"
#include "ui/eventGuard.h"
#include "ui/showModally.h"
#include "workspace/frmJobs.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMdiSubWindow>
#include <QScreen>
#include <QShortcut>
#include <QStyle>

#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace app {

mdiMain::mdiMain() : m_controls(std::make_unique<Ui::mdiMain>())
{
    m_controls->setupUi(this);
    connectMenus();
    fitToScreen();
}

mdiMain::~mdiMain() = default;

// Large letters need a larger window; but one that is larger than the screen would have its close box and last rows out
// of sight.
void mdiMain::fitToScreen()
{
    constexpr double designedLineHeight = 17;
    resize(size() * std::max(1.0, fontMetrics().lineSpacing() / designedLineHeight));
    const int titleBar = style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const QSize room = screen()->availableGeometry().size() - QSize(titleBar / 2, 2 * titleBar);
    if (size() == size().boundedTo(room))
        return;
    resize(size().boundedTo(room));
    setWindowState(Qt::WindowMaximized);
}

void mdiMain::connectMenus()
{
    ui::onEvent(m_controls->mnuFileBackup, &QAction::triggered, this, &mdiMain::mnuFileBackup_Click);
    ui::onEvent(m_controls->mnuFileExit, &QAction::triggered, this, &mdiMain::mnuFileExit_Click);
    ui::onEvent(m_controls->mnuDataJobsAdd, &QAction::triggered, this, &mdiMain::mnuDataJobsAdd_Click);
    ui::onEvent(m_controls->mnuDataJobList, &QAction::triggered, this, &mdiMain::mnuDataJobList_Click);
    ui::onEvent(m_controls->mnuDataJobsUp, &QAction::triggered, this, &mdiMain::mnuDataJobsUp_Click);
    ui::onEvent(m_controls->mnuDataAcctAdd, &QAction::triggered, this, &mdiMain::mnuDataAcctAdd_Click);
    ui::onEvent(m_controls->mnuDataAcctList, &QAction::triggered, this, &mdiMain::mnuDataAcctList_Click);
    ui::onEvent(m_controls->mnuDataTypeAdd, &QAction::triggered, this, &mdiMain::mnuDataTypeAdd_Click);
    ui::onEvent(m_controls->mnuDataTypeList, &QAction::triggered, this, &mdiMain::mnuDataTypeList_Click);
    ui::onEvent(m_controls->mnuTempCall, &QAction::triggered, this, &mdiMain::mnuTempCall_Click);
    ui::onEvent(m_controls->mnuTempManage, &QAction::triggered, this, &mdiMain::mnuTempManage_Click);
    ui::onEvent(m_controls->mnuReportManager, &QAction::triggered, this, &mdiMain::mnuReportManager_Click);
    ui::onEvent(m_controls->mnuReportTempList, &QAction::triggered, this, &mdiMain::mnuReportTempList_Click);
    ui::onEvent(m_controls->mnuHelpShow, &QAction::triggered, this, &mdiMain::mnuHelpShow_Click);
    ui::onEvent(m_controls->mnuHelpAbout, &QAction::triggered, this, &mdiMain::mnuHelpAbout_Click);
    m_controls->menuBar->setStyle(new MenuBarStyle(this));
    new MenuKeys(*m_controls->menuBar, *this);
    const auto* closeWorkspace = new QShortcut(Qt::CTRL | Qt::Key_F4, this);
    connect(closeWorkspace, &QShortcut::activated, m_controls->centralwidget, &QMdiArea::closeActiveSubWindow);
}

ui::Workspace& mdiMain::workspace()
{
    if (!m_workspace) {
        auto form = std::make_unique<workspace::frmJobs>(*this);
        m_workspace = form.get();
        QMdiSubWindow* window = m_controls->centralwidget->addSubWindow(form.release());
        window->showMaximized();
    } else if (QWidget* window = m_workspace->parentWidget(); window->isMinimized()) {
        window->showMaximized();
    }
    return *m_workspace;
}

// The entries of the bar, and not the menus themselves: when a menu is disabled that had the keyboard, Qt chooses a
// command in the menu above it, which then opens by itself at the next click.
void mdiMain::setMenusEnabled(bool enabled)
{
    for (const QMenu* menu : {m_controls->mnuFile, m_controls->mnuData, m_controls->mnuTemp, m_controls->mnuReports})
        menu->menuAction()->setEnabled(enabled);
}

void mdiMain::mnuFileBackup_Click()
{
    ui::showModally(backup::frmBackup(this));
}

void mdiMain::mnuDataJobsAdd_Click()
{
    ui::showModally(masterdata::frmAddJob(*this, this));
}

void mdiMain::mnuDataJobList_Click()
{
    workspace().ShowList(u"job"_s, QDateTime(), QString());
}

void mdiMain::mnuDataJobsUp_Click()
{
    ui::showModally(submission::frmUpload(*this, this));
}

void mdiMain::mnuDataAcctAdd_Click()
{
    ui::showModally(masterdata::frmAddAcct(*this, this));
}

void mdiMain::mnuDataAcctList_Click()
{
    workspace().ShowList(u"accts"_s, QDateTime(), QString());
}

void mdiMain::mnuDataTypeAdd_Click()
{
    ui::showModally(masterdata::frmAddType(*this, this));
}

void mdiMain::mnuDataTypeList_Click()
{
    workspace().ShowList(u"type"_s, QDateTime(), QString());
}

void mdiMain::mnuTempCall_Click()
{
    ui::showModally(templates::frmCallTemp(this));
}

void mdiMain::mnuTempManage_Click()
{
    workspace().ShowTemplateManager();
}

void mdiMain::mnuReportManager_Click()
{
    ui::showModally(reports::frmReport(this));
}

void mdiMain::mnuReportTempList_Click()
{
    mdWord::ExportTemplateList();
}

void mdiMain::mnuHelpShow_Click()
{
    about::openHelpFile();
}

void mdiMain::mnuHelpAbout_Click()
{
    ui::showModally(about::frmAbout(this));
}

void mdiMain::mnuFileExit_Click()
{
    close();
}

// The child windows may refuse to close, but are asked only when the backup on closing did not end the program.
void mdiMain::closeEvent(QCloseEvent* event)
{
    event->ignore();
    if (m_isClosing)
        return;
    m_isClosing = true;
    ui::guard(modMain::GetBackUpInfo);
    for (QMdiSubWindow* child : m_controls->centralwidget->subWindowList()) {
        if (!child->close()) {
            m_isClosing = false;
            return;
        }
    }
    event->accept();
    // quit() would ask every window once more, and code after an open dialog or a running call would still run.
    ui::endProgram(EXIT_SUCCESS);
}

} // namespace app
