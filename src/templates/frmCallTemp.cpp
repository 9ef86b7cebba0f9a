#include "frmCallTemp.h"
#include "ui_frmCallTemp.h"

#include "retrieval.h"

#include "ui/accessKeys.h"
#include "ui/eventGuard.h"

namespace templates {

frmCallTemp::frmCallTemp(QWidget* parent) : QDialog(parent), m_controls(std::make_unique<Ui::frmCallTemp>())
{
    m_controls->setupUi(this);
    new Retrieval(*m_controls->txtTemplate, *m_controls->cmdGetTemp, *m_controls->cmdReset, *m_controls->Label1);
    ui::onEvent(m_controls->cmdClose, &QPushButton::clicked, this, [this] { reject(); });
    ui::setAccessKey(*m_controls->txtTemplate, u'K');
    ui::setAccessKey(*m_controls->cmdGetTemp, u'G');
    ui::setAccessKey(*m_controls->cmdReset, u'R');
    ui::setAccessKey(*m_controls->cmdClose, u'C');
}

frmCallTemp::~frmCallTemp() = default;

} // namespace templates
