#pragma once

#include "templateStatements.h"

#include <QGroupBox>

#include <array>
#include <memory>

namespace Ui {
class templatePanel;
}

namespace ui {
class EntryBox;
}

namespace workspace {

/// "Manage Templates": adds, changes and deletes the template records that the grid lists.
class TemplatePanel : public QGroupBox {
    Q_OBJECT

public:
    explicit TemplatePanel(QWidget* parent);
    ~TemplatePanel() override;

    /// Loads a template to edit. Throws what its reading throws.
    void edit(qint32 id);

    TemplateEntry entry() const;
    /// Whether name, key code and path are filled.
    bool isComplete() const;
    /// "Edit" while a template from the grid is edited, empty otherwise.
    const QString& TemplateEditState() const { return m_editState; }
    qint32 templateId() const { return m_id; }

    void clearBoxes();
    /// Ends the editing of a template, if there is one.
    void endEdit();

Q_SIGNALS:
    void saveClicked();
    void deleteClicked();
    void cancelClicked();

private:
    void connectEvents();
    void cmdPath_Click();

    std::unique_ptr<Ui::templatePanel> m_controls;
    std::array<ui::EntryBox*, 4> m_boxes;
    QString m_editState;
    qint32 m_id = 0;
};

} // namespace workspace
