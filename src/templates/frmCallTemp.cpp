#include "frmCallTemp.h"
#include "ui_frmCallTemp.h"

#include "retrieval.h"

#include "ui/eventGuard.h"
#include "ui/setUpForm.h"

namespace templates {

frmCallTemp::frmCallTemp(QWidget* parent) : QDialog(parent), m_controls(std::make_unique<Ui::frmCallTemp>())
{
    ui::setUpForm(*m_controls, *this);
    new Retrieval(*m_controls->txtTemplate, *m_controls->cmdGetTemp, *m_controls->cmdReset, *m_controls->Label1);
    ui::onEvent(m_controls->cmdClose, &QPushButton::clicked, this, &frmCallTemp::reject);
}

frmCallTemp::~frmCallTemp() = default;

} // namespace templates
