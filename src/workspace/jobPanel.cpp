#include "jobPanel.h"
#include "ui_jobPanel.h"

#include "jobFigures.h"

#include "submission/frmEditJob.h"
#include "templates/retrieval.h"
#include "ui/actionQry.h"
#include "ui/errorTrap.h"
#include "ui/eventGuard.h"
#include "ui/messages.h"
#include "ui/programEnd.h"
#include "ui/setUpForm.h"
#include "ui/showModally.h"
#include "ui/textRule.h"
#include "values/clock.h"
#include "values/dates.h"
#include "values/units.h"

using namespace Qt::StringLiterals;

namespace workspace {

JobPanel::JobPanel(QWidget* parent) : QGroupBox(parent), m_controls(std::make_unique<Ui::frJob>()), m_tick(this)
{
    ui::setUpForm(*m_controls, *this);
    m_values = {m_controls->lblJob_0, m_controls->lblJob_1, m_controls->lblJob_2, m_controls->lblJob_3,
                m_controls->lblJob_4, m_controls->lblJob_5, m_controls->lblJob_6, m_controls->lblJob_7,
                m_controls->lblJob_8, m_controls->lblJob_9, m_controls->lblJob_10};
    m_retrieval = new templates::Retrieval(*m_controls->txtTemplate, *m_controls->cmdGetTemp, *m_controls->cmdResetTemp,
                                           *m_controls->Label10);
    m_controls->txtChar->setValidator(new ui::TextRule(ui::removeGrouping, this));
    setLook();
    connectEvents();
    m_tick.setObjectName(u"Timer1"_s);
    m_tick.setTimerType(Qt::PreciseTimer);
    m_tick.start(1000);
}

JobPanel::~JobPanel() = default;

void JobPanel::connectEvents()
{
    ui::onEvent(m_controls->cmdStart, &QPushButton::clicked, this, &JobPanel::cmdStart_Click);
    ui::onEvent(m_controls->cmdStop, &QPushButton::clicked, this, &JobPanel::cmdStop_Click);
    ui::onEvent(m_controls->cmdReset, &QPushButton::clicked, this, &JobPanel::cmdReset_Click);
    ui::onEvent(&m_tick, &QTimer::timeout, this, &JobPanel::Timer1_Timer);
    connect(m_controls->txtChar, &QLineEdit::textEdited, this, &JobPanel::keep);
    connect(&ui::ProgramEnd::instance(), &ui::ProgramEnd::coming, this, &JobPanel::keep);
    ui::onEvent(m_controls->txtChar, &ui::EntryBox::left, this, &JobPanel::txtChar_LostFocus);
    ui::onEvent(m_controls->txtChar, &ui::EntryBox::returnPressed, this, &JobPanel::txtChar_LostFocus);
    ui::onEvent(m_controls->cmdSave, &QPushButton::clicked, this, &JobPanel::cmdSave_Click);
    ui::onEvent(m_controls->cmdClose, &QPushButton::clicked, this, &JobPanel::cmdClose_Click);
    ui::onEvent(m_controls->cmdDeleteJob, &QPushButton::clicked, this, &JobPanel::cmdDeleteJob_Click);
    // The other values are calculated or belong to the type, so they cannot be edited.
    for (const int index : {Date, Client, Type, Unit, Started, Length, Submitted, Reference}) {
        value(index).setClickable();
        ui::onEvent(&value(index), &ui::ValueLabel::clicked, this, [this, index] { lblJob_Click(index); });
    }
}

bool JobPanel::isLine() const
{
    return value(Unit).text() == values::lineUnit;
}

void JobPanel::showLineControls()
{
    for (QLabel* label : std::initializer_list<QLabel*>{&value(Characters), &value(Lines), m_controls->lblHeading_4,
                                                        m_controls->lblHeading_5})
        label->setVisible(isLine());
}

// Each result is shown before the next one is calculated, because the next one may throw. A job by the hour has no
// calculation: its total is only formatted.
void JobPanel::CalcForm()
{
    QLabel& total = *m_controls->lblJobTotal;
    showLineControls();
    if (isLine())
        total.setText(calculateTotal(value(Rate).text(), value(Lines).text()));
    if (value(Unit).text() == values::reportUnit) {
        value(Lines).setText(u"1"_s);
        total.setText(value(Rate).text());
    }
    value(Rate).setText(formatRate(value(Rate).text()));
    total.setText(formatTotal(total.text()));
}

void JobPanel::ClearJob()
{
    for (ui::ValueLabel* label : m_values)
        label->clear();
    m_controls->lblJobTotal->clear();
}

void JobPanel::txtChar_LostFocus()
{
    if (value(Characters).isHidden() || !m_controls->txtChar->isEnabled())
        return;
    value(Characters).setText(m_controls->txtChar->text());
    value(Lines).setText(QString::number(calculateLines(m_controls->txtChar->text(), m_charactersPerLine)));
    CalcForm();
    keep();
}

// Client and unit belong to the type, so a click on any of the three lets the person choose the type.
void JobPanel::lblJob_Click(int index)
{
    ui::trap(u"lblJob_Click"_s, u"Form frmJobs"_s, [&] {
        const bool isType = index >= Client && index <= Unit;
        qint32 chosenType = 0;
        submission::frmEditJob form(this);
        connect(&form, &submission::frmEditJob::captionApplied, this, [this](int label, const QString& caption) {
            value(label).setText(caption);
            keep();
        });
        connect(&form, &submission::frmEditJob::typeApplied, this, [&](qint32 typeId) { chosenType = typeId; });
        form.PopForm(static_cast<qint16>(isType ? Type : index), value(index).text());
        ui::showModally(form);
        if (chosenType != 0 && chosenType != m_typeId)
            changeType(chosenType);
    });
    keep();
}

// When loading the job failed, there is no row to update.
void JobPanel::cmdSave_Click()
{
    endKeeping(m_jobId == 0 || modMain::ActionQry(updateJob(takeEntry())));
    Q_EMIT ended(m_jobDate);
    m_timer.saveJob();
    clear();
}

void JobPanel::cmdClose_Click()
{
    endKeeping(true);
    m_timer.closeJob();
    Q_EMIT ended(m_jobDate);
    clear();
}

void JobPanel::cmdDeleteJob_Click()
{
    if (!ui::confirm(u"Are you sure you want to delete this job?"_s))
        return;
    modMain::ActionQry(deleteJob(m_jobId));
    endKeeping(true);
    m_timer.closeJob();
    Q_EMIT ended(QDateTime());
    clear();
}

void JobPanel::clear()
{
    showTimer();
    m_retrieval->clear();
    ClearJob();
}

JobEntry JobPanel::takeEntry()
{
    if (m_timer.wasUsed())
        value(Length).setText(m_timer.lengthText());
    const qint32 clientId = GetAcctID(m_typeId);
    if (value(Started).text() == u"..")
        value(Started).setText(values::dateText(values::now()));
    return {.id = m_jobId,
            .date = value(Date).text(),
            .clientId = clientId,
            .typeId = m_typeId,
            .reference = value(Reference).text(),
            .start = value(Started).text(),
            .characters = value(Characters).text(),
            .lines = value(Lines).text(),
            .length = value(Length).text(),
            .submitted = value(Submitted).text()};
}

void JobPanel::cmdStart_Click()
{
    m_timer.start();
    showTimer();
    value(Started).setText(values::dateText(m_timer.startTime()));
    keep();
}

void JobPanel::cmdStop_Click()
{
    m_timer.stop();
    showTimer();
    keep();
}

void JobPanel::cmdReset_Click()
{
    m_timer.reset();
    showTimer();
    keep();
}

void JobPanel::Timer1_Timer()
{
    if (!m_timer.isRunning())
        return;
    m_timer.tick();
    showTimer();
    if (m_timer.seconds() % 10 == 0)
        keep();
}

void JobPanel::showTimer()
{
    m_controls->lblHr->setText(QString::number(m_timer.hours()));
    m_controls->lblMin->setText(QString::number(m_timer.minutes()));
    m_controls->lblSec->setText(QString::number(m_timer.seconds()));
    m_controls->cmdStart->setText(m_timer.isRunning() ? u"Pause"_s : u"Start"_s);
    showRunning(m_timer.isRunning());
}

} // namespace workspace
