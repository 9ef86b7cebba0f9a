// about: what the program says of itself: the About box, and the help file with the viewer that shows it.
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class frmAbout;
}

namespace about {

/// Title, version, description and legal notice of this release, and a way to look at the system it runs on.
class frmAbout : public QDialog {
    Q_OBJECT

public:
    explicit frmAbout(QWidget* parent);
    ~frmAbout() override;

protected:
    bool event(QEvent* event) override;

private:
    void Form_Load();
    void showIcon();
    void StartSysInfo();

    std::unique_ptr<Ui::frmAbout> m_controls;
};

} // namespace about
