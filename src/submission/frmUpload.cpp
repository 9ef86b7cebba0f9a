#include "frmUpload.h"
#include "ui_frmUpload.h"

#include "statements.h"

#include "store/connectionStrings.h"
#include "store/recordset.h"
#include "ui/accessKeys.h"
#include "ui/actionQry.h"
#include "ui/eventGuard.h"
#include "ui/longWork.h"
#include "ui/refuse.h"
#include "values/dates.h"

using namespace Qt::StringLiterals;

namespace submission {

frmUpload::frmUpload(ui::Shell& shell, QWidget* parent)
    : QDialog(parent), m_shell(shell), m_controls(std::make_unique<Ui::frmUpload>())
{
    m_controls->setupUi(this);
    ui::setAccessKey(*m_controls->cmbDate, u'W');
    ui::setAccessKey(*m_controls->List1, u'J');
    ui::setAccessKey(*m_controls->txtDate, u'D');
    ui::setAccessKey(*m_controls->txtTime, u'T');
    ui::setAccessKey(*m_controls->cmdSave, u'S');
    ui::setAccessKey(*m_controls->cmdClose, u'C');
    m_controls->txtTime->setText(u"12:00"_s);
    PopDateCombo();
    ui::onEvent(m_controls->cmbDate, &QComboBox::activated, this, [this] { cmbDate_Click(); });
    ui::onEvent(m_controls->cmdSave, &QPushButton::clicked, this, [this] { cmdSave_Click(); });
    ui::onEvent(m_controls->cmdClose, &QPushButton::clicked, this, [this] { reject(); });
}

frmUpload::~frmUpload() = default;

void frmUpload::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    m_controls->cmbDate->setFocus();
}

void frmUpload::PopDateCombo()
{
    store::Connection connection(modMain::DBConnString);
    store::Recordset dates(connection, selectUnsubmittedDates());
    for (; !dates.atEnd(); dates.moveNext())
        m_controls->cmbDate->addItem(dates.field(0).toText());
    m_controls->cmbDate->setCurrentIndex(-1);
}

void frmUpload::cmbDate_Click()
{
    m_controls->List1->clear();
    const QString date = m_controls->cmbDate->currentText();
    store::Connection connection(modMain::DBConnString);
    store::Recordset references(connection, selectUnsubmittedReferences(date));
    for (; !references.atEnd(); references.moveNext())
        m_controls->List1->addItem(references.field(0).toText());
    m_controls->txtDate->setText(date);
}

void frmUpload::cmdSave_Click()
{
    if (QWidget* empty = ui::findFirstEmpty({m_controls->cmbDate, m_controls->txtDate, m_controls->txtTime}))
        return ui::refuse(u"Make sure a date is selected in the drop down box and both a date and time are entered."_s,
                          *empty);
    const std::optional<QDateTime> submitted = values::readDate(m_controls->txtDate->text());
    if (!submitted)
        return ui::refuse(u"Please insert a date in this field."_s, *m_controls->txtDate);
    if (markTicked() == m_controls->List1->count()) {
        accept();
        m_shell.workspace().ShowList(u"job"_s, *submitted, QString());
    } else {
        cmbDate_Click();
    }
}

// Entry by entry, each stored for itself: stopping in between leaves a part marked, which the list then shows.
int frmUpload::markTicked()
{
    QStringList ticked;
    for (int i = 0; i < m_controls->List1->count(); ++i) {
        if (const QListWidgetItem* entry = m_controls->List1->item(i); entry->isSelected())
            ticked << entry->text();
    }
    const ui::LongWork shown{.text = u"Marking jobs as submitted"_s, .steps = static_cast<int>(ticked.size())};
    return ui::doStepByStep(shown, [&](int i) {
        modMain::ActionQry(updateSubmitted(ticked[i], m_controls->txtDate->text(), m_controls->txtTime->text()));
    });
}

} // namespace submission
