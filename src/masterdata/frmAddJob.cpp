#include "frmAddJob.h"
#include "ui_frmAddJob.h"

#include "jobStatements.h"

#include "store/connectionStrings.h"
#include "store/recordset.h"
#include "ui/accessKeys.h"
#include "ui/actionQry.h"
#include "ui/eventGuard.h"
#include "ui/itemCombo.h"
#include "ui/refuse.h"
#include "values/clock.h"
#include "values/dates.h"

#include <QFocusEvent>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace masterdata {

frmAddJob::frmAddJob(ui::Shell& shell, QWidget* parent)
    : QDialog(parent), m_shell(shell), m_controls(std::make_unique<Ui::frmAddJob>())
{
    m_controls->setupUi(this);
    ui::onEvent(m_controls->cmbAcct, &QComboBox::currentIndexChanged, this, [this] { cmbAcct_Click(); });
    ui::onEvent(m_controls->cmdSave, &QPushButton::clicked, this, [this] { cmdSave_Click(); });
    ui::onEvent(m_controls->cmdClose, &QPushButton::clicked, this, [this] { reject(); });
    m_controls->cmbType->installEventFilter(this);
    ui::setAccessKey(*m_controls->txtFields_0, u'D');
    ui::setAccessKey(*m_controls->cmbAcct, u'C');
    ui::setAccessKey(*m_controls->cmbType, u'A');
    ui::setAccessKey(*m_controls->txtFields_1, u'R');
    ui::setAccessKey(*m_controls->cmdSave, u'S');
    ui::setAccessKey(*m_controls->cmdClose, u'L');

    m_controls->txtFields_0->setText(values::dateText(values::dateTime(values::today())));
    PopComboClient();
}

frmAddJob::~frmAddJob() = default;

void frmAddJob::PopComboClient()
{
    const QSignalBlocker noChoiceYet(m_controls->cmbAcct);
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
        // A message box that closes gives the focus back, which is no new arrival.
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

// Where there is no type to choose, another client is what is missing.
QWidget* frmAddJob::findFirstEmpty() const
{
    QWidget* empty = ui::findFirstEmpty(
        {m_controls->txtFields_0, m_controls->cmbAcct, m_controls->cmbType, m_controls->txtFields_1});
    return empty == m_controls->cmbType && m_controls->cmbType->count() == 0 ? m_controls->cmbAcct : empty;
}

void frmAddJob::cmdSave_Click()
{
    if (QWidget* empty = findFirstEmpty())
        return ui::refuse(u"Please make sure you have entered all information."_s, *empty);
    const std::optional<QDateTime> date = values::readDate(m_controls->txtFields_0->text());
    if (!date)
        return ui::refuse(u"Please insert a date in this field."_s, *m_controls->txtFields_0);
    for (QComboBox* combo : {m_controls->cmbAcct, m_controls->cmbType}) {
        if (!ui::selectedId(*combo))
            return ui::refuse(u"You must select from the list."_s, *combo);
    }
    storeAndOpen(*date, ui::itemData(*m_controls->cmbAcct), ui::itemData(*m_controls->cmbType));
}

// When the insert is refused, the newest job that is there is opened all the same.
// With none there is nothing to open, and the form stays for another try.
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
