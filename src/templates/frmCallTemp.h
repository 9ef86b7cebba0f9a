#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class frmCallTemp;
}

namespace templates {

/// "Call Template": a key code in, the template's content in the clipboard.
class frmCallTemp : public QDialog {
    Q_OBJECT

public:
    explicit frmCallTemp(QWidget* parent);
    ~frmCallTemp() override;

private:
    std::unique_ptr<Ui::frmCallTemp> m_controls;
};

} // namespace templates
