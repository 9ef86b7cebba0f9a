#include "frmBackup.h"
#include "ui_frmBackup.h"

#include "backUp.h"
#include "copyError.h"
#include "myDocuments.h"
#include "statements.h"

#include "store/command.h"
#include "store/connectionStrings.h"
#include "store/recordset.h"
#include "ui/accessibility.h"
#include "ui/eventGuard.h"
#include "ui/messages.h"
#include "ui/optionGroup.h"
#include "ui/setUpForm.h"
#include "values/clock.h"

#include <QDir>
#include <QFileDialog>

namespace backup {

using namespace Qt::StringLiterals;

namespace {

const QString advice = u"It is recommended that you use the default path which copies this program's data,\r\n"
                       "templates and reports folders to your 'My Documents/PWR Backup' folder and \r\n"
                       "backup ALL of your important files at one time. Click 'Yes' to use the \r\n"
                       "default path or 'No' to select another location.  NOTE: This program will\r\n"
                       "not copy directly to a CD Drive."_s;

// The tag of an interval's button is its number of days.
QString readTag(const QRadioButton& button)
{
    return button.property("tag").toString();
}

void makeDefaultFolder()
{
    const std::filesystem::path folder = QFile::encodeName(defaultFolder()).toStdString();
    if (folder.empty()) {
        ui::showMessage(u"There is no documents folder, and so no default folder for the backup. Press Change path and "
                        "choose another one."_s);
        return;
    }
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error)
        throw copyError(error.value(), folder);
}

void executeOnSettings(const QString& statement)
{
    store::Connection connection(modMain::BUConnString);
    store::Command(connection, statement).execute();
}

} // namespace

frmBackup::frmBackup(QWidget* parent) : QDialog(parent), m_controls(std::make_unique<Ui::frmBackup>())
{
    ui::setUpForm(*m_controls, *this);
    makeDefaultFolder();
    LoadBackupSettings();
    ui::setTabStopAtChosen(*m_controls->intervals);
    ui::onEvent(m_controls->cmdPath, &QPushButton::clicked, this, &frmBackup::cmdPath_Click);
    ui::onEvent(m_controls->cmdBackup, &QPushButton::clicked, this, &frmBackup::cmdBackup_Click);
    ui::onEvent(m_controls->cmdSave, &QPushButton::clicked, this, &frmBackup::cmdSave_Click);
    ui::onEvent(m_controls->cmdClose, &QPushButton::clicked, this, &frmBackup::cmdClose_Click);
}

frmBackup::~frmBackup() = default;

QList<QRadioButton*> frmBackup::optFreq() const
{
    return {m_controls->optFreq_0, m_controls->optFreq_1, m_controls->optFreq_2};
}

void frmBackup::LoadBackupSettings()
{
    store::Connection connection(modMain::BUConnString);
    const store::Recordset row(connection, selectSettings());
    for (QRadioButton* button : optFreq())
        button->setChecked(!row.field(0).isNull() && readTag(*button) == row.field(0).toText());
    m_controls->lblBU->setText(row.field(1).toText());
    m_controls->lblPath->setText(row.field(2).toText());
    m_controls->chkActive->setChecked(!row.field(3).isNull() && row.field(3).toLong() != 0);
}

qint32 frmBackup::readDays() const
{
    for (const QRadioButton* button : optFreq()) {
        if (button->isChecked())
            return readTag(*button).toInt();
    }
    return 0;
}

bool frmBackup::isPathSet() const
{
    return m_controls->lblPath->text() != u"Not set"_s;
}

void frmBackup::cmdPath_Click()
{
    if (ui::confirm(advice, u"Wait a minute!"_s))
        return;
    QFileDialog objBD(this, u"Browse to drive or folder"_s, defaultFolder());
    objBD.setObjectName(u"objBD"_s);
    objBD.setFileMode(QFileDialog::Directory);
    objBD.setOption(QFileDialog::ShowDirsOnly);
    objBD.setLabelText(QFileDialog::LookIn, u"Select drive or folder you wish to backup to."_s);
    ui::completeNames(objBD);
    if (objBD.exec() == QDialog::Accepted)
        m_controls->lblPath->setText(QDir::toNativeSeparators(objBD.selectedFiles().constFirst()));
}

void frmBackup::cmdBackup_Click()
{
    store::Connection connection(modMain::BUConnString);
    // Without a date in the settings this throws, before anything is copied.
    store::Recordset(connection, selectLastBackup()).field(1).toDate();
    QString path = m_controls->lblPath->text();
    if (modMain::BackUpFolders(path)) {
        store::Command(connection, updateLastBackup(values::today())).execute();
        ui::showMessage(u"Backup was successful."_s);
    } else {
        ui::showMessage(u"Backup failed."_s);
    }
    accept();
}

void frmBackup::cmdSave_Click()
{
    if (!isPathSet()) {
        ui::showMessage(u"You select a location to backup to."_s);
        return;
    }
    executeOnSettings(updateSettings(readDays(), m_controls->lblPath->text(), m_controls->chkActive->isChecked()));
    accept();
}

void frmBackup::cmdClose_Click()
{
    const QString folder = defaultFolder();
    if (!isPathSet() && !folder.isEmpty())
        executeOnSettings(updatePath(folder));
    reject();
}

} // namespace backup
