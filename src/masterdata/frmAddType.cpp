#include "frmAddType.h"
#include "ui_frmAddType.h"

#include "store/connectionStrings.h"
#include "store/nameStatements.h"
#include "store/recordset.h"
#include "ui/accessKeys.h"
#include "ui/actionQry.h"
#include "ui/errorTrap.h"
#include "ui/eventGuard.h"
#include "ui/itemCombo.h"
#include "ui/messages.h"
#include "ui/refuse.h"
#include "values/numbers.h"
#include "values/units.h"

using namespace Qt::StringLiterals;

namespace masterdata {

namespace {

} // namespace

frmAddType::frmAddType(ui::Shell& shell, QWidget* parent)
    : QDialog(parent), m_shell(shell), m_controls(std::make_unique<Ui::frmAddType>())
{
    m_controls->setupUi(this);
    ui::onEvent(m_controls->cmdSave, &QPushButton::clicked, this, [this] { cmdSave_Click(); });
    ui::onEvent(m_controls->cmdDelete, &QPushButton::clicked, this, [this] { cmdDelete_Click(); });
    ui::onEvent(m_controls->cmdCancel, &QPushButton::clicked, this, [this] { reject(); });
    ui::setAccessKey(*m_controls->cmbAcct, u'L');
    ui::setAccessKey(*m_controls->txtFields_0, u'N');
    ui::setAccessKey(*m_controls->txtFields_1, u'R');
    ui::setAccessKey(*m_controls->cmbUnit, u'U');
    ui::setAccessKey(*m_controls->txtFields_2, u'H');
    ui::setAccessKey(*m_controls->cmdSave, u'S');
    ui::setAccessKey(*m_controls->cmdDelete, u'D');
    ui::setAccessKey(*m_controls->cmdCancel, u'C');

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

// A unit that the list does not hold must not turn silently into the one that happens to be selected.
void frmAddType::setUnit(const QString& unit)
{
    const int index = m_controls->cmbUnit->findText(unit);
    if (index < 0)
        throw values::RuntimeError(values::Fault::ReadOnlyText);
    m_controls->cmbUnit->setCurrentIndex(index);
}

// Other units keep whatever is in the box: only a line has characters.
bool frmAddType::charactersPerLineAreValid()
{
    const QString text = m_controls->txtFields_2->text();
    if (m_controls->cmbUnit->currentText() != values::lineUnit || values::isNumeric(text))
        return true;
    ui::refuse(text.isEmpty() ? u"Please enter how many characters constitute a line."_s
                              : u"Please enter a number ONLY."_s,
               *m_controls->txtFields_2);
    return false;
}

TypeEntry frmAddType::entry() const
{
    return {.clientId = ui::itemData(*m_controls->cmbAcct),
            .name = m_controls->txtFields_0->text(),
            .rate = m_controls->txtFields_1->text(),
            .charactersPerLine = m_controls->txtFields_2->text(),
            .unit = m_controls->cmbUnit->currentText()};
}

void frmAddType::cmdSave_Click()
{
    if (!charactersPerLineAreValid())
        return;
    if (!ui::selectedId(*m_controls->cmbAcct)) {
        ui::refuse(u"You must select from the list."_s, *m_controls->cmbAcct);
        return;
    }
    modMain::ActionQry(isNew() ? insertType(entry()) : updateType(m_id, entry()));
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
