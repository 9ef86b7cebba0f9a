#pragma once

#include "typeStatements.h"

#include "ui/shell.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmAddType;
}

namespace masterdata {

/// Adds an account/job type of a client, or, after PopForm(), edits or deletes one.
class frmAddType : public QDialog {
    Q_OBJECT

public:
    /// Throws what reading the clients throws.
    frmAddType(ui::Shell& shell, QWidget* parent);
    ~frmAddType() override;

    /// Loads a type to edit; reports its own errors.
    void PopForm(qint16 id);

private:
    bool isNew() const;
    void PopAcct();
    void loadType(qint16 id);
    void setUnit(const QString& unit);
    bool checkCharactersPerLine();
    TypeEntry readEntry() const;
    void cmdSave_Click();
    void cmdDelete_Click();
    void unloadAndList();

    ui::Shell& m_shell;
    std::unique_ptr<Ui::frmAddType> m_controls;
    qint16 m_id = 0;
};

} // namespace masterdata
