#include "frmAddAcct.h"
#include "ui_frmAddAcct.h"

#include "clientStatements.h"

#include "store/connectionStrings.h"
#include "store/recordset.h"
#include "ui/actionQry.h"
#include "ui/eventGuard.h"
#include "ui/messages.h"
#include "ui/setUpForm.h"

using namespace Qt::StringLiterals;

namespace masterdata {

frmAddAcct::frmAddAcct(ui::Shell& shell, QWidget* parent)
    : QDialog(parent), m_shell(shell), m_controls(std::make_unique<Ui::frmAddAcct>())
{
    ui::setUpForm(*m_controls, *this);
    ui::onEvent(m_controls->cmdSave, &QPushButton::clicked, this, &frmAddAcct::cmdSave_Click);
    ui::onEvent(m_controls->cmdDelete, &QPushButton::clicked, this, &frmAddAcct::cmdDelete_Click);
    ui::onEvent(m_controls->cmdCancel, &QPushButton::clicked, this, &frmAddAcct::reject);
}

frmAddAcct::~frmAddAcct() = default;

bool frmAddAcct::isNew() const
{
    return m_controls->lblID->text() == u"..";
}

void frmAddAcct::PopForm(qint16 id)
{
    m_id = id;
    store::Connection connection(modMain::DBConnString);
    const store::Recordset client(connection, selectClient(id));
    if (!client.atEnd()) {
        m_controls->lblID->setText(QString::number(id));
        m_controls->txtName->setText(client.field(0).toText());
    }
    setWindowTitle(u"Edit Client"_s);
}

void frmAddAcct::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (isNew())
        m_controls->cmdDelete->setEnabled(false);
}

void frmAddAcct::cmdSave_Click()
{
    const QString name = m_controls->txtName->text();
    modMain::ActionQry(isNew() ? insertClient(name) : updateClient(m_id, name));
    unloadAndList();
}

void frmAddAcct::cmdDelete_Click()
{
    if (isNew())
        return;
    if (ui::confirm(u"Are you sure you want to delete this client?"_s, u"Just a minute there!"_s))
        modMain::ActionQry(deleteClient(m_controls->lblID->text()));
    unloadAndList();
}

void frmAddAcct::unloadAndList()
{
    accept();
    m_shell.workspace().ShowList(u"accts"_s, QDateTime(), QString());
}

} // namespace masterdata
