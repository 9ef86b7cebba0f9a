#pragma once

#include <QWidget>

namespace workspace {

class JobPanel;
class ListPanel;
class TemplatePanel;

/// Where the three panels lie over each other: the list, the job in its place, or the templates above the list.
class PanelArea : public QWidget {
    Q_OBJECT

public:
    enum class Panel { List, Job, Templates };

    PanelArea();

    ListPanel& list() const { return *m_list; }
    JobPanel& job() const { return *m_job; }
    TemplatePanel& templates() const { return *m_templates; }

    /// Brings a panel into view and puts the others out of view.
    void bringIntoView(Panel panel);
    bool isJobInView() const;
    bool areTemplatesInView() const;

    /// As large as the job panel and the lists like to be.
    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;

private:
    void arrange();

    ListPanel* m_list;
    JobPanel* m_job;
    TemplatePanel* m_templates;
};

} // namespace workspace
