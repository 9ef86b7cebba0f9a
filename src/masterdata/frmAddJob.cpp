#include "frmAddJob.h"
#include "ui_frmAddJob.h"

#include "jobStatements.h"

#include "store/connectionStrings.h"
#include "store/recordset.h"
#include "ui/actionQry.h"
#include "ui/eventGuard.h"
#include "ui/itemCombo.h"
#include "ui/refuse.h"
#include "ui/setUpForm.h"
#include "values/clock.h"
#include "values/dates.h"

#include <QFocusEvent>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace masterdata {

frmAddJob::frmAddJob(ui::Shell& shell, QWidget* parent)
    : QDialog(parent), m_shell(shell), m_controls(std::make_unique<Ui::frmAddJob>())
{
    ui::setUpForm(*m_controls, *this);
    ui::onEvent(m_controls->cmbAcct, &QComboBox::currentIndexChanged, this, &frmAddJob::cmbAcct_Click);
    ui::onEvent(m_controls->cmdSave, &QPushButton::clicked, this, &frmAddJob::cmdSave_Click);
    ui::onEvent(m_controls->cmdClose, &QPushButton::clicked, this, &frmAddJob::reject);
    m_controls->cmbType->installEventFilter(this);

    m_controls->txtFields_0->setText(values::dateText(values::dateTime(values::today())));
    PopComboClient();
}

frmAddJob::~frmAddJob() = default;

void frmAddJob::PopComboClient()
{
    const QSignalBlocker blocker(m_controls->cmbAcct);
    ui::fillCombo(*m_controls->cmbAcct, selectClientsByName());
}

void frmAddJob::cmbAcct_Click()
{
    if (m_controls->cmbAcct->currentIndex() >= 0)
        ui::fillCombo(*m_controls->cmbType, selectTypesOf(ui::itemData(*m_controls->cmbAcct)));
}

bool frmAddJob::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_controls->cmbType && event->type() == QEvent::FocusIn) {
        // A message box that closes gives the focus back: to ask again then would never end.
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            QTimer::singleShot(0, this, [this] { ui::guard([this] { cmbType_GotFocus(); }); });
    }
    return QDialog::eventFilter(watched, event);
}

void frmAddJob::cmbType_GotFocus()
{
    if (m_controls->cmbType->count() == 0 && m_controls->cmbType->hasFocus())
        ui::refuse(u"You must select a client first to populate this list."_s, *m_controls->cmbAcct);
}

// A client without types has none to choose: another client must be chosen.
QWidget* frmAddJob::findMissing() const
{
    QWidget* empty = ui::findFirstEmpty(
        {m_controls->txtFields_0, m_controls->cmbAcct, m_controls->cmbType, m_controls->txtFields_1});
    return empty == m_controls->cmbType && m_controls->cmbType->count() == 0 ? m_controls->cmbAcct : empty;
}

void frmAddJob::cmdSave_Click()
{
    if (QWidget* empty = findMissing())
        return ui::refuse(u"Please make sure you have entered all information."_s, *empty);
    const std::optional<QDateTime> date = values::readDate(m_controls->txtFields_0->text());
    if (!date)
        return ui::refuse(ui::dateMessage, *m_controls->txtFields_0);
    for (QComboBox* combo : {m_controls->cmbAcct, m_controls->cmbType}) {
        if (!ui::selectedId(*combo))
            return ui::refuse(ui::selectionMessage, *combo);
    }
    storeAndOpen(*date, ui::itemData(*m_controls->cmbAcct), ui::itemData(*m_controls->cmbType));
}

// When the insert fails, the newest stored job is opened instead. When no job is stored at all, the form stays open.
void frmAddJob::storeAndOpen(const QDateTime& date, qint32 clientId, qint32 typeId)
{
    modMain::ActionQry(insertJob(m_controls->txtFields_0->text(), clientId, typeId, m_controls->txtFields_1->text()));
    qint32 jobId = 0;
    qint16 storedTypeId = 0;
    QString reference;
    {
        store::Connection connection(modMain::DBConnString);
        const store::Field newest = store::Recordset(connection, selectNewestJobId()).field(0);
        if (newest.isNull())
            return;
        jobId = newest.toLong();
        const store::Recordset job(connection, selectNewJob(jobId));
        storedTypeId = job.field(0).toInteger();
        reference = job.field(1).toText();
    }
    accept();
    m_shell.workspace().OpenJob(jobId, reference, storedTypeId, date);
}

} // namespace masterdata
