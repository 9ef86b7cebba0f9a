// masterdata: the dialogs that add, edit and delete clients and account/job types, and the one that opens a new job.
#pragma once

#include "ui/shell.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmAddAcct;
}

namespace masterdata {

/// Adds a client, or, after PopForm(), renames or deletes one.
class frmAddAcct : public QDialog {
    Q_OBJECT

public:
    frmAddAcct(ui::Shell& shell, QWidget* parent);
    ~frmAddAcct() override;

    /// Loads a client to edit. When there is none with this id, only the window title changes.
    void PopForm(qint16 id);

protected:
    void showEvent(QShowEvent* event) override;

private:
    bool isNew() const;
    void cmdSave_Click();
    void cmdDelete_Click();
    void unloadAndList();

    ui::Shell& m_shell;
    std::unique_ptr<Ui::frmAddAcct> m_controls;
    qint16 m_id = 0;
};

} // namespace masterdata
