#include "panelArea.h"

#include "gridView.h"
#include "jobPanel.h"
#include "listPanel.h"
#include "templatePanel.h"

#include "ui/twips.h"

#include <QEvent>
#include <QPushButton>

#include <algorithm>

namespace workspace {

namespace {

constexpr QSize margins(2 * ui::panelInView, 2 * ui::panelInView);

// A panel out of view is also out of reach of the Tab key.
void placePanel(QWidget& panel, bool isInView)
{
    panel.move(isInView ? ui::panelInView : ui::panelOutOfView, ui::panelInView);
    panel.setVisible(isInView);
}

bool isPanelInView(const QWidget& panel)
{
    return panel.x() == ui::panelInView;
}

} // namespace

PanelArea::PanelArea() : m_list(new ListPanel(this)), m_job(new JobPanel(this)), m_templates(new TemplatePanel(this))
{
    // Enter presses the button that has the focus, as in a dialog.
    for (QPushButton* button : findChildren<QPushButton*>())
        button->setAutoDefault(true);
    bringIntoView(Panel::List);
}

void PanelArea::bringIntoView(Panel panel)
{
    placePanel(*m_job, panel == Panel::Job);
    placePanel(*m_templates, panel == Panel::Templates);
    m_list->setVisible(panel != Panel::Job);
    m_list->grid().setVisible(panel != Panel::Job);
    arrange();
}

bool PanelArea::isJobInView() const
{
    return isPanelInView(*m_job);
}

bool PanelArea::areTemplatesInView() const
{
    return isPanelInView(*m_templates);
}

QSize PanelArea::sizeHint() const
{
    return m_job->sizeHint().expandedTo(m_list->sizeHint()) + margins;
}

// Narrower where the window is, and wider where it has room for long names; but its values stay near each other.
QSize PanelArea::fitJobPanel() const
{
    const int minimum = m_job->minimumSizeHint().width();
    const int maximum = std::max(minimum, ui::designedWidth(*this, 12600));
    return {std::clamp(width() - margins.width(), minimum, maximum), m_job->sizeHint().height()};
}

void PanelArea::arrange()
{
    const QSize jobSize = fitJobPanel();
    const QSize templateSize = m_templates->sizeHint().expandedTo({jobSize.width(), 0});
    const int listTop = areTemplatesInView() ? ui::panelInView + templateSize.height() : 0;
    const QSize jobMinimum(m_job->minimumSizeHint().width(), jobSize.height());
    setMinimumSize(isJobInView() ? jobMinimum + margins : m_list->minimumSizeHint() + QSize(0, listTop));
    m_list->setGeometry(rect().adjusted(0, listTop, 0, 0));
    m_job->resize(jobSize);
    m_templates->resize(templateSize);
}

bool PanelArea::event(QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
        arrange();
    return QWidget::event(event);
}

} // namespace workspace
