#pragma once

#include "ui/shell.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmAddJob;
}

namespace masterdata {

/// Opens a new job of a client: stores its row and hands it to the workspace.
class frmAddJob : public QDialog {
    Q_OBJECT

public:
    /// Throws what reading the clients throws.
    frmAddJob(ui::Shell& shell, QWidget* parent);
    ~frmAddJob() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void PopComboClient();
    void cmbAcct_Click();
    void cmbType_GotFocus();
    QWidget* findMissing() const;
    void cmdSave_Click();
    void storeAndOpen(const QDateTime& date, qint32 clientId, qint32 typeId);

    ui::Shell& m_shell;
    std::unique_ptr<Ui::frmAddJob> m_controls;
};

} // namespace masterdata
