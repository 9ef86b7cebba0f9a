#include "templatePanel.h"
#include "ui_templatePanel.h"

#include "store/connectionStrings.h"
#include "store/recordset.h"
#include "ui/accessibility.h"
#include "ui/actionQry.h"
#include "ui/errorTrap.h"
#include "ui/eventGuard.h"
#include "ui/messages.h"
#include "ui/refuse.h"
#include "ui/setUpForm.h"
#include "values/programFolder.h"

#include <QDir>
#include <QFileDialog>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace workspace {

namespace {

enum Box { Name, KeyCode, Description, Path };

/// The templates folder has a folder for each kind of template: this one and the file name are stored.
QString makeStoredPath(const QString& fileName)
{
    const QStringList parts = QDir::fromNativeSeparators(fileName).split(u'/');
    return u'\\' + parts.value(parts.size() - 2) + u'\\' + parts.last();
}

} // namespace

TemplatePanel::TemplatePanel(QWidget* parent) : QGroupBox(parent), m_controls(std::make_unique<Ui::frTemp>())
{
    ui::setUpForm(*m_controls, *this);
    m_boxes = {m_controls->txtTemp_0, m_controls->txtTemp_1, m_controls->txtTemp_2, m_controls->txtTemp_3};
    connectEvents();
    setEdited(std::nullopt);
}

TemplatePanel::~TemplatePanel() = default;

void TemplatePanel::connectEvents()
{
    ui::onEvent(m_controls->cmdPath, &QPushButton::clicked, this, &TemplatePanel::cmdPath_Click);
    ui::onEvent(m_controls->cmdTempReset, &QPushButton::clicked, this, &TemplatePanel::cmdTempReset_Click);
    ui::onEvent(m_controls->cmdTempSave, &QPushButton::clicked, this, &TemplatePanel::cmdTempSave_Click);
    ui::onEvent(m_controls->cmdDeleteTemp, &QPushButton::clicked, this, &TemplatePanel::cmdDeleteTemp_Click);
    connect(m_controls->cmdCancel, &QPushButton::clicked, this, &TemplatePanel::cancelClicked);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &TemplatePanel::cancelClicked);
}

void TemplatePanel::edit(qint32 id)
{
    clear();
    store::Connection connection(modMain::DBConnString);
    const store::Recordset found(connection, selectTemplate(id));
    QStringList texts;
    for (int i = 0; i < found.fieldCount(); ++i)
        texts << found.field(i).toText();
    for (std::size_t i = 0; i < m_boxes.size(); ++i)
        m_boxes[i]->setText(texts[static_cast<qsizetype>(i)]);
    setEdited(id);
}

QString TemplatePanel::TemplateEditState() const
{
    return m_id ? u"Edit"_s : QString();
}

// A single & in a title would make the letter behind it an access key, and a button with the same one would get none.
void TemplatePanel::setEdited(std::optional<qint32> id)
{
    m_id = id;
    QString title = u"Manage Templates"_s;
    if (id)
        title += u": %1 (%2)"_s.arg(m_boxes[Name]->text(), m_boxes[KeyCode]->text());
    setTitle(title.replace(u'&', u"&&"_s));
    m_controls->cmdDeleteTemp->setEnabled(id.has_value());
}

void TemplatePanel::endEdit()
{
    if (m_id)
        clear();
}

void TemplatePanel::clear()
{
    cmdTempReset_Click();
    setEdited(std::nullopt);
}

// Does not end the editing: saving still replaces the template of the current row.
void TemplatePanel::cmdTempReset_Click()
{
    for (ui::EntryBox* box : m_boxes)
        box->clear();
}

TemplateEntry TemplatePanel::readEntry() const
{
    return {m_boxes[Name]->text(), m_boxes[KeyCode]->text(), m_boxes[Description]->text(), m_boxes[Path]->text()};
}

void TemplatePanel::cmdTempSave_Click()
{
    if (QWidget* empty = ui::findFirstEmpty({m_boxes[Name], m_boxes[KeyCode], m_boxes[Path]}))
        return ui::refuse(u"Name, Key Code and Path must contain valid entrys."_s, *empty);
    const TemplateEntry typed = readEntry();
    modMain::ActionQry(m_id ? updateTemplate(*m_id, typed) : insertTemplate(typed));
    Q_EMIT templatesChanged();
    clear();
}

void TemplatePanel::cmdDeleteTemp_Click()
{
    if (!ui::confirm(u"Are you sure you want to delete this template?"_s))
        return;
    modMain::ActionQry(deleteTemplate(templateId()));
    Q_EMIT templatesChanged();
    clear();
}

void TemplatePanel::cmdPath_Click()
{
    ui::trap(u"cmdPath_Click"_s, u"Form frmJobs"_s, [&] {
        const QStringList filters{u"All Files (*.*)"_s, u"Text Files(*.txt)"_s, u"Word Files (*.doc)"_s};
        QFileDialog dialog(this, QString(), modMain::ProgramFolder + u"/templates/"_s);
        dialog.setObjectName(u"CommonDialog1"_s);
        dialog.setFileMode(QFileDialog::ExistingFile);
        dialog.setNameFilters(filters);
        dialog.selectNameFilter(filters.last());
        ui::completeNames(dialog);
        if (dialog.exec() == QDialog::Accepted)
            m_boxes[Path]->setText(makeStoredPath(dialog.selectedFiles().value(0)));
    });
}

} // namespace workspace
