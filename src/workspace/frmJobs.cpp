#include "frmJobs.h"

#include "gridView.h"
#include "jobPanel.h"
#include "leftJobsBar.h"
#include "listPanel.h"
#include "templatePanel.h"

#include "masterdata/frmAddAcct.h"
#include "masterdata/frmAddType.h"
#include "store/command.h"
#include "store/connectionStrings.h"
#include "ui/errorTrap.h"
#include "ui/eventGuard.h"
#include "ui/messages.h"
#include "ui/readRows.h"
#include "ui/showModally.h"
#include "values/clock.h"
#include "values/dates.h"

#include <QCloseEvent>

using namespace Qt::StringLiterals;

namespace workspace {

namespace {

const QString thisForm = u"Form frmJobs"_s;

} // namespace

frmJobs::frmJobs(ui::Shell& shell)
    : m_shell(shell)
    , m_area(new PanelArea)
    , m_list(m_area->list())
    , m_grid(m_list.grid())
    , m_job(m_area->job())
    , m_templates(m_area->templates())
    , m_listMode(listOf(RecordKind::Job).mode)
{
    setObjectName(u"frmJobs"_s);
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    // Tab goes from control to control and must not stop at the scroll area around them.
    setFocusPolicy(Qt::NoFocus);
    setWidget(m_area);
    m_list.leftJobs().setKeeper(m_job.keeper());
    connectEvents();
}

void frmJobs::connectEvents()
{
    ui::onEvent(&m_list, &ListPanel::listClicked, this, &frmJobs::cmdList_Click);
    ui::onEvent(&m_grid, &GridView::gridClicked, this, &frmJobs::GridClick);
    ui::onEvent(&m_grid, &GridView::gridDoubleClicked, this, &frmJobs::dgList_DblClick);
    ui::onEvent(&m_grid, &GridView::deletePressed, this, &frmJobs::dgList_BeforeDelete);
    ui::onEvent(&m_list.leftJobs(), &LeftJobsBar::openClicked, this,
                [this](qint32 id, const StoredJob& job) { OpenJob(id, job.reference, job.typeId, job.date); });
    ui::onEvent(&m_job, &JobPanel::ended, this, &frmJobs::leaveJob);
    ui::onEvent(&m_templates, &TemplatePanel::templatesChanged, this, &frmJobs::listTemplates);
    ui::onEvent(&m_templates, &TemplatePanel::cancelClicked, this, &frmJobs::cmdCancel_Click);
}

// Called by every command that needs the filters: when reading them fails, that command reports it and the next one
// tries again.
void frmJobs::Form_Load()
{
    if (m_isLoaded)
        return;
    m_list.setDates(values::today());
    m_list.PopCombos();
    m_isLoaded = true;
}

QString frmJobs::GridInstruction(QString& mode)
{
    mode = mode.toUpper();
    if (mode == u"JOB")
        return u"To edit or delete a job FIRST populate the grid below and then click the job you want to start.  "
               "Please click in the column the arrow points to."_s;
    return u"To edit a record click the item in the grid below.  Please click in the column the arrow points to."_s;
}

void frmJobs::ShowList(const QString& mode, const QDateTime& listDate, const QString&)
{
    ui::trap(u"ShowList"_s, thisForm, [&] {
        Form_Load();
        m_listMode = mode;
        m_list.setInstruction(GridInstruction(m_listMode));
        const List* list = findList(mode);
        setWindowTitle(list ? list->title : QString());
        if (list)
            m_list.setJobControlsVisible(list->kind == RecordKind::Job);
        if (list && m_area->areTemplatesInView())
            bringIntoView(PanelArea::Panel::List);
        const QDateTime day = listDate.isValid() ? listDate : values::dateTime(values::today());
        store::RowSet rows = ui::readRows(list ? selectRows(*list, day) : QString());
        m_grid.setFocus();
        if (list->kind == RecordKind::Job)
            showJobs(std::move(rows));
        else
            m_grid.showRows(std::move(rows), *list, list->kind == RecordKind::Type ? readJobNames() : JobNames());
    });
}

// Jobs whose sum is too large for an amount of money are listed without it.
void frmJobs::showJobs(store::RowSet jobs)
{
    m_grid.showRows(std::move(jobs), listOf(RecordKind::Job), readJobNames());
    m_list.leftJobs().refresh();
    if (m_grid.rows().rowCount() > 0)
        ui::trap(u"ShowList"_s, thisForm, [&] { m_list.showTotals(m_grid.rows().rows()); });
}

// Chooses "Today" again after every listing, although the grid shows the jobs of another period.
void frmJobs::cmdList_Click()
{
    Form_Load();
    store::RowSet jobs = ui::readRows(selectJobs(m_list.filter()));
    if (jobs.rowCount() == 0) {
        m_grid.clearRows();
        return;
    }
    showJobs(std::move(jobs));
    m_list.chooseToday();
}

void frmJobs::GridClick()
{
    const List* list = m_grid.rows().list();
    if (!list || refuseSecondJob())
        return;
    if (list->kind == RecordKind::Job)
        return DoJob();
    if (!m_grid.hasCurrentRow())
        return;
    const store::Field id = m_grid.field(0);
    if (list->kind == RecordKind::Template)
        return editTemplate(id.toLong());
    const auto edit = [&](auto form) {
        form.PopForm(id.toInteger());
        ui::showModally(form);
    };
    if (list->kind == RecordKind::Client)
        edit(masterdata::frmAddAcct(m_shell, this));
    else
        edit(masterdata::frmAddType(m_shell, this));
}

bool frmJobs::refuseSecondJob() const
{
    if (m_jobRunning)
        ui::showMessage(u"Only one job may run at a time."_s);
    return m_jobRunning;
}

void frmJobs::editTemplate(qint32 id)
{
    m_grid.keepCurrentRow(false);
    m_templates.edit(id);
    m_grid.keepCurrentRow(true);
}

void frmJobs::ShowTemplateManager()
{
    Form_Load();
    m_templates.endEdit();
    bringIntoView(PanelArea::Panel::Templates);
    listTemplates();
}

// As with a list of clients, there are no job filters and totals around the grid.
void frmJobs::listTemplates()
{
    const List& list = listOf(RecordKind::Template);
    m_listMode = list.mode;
    setWindowTitle(list.title);
    QString mode = list.mode;
    m_list.setInstruction(GridInstruction(mode));
    m_list.setJobControlsVisible(false);
    m_grid.showRows(ui::readRows(selectRows(list, QDateTime())), list);
}

void frmJobs::cmdCancel_Click()
{
    ShowList(listOf(RecordKind::Job).mode, QDateTime(), QString());
}

void frmJobs::DoJob()
{
    ui::trap(u"DoJob"_s, thisForm, [&] {
        if (m_grid.rows().rowCount() == 0) {
            ui::showMessage(u"You select a row from the data grid that HAS DATA IN IT.\n"
                            "Populate the grid and then make your selection."_s);
            return;
        }
        if (refuseSecondJob())
            return;
        enterJob();
        m_job.LoadForm(m_grid.field(0).toLong(), m_grid.field(4).toText(), m_grid.field(3).toInteger(),
                       m_grid.field(1).toDate());
    });
}

// Errors have the name of DoJob, because they are those of opening a job from the grid.
void frmJobs::OpenJob(qint32 jobId, const QString& reference, qint16 typeId, const QDateTime& jobDate)
{
    ui::trap(u"DoJob"_s, thisForm, [&] {
        Form_Load();
        enterJob();
        m_job.LoadForm(jobId, reference, typeId, jobDate);
    });
}

void frmJobs::enterJob()
{
    m_jobRunning = true;
    m_shell.setMenusEnabled(false);
    bringIntoView(PanelArea::Panel::Job);
    m_job.begin();
}

void frmJobs::leaveJob(const QDateTime& day)
{
    m_jobRunning = false;
    bringIntoView(PanelArea::Panel::List);
    m_shell.setMenusEnabled(true);
    m_list.clearTotals();
    ShowList(listOf(RecordKind::Job).mode, day, QString());
}

void frmJobs::dgList_BeforeDelete()
{
    if (!ui::confirm(u"Are you sure?"_s, u"You're about to delete a record!"_s))
        return;
    ui::trap(u"dgList_BeforeDelete"_s, thisForm, [&] {
        store::Connection connection(modMain::DBConnString);
        store::Command(connection, deleteRow(m_grid.rows().list()->table, m_grid.field(0).toLong())).execute();
        // The current row is the template that is being edited, so its editing ends with it.
        m_templates.endEdit();
        m_grid.keepCurrentRow(false);
        m_grid.removeCurrentRow();
        m_list.leftJobs().refresh();
    });
}

void frmJobs::dgList_DblClick()
{
    ui::showMessage(u"Slow down on the mouse clicks there!\nPlease use single clicks only."_s);
}

// What was typed into the template panel is dropped when another panel comes into view.
void frmJobs::bringIntoView(PanelArea::Panel panel)
{
    if (panel != PanelArea::Panel::Templates) {
        m_templates.clear();
        m_grid.keepCurrentRow(false);
    }
    m_area->bringIntoView(panel);
}

QSize frmJobs::sizeHint() const
{
    return m_area->sizeHint();
}

// Without a message the window stays until the job in the panel is closed there.
void frmJobs::closeEvent(QCloseEvent* event)
{
    event->setAccepted(!m_area->isJobInView());
}

} // namespace workspace
