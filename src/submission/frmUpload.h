// submission: marking the jobs of a day as submitted, and the editor for single fields of the open job.
#pragma once

#include "ui/shell.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmUpload;
}

namespace submission {

/// Marks jobs of a day as submitted to their client.
class frmUpload : public QDialog {
    Q_OBJECT

public:
    /// Throws what reading the dates throws.
    frmUpload(ui::Shell& shell, QWidget* parent);
    ~frmUpload() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void PopDateCombo();
    void cmbDate_Click();
    void cmdSave_Click();
    int markTicked();

    ui::Shell& m_shell;
    std::unique_ptr<Ui::frmUpload> m_controls;
};

} // namespace submission
