#include "frmJobs.h"

#include "gridView.h"
#include "jobPanel.h"
#include "listPanel.h"
#include "templatePanel.h"

#include "masterdata/frmAddAcct.h"
#include "masterdata/frmAddType.h"
#include "store/command.h"
#include "store/connectionStrings.h"
#include "store/recordset.h"
#include "submission/frmEditJob.h"
#include "ui/actionQry.h"
#include "ui/errorTrap.h"
#include "ui/eventGuard.h"
#include "ui/messages.h"
#include "ui/twips.h"
#include "ui/waitCursor.h"
#include "values/clock.h"
#include "values/dates.h"

#include <QCloseEvent>

namespace workspace {

namespace {

const QString thisForm = QStringLiteral("Form frmJobs");
const QString jobMode = QStringLiteral("job");
const QString templateMode = QStringLiteral("temp");

store::RowSet readList(const QString& statement)
{
    const ui::WaitCursor wait;
    store::Connection connection(modMain::DBConnString);
    return store::Recordset(connection, statement).readAll();
}

} // namespace

frmJobs::frmJobs(ui::Shell& shell)
    : m_shell(shell)
    , m_area(new QWidget)
    , m_list(new ListPanel(m_area))
    , m_job(new JobPanel(m_area))
    , m_template(new TemplatePanel(m_area))
{
    setObjectName(QStringLiteral("frmJobs"));
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setWidget(m_area);
    m_area->installEventFilter(this);
    setJobPanelInView(false);
    setTemplatePanelInView(false);
    ui::onEvent(m_list, &ListPanel::listClicked, this, [this] { cmdList_Click(); });
    ui::onEvent(&m_list->grid(), &GridView::gridClicked, this, [this] { GridClick(); });
    ui::onEvent(&m_list->grid(), &GridView::gridDoubleClicked, this, [this] { dgList_DblClick(); });
    ui::onEvent(&m_list->grid(), &GridView::deletePressed, this, [this] { dgList_BeforeDelete(); });
    ui::onEvent(m_job, &JobPanel::saveClicked, this, [this] { cmdSave_Click(); });
    ui::onEvent(m_job, &JobPanel::closeClicked, this, [this] { cmdClose_Click(); });
    ui::onEvent(m_job, &JobPanel::deleteClicked, this, [this] { cmdDeleteJob_Click(); });
    ui::onEvent(m_job, &JobPanel::valueClicked, this, [this](int index) { lblJob_Click(index); });
    ui::onEvent(m_template, &TemplatePanel::saveClicked, this, [this] { cmdTempSave_Click(); });
    ui::onEvent(m_template, &TemplatePanel::deleteClicked, this, [this] { cmdDeleteTemp_Click(); });
    ui::onEvent(m_template, &TemplatePanel::cancelClicked, this, [this] { cmdCancel_Click(); });
    Form_Load();
}

void frmJobs::Form_Load()
{
    m_list->PopCombos();
    if (m_listMode.isEmpty())
        m_listMode = jobMode;
    m_list->setDates(values::today());
}

QString frmJobs::GridInstruction(QString& mode)
{
    mode = mode.toUpper();
    if (mode == u"JOB")
        return QStringLiteral(
            "To edit or delete a job FIRST populate the grid below and then click the job you want to "
            "start.  Please click in the column the arrow points to.");
    return QStringLiteral(
        "To edit a record click the item in the grid below.  Please click in the column the arrow points to.");
}

void frmJobs::ShowList(const QString& mode, const QDateTime& listDate, const QString&)
{
    ui::trap(QStringLiteral("ShowList"), thisForm, [&] { list(mode, listDate); });
}

void frmJobs::list(const QString& mode, const QDateTime& listDate)
{
    m_listMode = mode;
    m_list->setInstruction(GridInstruction(m_listMode));
    QString statement;
    QString title;
    const GridLayout* layout = nullptr;
    if (mode == u"accts") {
        statement = selectClients();
        title = QStringLiteral("Clients List");
        layout = &clientLayout();
    } else if (mode == u"type") {
        statement = selectTypes();
        title = QStringLiteral("Job Type List");
        layout = &typeLayout();
    } else if (mode == jobMode) {
        statement = selectJobsOf(listDate.isValid() ? listDate : values::dateTime(values::today()));
        title = QStringLiteral("Job List");
        layout = &jobLayout();
    }
    if (layout) {
        m_list->setJobControlsVisible(layout == &jobLayout());
        setTemplatePanelInView(false);
    }
    setWindowTitle(title);
    store::RowSet rows = readList(statement);
    m_list->grid().setFocus();
    if (layout == &jobLayout())
        bindJobs(std::move(rows));
    else if (layout)
        m_list->grid().showRows(std::move(rows), *layout);
}

void frmJobs::bindJobs(store::RowSet jobs)
{
    GridView& grid = m_list->grid();
    grid.showRows(std::move(jobs), jobLayout());
    if (grid.rows().rowCount() > 0)
        m_list->showTotals(grid.rows().rows());
}

// Back on "Today" after every listing, while the grid shows the chosen period.
void frmJobs::cmdList_Click()
{
    store::RowSet jobs = readList(selectJobs(m_list->filter()));
    if (jobs.rowCount() == 0) {
        m_list->grid().showNothing();
        return;
    }
    bindJobs(std::move(jobs));
    m_list->chooseToday();
}

void frmJobs::GridClick()
{
    const GridModel& rows = m_list->grid().rows();
    if (!rows.layout())
        return;
    if (refuseSecondJob())
        return;
    if (m_listMode == u"JOB")
        DoJob();
    else if (rows.rowCount() > 0 && m_listMode == u"ACCTS")
        editClient();
    else if (rows.rowCount() > 0 && m_listMode == u"TYPE")
        editType();
    else if (rows.rowCount() > 0 && m_listMode == templateMode)
        editTemplate();
}

bool frmJobs::refuseSecondJob() const
{
    if (m_jobRunning)
        ui::showMessage(QStringLiteral("Only one job may run at a time."));
    return m_jobRunning;
}

void frmJobs::editClient()
{
    const GridView& grid = m_list->grid();
    masterdata::frmAddAcct form(m_shell, this);
    form.PopForm(grid.rows().rows().at(grid.currentRow(), 0).toInteger());
    form.exec();
}

void frmJobs::editType()
{
    const GridView& grid = m_list->grid();
    masterdata::frmAddType form(m_shell, this);
    form.PopForm(grid.rows().rows().at(grid.currentRow(), 0).toInteger());
    form.exec();
}

void frmJobs::editTemplate()
{
    const GridView& grid = m_list->grid();
    m_template->edit(grid.rows().rows().at(grid.currentRow(), 0).toLong());
}

void frmJobs::ShowTemplateManager()
{
    setTemplatePanelInView(true);
    m_listMode = templateMode;
    listTemplates();
}

// Around the grid it looks as around a list of clients.
void frmJobs::listTemplates()
{
    QString likeClients = QStringLiteral("accts");
    m_list->setInstruction(GridInstruction(likeClients));
    m_list->setJobControlsVisible(false);
    m_list->grid().showRows(readList(selectTemplates()), templateLayout());
}

void frmJobs::cmdTempSave_Click()
{
    if (!m_template->isComplete()) {
        ui::showMessage(QStringLiteral("Name, Key Code and Path must contain valid entrys."));
        return;
    }
    const GridView& grid = m_list->grid();
    if (m_template->TemplateEditState() == u"Edit")
        modMain::ActionQry(updateTemplate(grid.rows().rows().at(grid.currentRow(), 0).toLong(), m_template->entry()));
    else
        modMain::ActionQry(insertTemplate(m_template->entry()));
    listTemplates();
    m_template->clearBoxes();
    m_template->endEdit();
}

void frmJobs::cmdDeleteTemp_Click()
{
    if (!ui::confirm(QStringLiteral("Are you sure you want to delete this template?")))
        return;
    modMain::ActionQry(deleteTemplate(m_template->templateId()));
    listTemplates();
    m_template->clearBoxes();
    m_template->endEdit();
}

void frmJobs::cmdCancel_Click()
{
    setTemplatePanelInView(false);
    ShowList(jobMode, QDateTime(), QString());
}

void frmJobs::DoJob()
{
    ui::trap(QStringLiteral("DoJob"), thisForm, [&] {
        const store::RowSet& jobs = m_list->grid().rows().rows();
        if (jobs.rowCount() == 0) {
            ui::showMessage(QStringLiteral("You select a row from the data grid that HAS DATA IN IT.\n"
                                           "Populate the grid and then make your selection."));
            return;
        }
        if (refuseSecondJob())
            return;
        enterJob();
        const int row = m_list->grid().currentRow();
        m_job->LoadForm(jobs.at(row, 0).toLong(), jobs.at(row, 4).toText(), jobs.at(row, 3).toInteger(),
                        jobs.at(row, 1).toDate());
    });
}

// A new job comes in as one from the grid does, and its errors are reported as that one's.
void frmJobs::OpenJob(qint32 jobId, const QString& reference, qint16 typeId, const QDateTime& jobDate)
{
    ui::trap(QStringLiteral("DoJob"), thisForm, [&] {
        enterJob();
        m_job->LoadForm(jobId, reference, typeId, jobDate);
    });
}

void frmJobs::enterJob()
{
    m_jobRunning = true;
    m_job->forgetJob();
    m_shell.setMenusEnabled(false);
    setJobPanelInView(true);
    m_job->focusFirst();
}

void frmJobs::leaveJob()
{
    m_jobRunning = false;
    setJobPanelInView(false);
    m_shell.setMenusEnabled(true);
    m_list->clearTotals();
}

void frmJobs::cmdSave_Click()
{
    modMain::ActionQry(updateJob(m_job->takeEntry()));
    leaveJob();
    ShowList(jobMode, m_job->jobDate(), QString());
    m_job->endTimingSaved();
    m_job->clearTemplate();
    m_job->ClearJob();
}

void frmJobs::cmdClose_Click()
{
    m_job->endTimingClosed();
    leaveJob();
    m_job->clearTemplate();
    ShowList(jobMode, m_job->jobDate(), QString());
    m_job->ClearJob();
}

void frmJobs::cmdDeleteJob_Click()
{
    if (!ui::confirm(QStringLiteral("Are you sure you want to delete this job?")))
        return;
    modMain::ActionQry(deleteJob(m_job->jobId()));
    leaveJob();
    ShowList(jobMode, QDateTime(), QString());
}

// Client, type and unit are three sides of one choice.
void frmJobs::lblJob_Click(int index)
{
    ui::trap(QStringLiteral("lblJob_Click"), thisForm, [&] {
        const bool isType = index >= 1 && index <= 3;
        qint32 chosenType = 0;
        submission::frmEditJob form(this);
        connect(&form, &submission::frmEditJob::captionApplied, m_job, &JobPanel::setCaption);
        connect(&form, &submission::frmEditJob::typeApplied, m_job, [&](qint32 typeId) { chosenType = typeId; });
        form.PopForm(static_cast<qint16>(isType ? 2 : index), m_job->caption(index));
        form.exec();
        if (chosenType != 0 && chosenType != m_job->typeId())
            m_job->changeType(chosenType);
    });
}

void frmJobs::dgList_BeforeDelete()
{
    if (!ui::confirm(QStringLiteral("Are you sure?"), QStringLiteral("You're about to delete a record!")))
        return;
    ui::trap(QStringLiteral("dgList_BeforeDelete"), thisForm, [&] {
        GridView& grid = m_list->grid();
        const int row = grid.currentRow();
        store::Connection connection(modMain::DBConnString);
        store::Command(connection, deleteRow(grid.rows().layout()->table, grid.rows().rows().at(row, 0).toLong()))
            .execute();
        grid.removeRow(row);
    });
}

void frmJobs::dgList_DblClick()
{
    ui::showMessage(QStringLiteral("Slow down on the mouse clicks there!\nPlease use single clicks only."));
}

bool frmJobs::isJobPanelInView() const
{
    return m_job->x() == ui::panelInView;
}

// Out of view is also out of reach of the Tab key.
void frmJobs::setJobPanelInView(bool inView)
{
    m_job->move(inView ? ui::panelInView : ui::panelOutOfView, ui::panelInView);
    m_job->setVisible(inView);
    m_list->setVisible(!inView);
    m_list->grid().setVisible(!inView);
    arrange();
}

bool frmJobs::isTemplatePanelInView() const
{
    return m_template->x() == ui::panelInView;
}

void frmJobs::setTemplatePanelInView(bool inView)
{
    m_template->move(inView ? ui::panelInView : ui::panelOutOfView, ui::panelInView);
    m_template->setVisible(inView);
    arrange();
}

void frmJobs::arrange()
{
    const QSize jobSize = m_job->sizeHint().expandedTo({ui::designedWidth(*this, 8400), 0});
    const QSize templateSize = m_template->sizeHint().expandedTo({jobSize.width(), 0});
    const int listTop = isTemplatePanelInView() ? ui::panelInView + templateSize.height() : 0;
    m_area->setMinimumSize(isJobPanelInView() ? jobSize + 2 * QSize(ui::panelInView, ui::panelInView)
                                              : m_list->minimumSizeHint() + QSize(0, listTop));
    m_list->setGeometry(m_area->rect().adjusted(0, listTop, 0, 0));
    m_job->resize(jobSize);
    m_template->resize(templateSize);
}

bool frmJobs::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_area && (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest))
        arrange();
    return QScrollArea::eventFilter(watched, event);
}

// A job in the panel must be closed there first. Nothing is said.
void frmJobs::closeEvent(QCloseEvent* event)
{
    event->setAccepted(!isJobPanelInView());
}

} // namespace workspace
