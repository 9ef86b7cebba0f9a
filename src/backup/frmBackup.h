// backup: copying the program's own folders to a place of the user's choice, at once or when the program is closed.
#pragma once

#include <QDialog>

#include <memory>

class QRadioButton;

namespace Ui {
class frmBackup;
}

namespace backup {

/// The settings of the backup, and the backup at once.
class frmBackup : public QDialog {
    Q_OBJECT

public:
    /// Makes the default folder if it is not there. Throws what reading the settings throws.
    explicit frmBackup(QWidget* parent);
    ~frmBackup() override;

private:
    void LoadBackupSettings();
    void cmdPath_Click();
    void cmdBackup_Click();
    void cmdSave_Click();
    void cmdClose_Click();
    QList<QRadioButton*> optFreq() const;
    qint32 readDays() const;
    bool isPathSet() const;

    std::unique_ptr<Ui::frmBackup> m_controls;
};

} // namespace backup
