#pragma once

#include <QWidget>

namespace workspace {

class JobPanel;
class ListPanel;
class TemplatePanel;

/// The area that the three panels share: it shows the list, or the job instead of it, or the templates above it.
class PanelArea : public QWidget {
    Q_OBJECT

public:
    enum class Panel { List, Job, Templates };

    PanelArea();

    ListPanel& list() const { return *m_list; }
    JobPanel& job() const { return *m_job; }
    TemplatePanel& templates() const { return *m_templates; }

    /// Shows a panel. The job panel replaces the list; the template panel stands above it.
    void bringIntoView(Panel panel);
    bool isJobInView() const;
    bool areTemplatesInView() const;

    /// Large enough for the job panel and for the list.
    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;

private:
    QSize fitJobPanel() const;
    void arrange();

    ListPanel* m_list;
    JobPanel* m_job;
    TemplatePanel* m_templates;
};

} // namespace workspace
