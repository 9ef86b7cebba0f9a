#include "frmUpload.h"
#include "ui_frmUpload.h"

#include "statements.h"

#include "store/connectionStrings.h"
#include "store/recordset.h"
#include "ui/actionQry.h"
#include "ui/eventGuard.h"
#include "ui/longWork.h"
#include "ui/refuse.h"
#include "ui/setUpForm.h"
#include "values/dates.h"

using namespace Qt::StringLiterals;

namespace submission {

namespace {

QStringList readTexts(const QString& statement)
{
    store::Connection connection(modMain::DBConnString);
    store::Recordset rows(connection, statement);
    QStringList texts;
    for (; !rows.atEnd(); rows.moveNext())
        texts << rows.field(0).toText();
    return texts;
}

} // namespace

frmUpload::frmUpload(ui::Shell& shell, QWidget* parent)
    : QDialog(parent), m_shell(shell), m_controls(std::make_unique<Ui::frmUpload>())
{
    ui::setUpForm(*m_controls, *this);
    m_controls->txtTime->setText(u"12:00"_s);
    PopDateCombo();
    ui::onEvent(m_controls->cmbDate, &QComboBox::activated, this, &frmUpload::cmbDate_Click);
    ui::onEvent(m_controls->cmdSave, &QPushButton::clicked, this, &frmUpload::cmdSave_Click);
    ui::onEvent(m_controls->cmdClose, &QPushButton::clicked, this, &frmUpload::reject);
}

frmUpload::~frmUpload() = default;

void frmUpload::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    m_controls->cmbDate->setFocus();
}

void frmUpload::PopDateCombo()
{
    m_controls->cmbDate->addItems(readTexts(selectUnsubmittedDates()));
    m_controls->cmbDate->setCurrentIndex(-1);
}

void frmUpload::cmbDate_Click()
{
    const QString date = m_controls->cmbDate->currentText();
    m_controls->List1->clear();
    m_controls->List1->addItems(readTexts(selectUnsubmittedReferences(date)));
    m_controls->txtDate->setText(date);
}

void frmUpload::cmdSave_Click()
{
    if (QWidget* empty = ui::findFirstEmpty({m_controls->cmbDate, m_controls->txtDate, m_controls->txtTime}))
        return ui::refuse(u"Make sure a date is selected in the drop down box and both a date and time are entered."_s,
                          *empty);
    const std::optional<QDateTime> submitted = values::readDate(m_controls->txtDate->text());
    if (!submitted)
        return ui::refuse(ui::dateMessage, *m_controls->txtDate);
    if (markTicked() == m_controls->List1->count()) {
        accept();
        m_shell.workspace().ShowList(u"job"_s, *submitted, QString());
    } else {
        cmbDate_Click();
    }
}

// Each entry is stored on its own: when the person cancels, those before stay marked, and the list shows the rest.
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
