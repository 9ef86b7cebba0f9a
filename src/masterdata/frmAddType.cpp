#include "frmAddType.h"
#include "ui_frmAddType.h"

#include "store/connectionStrings.h"
#include "store/nameStatements.h"
#include "store/recordset.h"
#include "ui/actionQry.h"
#include "ui/errorTrap.h"
#include "ui/eventGuard.h"
#include "ui/itemCombo.h"
#include "ui/messages.h"
#include "ui/refuse.h"
#include "ui/setUpForm.h"
#include "values/numbers.h"
#include "values/units.h"

using namespace Qt::StringLiterals;

namespace masterdata {

namespace {

} // namespace

frmAddType::frmAddType(ui::Shell& shell, QWidget* parent)
    : QDialog(parent), m_shell(shell), m_controls(std::make_unique<Ui::frmAddType>())
{
    ui::setUpForm(*m_controls, *this);
    ui::onEvent(m_controls->cmdSave, &QPushButton::clicked, this, &frmAddType::cmdSave_Click);
    ui::onEvent(m_controls->cmdDelete, &QPushButton::clicked, this, &frmAddType::cmdDelete_Click);
    ui::onEvent(m_controls->cmdCancel, &QPushButton::clicked, this, &frmAddType::reject);

    PopAcct();
    m_controls->cmbUnit->addItems({values::lineUnit, values::reportUnit, values::hourlyUnit, values::miscUnit});
    m_controls->cmbUnit->setCurrentIndex(0);
    m_controls->cmdDelete->setEnabled(false);
}

frmAddType::~frmAddType() = default;

bool frmAddType::isNew() const
{
    return m_controls->lblID->text() == u"..";
}

void frmAddType::PopAcct()
{
    ui::fillCombo(*m_controls->cmbAcct, store::selectClients());
}

void frmAddType::PopForm(qint16 id)
{
    ui::trap(u"PopForm"_s, u"Form frmAddType"_s, [&] {
        m_id = id;
        loadType(id);
        m_controls->cmdDelete->setEnabled(true);
        setWindowTitle(u"Edit Account/Job Type"_s);
    });
}

void frmAddType::loadType(qint16 id)
{
    store::Connection connection(modMain::DBConnString);
    const store::Recordset type(connection, selectType(id));
    if (type.atEnd())
        return;
    m_controls->lblID->setText(QString::number(id));
    ui::selectId(*m_controls->cmbAcct, type.field(0).toLong());
    m_controls->txtFields_0->setText(type.field(1).toText());
    m_controls->txtFields_1->setText(type.field(2).toText());
    setUnit(type.field(3).toText());
    m_controls->txtFields_2->setText(type.field(4).toText());
}

// Leaving the selected unit there instead of one that is not in the list would store a wrong unit.
void frmAddType::setUnit(const QString& unit)
{
    const int index = m_controls->cmbUnit->findText(unit);
    if (index < 0)
        throw values::RuntimeError(values::Fault::ReadOnlyText);
    m_controls->cmbUnit->setCurrentIndex(index);
}

// Only lines have a number of characters, so the text is not tested for other units.
bool frmAddType::checkCharactersPerLine()
{
    const QString text = m_controls->txtFields_2->text();
    if (m_controls->cmbUnit->currentText() != values::lineUnit || values::isNumeric(text))
        return true;
    ui::refuse(text.isEmpty() ? u"Please enter how many characters constitute a line."_s : ui::numberMessage,
               *m_controls->txtFields_2);
    return false;
}

TypeEntry frmAddType::readEntry() const
{
    return {.clientId = ui::itemData(*m_controls->cmbAcct),
            .name = m_controls->txtFields_0->text(),
            .rate = m_controls->txtFields_1->text(),
            .charactersPerLine = m_controls->txtFields_2->text(),
            .unit = m_controls->cmbUnit->currentText()};
}

void frmAddType::cmdSave_Click()
{
    if (!checkCharactersPerLine())
        return;
    if (!ui::selectedId(*m_controls->cmbAcct)) {
        ui::refuse(ui::selectionMessage, *m_controls->cmbAcct);
        return;
    }
    modMain::ActionQry(isNew() ? insertType(readEntry()) : updateType(m_id, readEntry()));
    unloadAndList();
}

void frmAddType::cmdDelete_Click()
{
    if (isNew())
        return;
    if (ui::confirm(u"Are you sure you want to delete this acct/type?"_s, u"Just a minute there!"_s))
        modMain::ActionQry(deleteType(m_controls->lblID->text()));
    unloadAndList();
}

void frmAddType::unloadAndList()
{
    accept();
    m_shell.workspace().ShowList(u"type"_s, QDateTime(), QString());
}

} // namespace masterdata
