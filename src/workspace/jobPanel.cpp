#include "jobPanel.h"
#include "ui_jobPanel.h"

#include "jobFigures.h"

#include "store/connectionStrings.h"
#include "store/recordset.h"
#include "templates/retrieval.h"
#include "ui/accessKeys.h"
#include "ui/eventGuard.h"
#include "values/clock.h"
#include "values/dates.h"
#include "values/money.h"
#include "values/numbers.h"

namespace workspace {

namespace {

// The value labels by their index.
enum Value { Date, Client, Type, Unit, Characters, Lines, Rate, Started, Length, Submitted, Reference };

QString startText(const store::Field& start)
{
    return values::toDate(start.toText()).toString(QStringLiteral("M/d/yyyy HH:mm"));
}

} // namespace

JobPanel::JobPanel(QWidget* parent) : QGroupBox(parent), m_controls(std::make_unique<Ui::jobPanel>()), m_tick(this)
{
    m_controls->setupUi(this);
    m_values = {m_controls->lblJob_0, m_controls->lblJob_1, m_controls->lblJob_2, m_controls->lblJob_3,
                m_controls->lblJob_4, m_controls->lblJob_5, m_controls->lblJob_6, m_controls->lblJob_7,
                m_controls->lblJob_8, m_controls->lblJob_9, m_controls->lblJob_10};
    m_retrieval = new templates::Retrieval(*m_controls->txtTemplate, *m_controls->cmdGetTemp, *m_controls->cmdResetTemp,
                                           *m_controls->Label10);
    setLook();
    connectEvents();
    setAccessKeys();
    m_tick.setObjectName(QStringLiteral("Timer1"));
    m_tick.setTimerType(Qt::PreciseTimer);
    m_tick.start(1000);
}

JobPanel::~JobPanel() = default;

void JobPanel::connectEvents()
{
    ui::onEvent(m_controls->cmdStart, &QPushButton::clicked, this, [this] { cmdStart_Click(); });
    ui::onEvent(m_controls->cmdStop, &QPushButton::clicked, this, [this] { cmdStop_Click(); });
    ui::onEvent(m_controls->cmdReset, &QPushButton::clicked, this, [this] { cmdReset_Click(); });
    ui::onEvent(&m_tick, &QTimer::timeout, this, [this] { Timer1_Timer(); });
    ui::onEvent(m_controls->txtChar, &ui::EntryBox::left, this, [this] { txtChar_LostFocus(); });
    connect(m_controls->cmdSave, &QPushButton::clicked, this, &JobPanel::saveClicked);
    connect(m_controls->cmdClose, &QPushButton::clicked, this, &JobPanel::closeClicked);
    connect(m_controls->cmdDeleteJob, &QPushButton::clicked, this, &JobPanel::deleteClicked);
    // What is calculated or belongs to the type is not clicked.
    for (const int index : {Date, Client, Type, Unit, Started, Length, Submitted, Reference}) {
        value(index).setClickable();
        connect(&value(index), &ui::ValueLabel::clicked, this, [this, index] { Q_EMIT valueClicked(index); });
    }
}

void JobPanel::setAccessKeys()
{
    ui::setAccessKey(*m_controls->cmdStart, u'A');
    ui::setAccessKey(*m_controls->cmdStop, u'P');
    ui::setAccessKey(*m_controls->cmdReset, u'E');
    ui::setAccessKey(*m_controls->txtChar, u'C');
    ui::setAccessKey(*m_controls->txtTemplate, u'K');
    ui::setAccessKey(*m_controls->cmdGetTemp, u'G');
    ui::setAccessKey(*m_controls->cmdResetTemp, u'B');
    ui::setAccessKey(*m_controls->cmdSave, u'S');
    ui::setAccessKey(*m_controls->cmdClose, u'L');
    ui::setAccessKey(*m_controls->cmdDeleteJob, u'J');
}

void JobPanel::LoadForm(qint32 jobId, const QString& reference, qint16 typeId, const QDateTime& jobDate)
{
    m_controls->lblJobID->setText(QString::number(jobId));
    m_jobId = jobId;
    m_reference = reference;
    m_typeId = typeId;
    m_jobDate = jobDate;
    store::Connection connection(modMain::DBConnString);
    loadCharactersPerLine(connection, typeId);
    loadValues(connection, jobId);
    CalcForm();
    m_controls->txtChar->setText(value(Characters).text());
    value(Reference).setText(m_reference);
}

void JobPanel::loadCharactersPerLine(store::Connection& connection, qint16 typeId)
{
    const bool isLine = store::Recordset(connection, countLineType(typeId)).field(0).toLong() > 0;
    m_controls->txtChar->setEnabled(isLine);
    if (!isLine)
        return;
    const store::Recordset type(connection, selectCharactersPerLine(typeId));
    m_controls->txtChar->setText(type.field(0).toText());
    m_charactersPerLine = type.field(0).toLong();
}

// A job not yet started or timed has no start or length; whatever the labels show then stays.
void JobPanel::loadValues(store::Connection& connection, qint32 jobId)
{
    const store::Recordset job(connection, selectJob(jobId));
    for (int i = 0; i < job.fieldCount(); ++i) {
        const store::Field field = job.field(i);
        const bool mayBeEmpty = i == Started || i == Length;
        if (mayBeEmpty && field.isNull())
            continue;
        value(i).setText(i == Started ? startText(field) : field.toText());
    }
}

void JobPanel::showLineControls(bool isLine)
{
    value(Characters).setVisible(isLine);
    value(Lines).setVisible(isLine);
}

void JobPanel::CalcForm()
{
    showLineControls(value(Unit).text() == lineUnit);
    JobFigures figures{value(Unit).text(), value(Lines).text(), value(Rate).text(), m_controls->lblJobTotal->text()};
    figures = calculated(figures);
    value(Lines).setText(figures.lines);
    value(Rate).setText(figures.rate);
    m_controls->lblJobTotal->setText(figures.total);
}

void JobPanel::changeType(qint32 typeId)
{
    store::Connection connection(modMain::DBConnString);
    const store::Recordset type(connection, selectType(typeId));
    value(Client).setText(type.field(0).toText());
    value(Type).setText(type.field(1).toText());
    value(Unit).setText(type.field(2).toText());
    value(Rate).setText(values::Money::fromDouble(type.field(3).toDouble()).currencyText());
    m_charactersPerLine = type.field(4).toLong();
    m_controls->lblJobTotal->clear();
    m_typeId = values::toInteger(typeId);
    const bool isLine = value(Unit).text() == lineUnit;
    m_controls->txtChar->setEnabled(isLine);
    showLineControls(isLine);
}

void JobPanel::ClearJob()
{
    for (ui::ValueLabel* label : m_values)
        label->clear();
    m_controls->lblJobTotal->clear();
}

qint32 JobPanel::GetAcctID(qint32 typeId)
{
    store::Connection connection(modMain::DBConnString);
    return store::Recordset(connection, selectClientOfType(typeId)).field(0).toLong();
}

void JobPanel::txtChar_LostFocus()
{
    if (value(Characters).isHidden() || !m_controls->txtChar->isEnabled())
        return;
    value(Characters).setText(m_controls->txtChar->text());
    m_lines = linesOf(m_controls->txtChar->text(), m_charactersPerLine);
    value(Lines).setText(QString::number(m_lines));
    CalcForm();
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
}

void JobPanel::cmdStop_Click()
{
    m_timer.stop();
    showTimer();
}

void JobPanel::cmdReset_Click()
{
    m_timer.reset();
    showTimer();
}

void JobPanel::Timer1_Timer()
{
    if (!m_timer.isRunning())
        return;
    m_timer.tick();
    showTimer();
}

void JobPanel::endTimingSaved()
{
    m_timer.saveJob();
    showTimer();
}

void JobPanel::endTimingClosed()
{
    m_timer.closeJob();
    showTimer();
}

void JobPanel::showTimer()
{
    m_controls->lblHr->setText(QString::number(m_timer.hours()));
    m_controls->lblMin->setText(QString::number(m_timer.minutes()));
    m_controls->lblSec->setText(QString::number(m_timer.seconds()));
    m_controls->cmdStart->setText(m_timer.isRunning() ? QStringLiteral("Pause") : QStringLiteral("Start"));
}

void JobPanel::clearTemplate()
{
    m_retrieval->clear();
}

void JobPanel::focusFirst()
{
    m_controls->cmdStart->setFocus();
}

} // namespace workspace
