#pragma once

#include "templateStatements.h"

#include <QGroupBox>

#include <array>
#include <memory>
#include <optional>

namespace Ui {
class frTemp;
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

    /// Loads a template to edit. Throws what its reading throws; then none is edited.
    void edit(qint32 id);
    /// "Edit" while a template from the grid is edited, empty otherwise.
    QString TemplateEditState() const;
    qint32 templateId() const { return m_id.value_or(0); }
    /// Ends the editing of a template, if there is one, and empties the boxes then.
    void endEdit();
    /// Empties the boxes and ends the editing.
    void clear();

Q_SIGNALS:
    /// A template was saved or deleted.
    void templatesChanged();
    void cancelClicked();

private:
    void connectEvents();
    void cmdTempSave_Click();
    void cmdDeleteTemp_Click();
    void cmdTempReset_Click();
    void cmdPath_Click();
    void setEdited(std::optional<qint32> id);
    TemplateEntry readEntry() const;

    std::unique_ptr<Ui::frTemp> m_controls;
    std::array<ui::EntryBox*, 4> m_boxes;
    std::optional<qint32> m_id; // of the template that is being edited
};

} // namespace workspace
