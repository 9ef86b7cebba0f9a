#include "templatePanel.h"
#include "ui_templatePanel.h"

#include "store/connectionStrings.h"
#include "store/recordset.h"
#include "ui/accessKeys.h"
#include "ui/errorTrap.h"
#include "ui/eventGuard.h"

#include <QDir>
#include <QFileDialog>

namespace workspace {

namespace {

enum Box { Name, KeyCode, Description, Path };

/// A template lies in a folder of its own kind: what is stored is that folder and the file.
QString storedPath(const QString& fileName)
{
    const QStringList parts = QDir::fromNativeSeparators(fileName).split(u'/');
    return u'\\' + parts.value(parts.size() - 2) + u'\\' + parts.last();
}

} // namespace

TemplatePanel::TemplatePanel(QWidget* parent) : QGroupBox(parent), m_controls(std::make_unique<Ui::templatePanel>())
{
    m_controls->setupUi(this);
    m_boxes = {m_controls->txtTemp_0, m_controls->txtTemp_1, m_controls->txtTemp_2, m_controls->txtTemp_3};
    connectEvents();
    ui::setAccessKey(*m_controls->txtTemp_0, u'N');
    ui::setAccessKey(*m_controls->txtTemp_1, u'K');
    ui::setAccessKey(*m_controls->txtTemp_2, u'E');
    ui::setAccessKey(*m_controls->txtTemp_3, u'A');
    ui::setAccessKey(*m_controls->cmdPath, u'P');
    ui::setAccessKey(*m_controls->cmdTempSave, u'S');
    ui::setAccessKey(*m_controls->cmdTempReset, u'U');
    ui::setAccessKey(*m_controls->cmdDeleteTemp, u'L');
    ui::setAccessKey(*m_controls->cmdCancel, u'C');
}

TemplatePanel::~TemplatePanel() = default;

void TemplatePanel::connectEvents()
{
    ui::onEvent(m_controls->cmdPath, &QPushButton::clicked, this, [this] { cmdPath_Click(); });
    // The edit state stays: what is typed next still replaces the template of the current row.
    ui::onEvent(m_controls->cmdTempReset, &QPushButton::clicked, this, [this] { clearBoxes(); });
    connect(m_controls->cmdTempSave, &QPushButton::clicked, this, &TemplatePanel::saveClicked);
    connect(m_controls->cmdDeleteTemp, &QPushButton::clicked, this, &TemplatePanel::deleteClicked);
    connect(m_controls->cmdCancel, &QPushButton::clicked, this, &TemplatePanel::cancelClicked);
}

void TemplatePanel::edit(qint32 id)
{
    m_editState = QStringLiteral("Edit");
    m_id = id;
    store::Connection connection(modMain::DBConnString);
    const store::Recordset found(connection, selectTemplate(id));
    for (std::size_t i = 0; i < m_boxes.size(); ++i)
        m_boxes[i]->setText(found.field(static_cast<int>(i)).toText());
}

TemplateEntry TemplatePanel::entry() const
{
    return {m_boxes[Name]->text(), m_boxes[KeyCode]->text(), m_boxes[Description]->text(), m_boxes[Path]->text()};
}

bool TemplatePanel::isComplete() const
{
    return !m_boxes[Name]->text().isEmpty() && !m_boxes[KeyCode]->text().isEmpty() && !m_boxes[Path]->text().isEmpty();
}

void TemplatePanel::clearBoxes()
{
    for (ui::EntryBox* box : m_boxes)
        box->clear();
}

void TemplatePanel::endEdit()
{
    m_editState.clear();
}

void TemplatePanel::cmdPath_Click()
{
    ui::trap(QStringLiteral("cmdPath_Click"), QStringLiteral("Form frmJobs"), [&] {
        const QStringList filters{QStringLiteral("All Files (*.*)"), QStringLiteral("Text Files(*.txt)"),
                                  QStringLiteral("Word Files (*.doc)")};
        QFileDialog dialog(this, QString(), modMain::ProgramFolder + QStringLiteral("/templates/"));
        dialog.setObjectName(QStringLiteral("CommonDialog1"));
        dialog.setFileMode(QFileDialog::ExistingFile);
        dialog.setNameFilters(filters);
        dialog.selectNameFilter(filters.last());
        if (dialog.exec() == QDialog::Accepted)
            m_boxes[Path]->setText(storedPath(dialog.selectedFiles().value(0)));
    });
}

} // namespace workspace
