#include "leftJobsBar.h"

#include "clearLayout.h"
#include "leftJobText.h"

#include "ui/errorTrap.h"
#include "ui/eventGuard.h"
#include "values/runtimeError.h"

#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace workspace {

namespace {

// Before the text, which may be long or take several lines.
QPushButton* addButton(QWidget& row, const QString& caption, const QString& name)
{
    auto* button = new QPushButton(caption, &row);
    button->setObjectName(name);
    button->setAutoDefault(true);
    qobject_cast<QHBoxLayout*>(row.layout())->insertWidget(0, button);
    return button;
}

} // namespace

LeftJobsBar::LeftJobsBar(QWidget* parent) : QWidget(parent), m_rows(new QVBoxLayout(this))
{
    m_rows->setContentsMargins(0, 0, 0, 0);
    hide();
}

void LeftJobsBar::setKeeper(JobKeeper& keeper)
{
    m_keeper = &keeper;
}

void LeftJobsBar::refresh()
{
    hide();
    clearLayout(*m_rows);
    addRows([this] {
        for (const LeftJob& left : m_keeper->leftJobs())
            addRows([&] { addJob(left); });
    });
    setVisible(m_rows->count() > 0);
}

template <typename Add>
void LeftJobsBar::addRows(Add add)
{
    try {
        add();
    } catch (const values::RuntimeError& error) {
        addRow(error.description());
    }
}

void LeftJobsBar::addJob(const LeftJob& left)
{
    const int position = m_rows->count();
    const std::optional<StoredJob> stored = readStoredJob(left.content.jobId);
    const Fate fate = findFate(left.content, stored);
    QWidget* row = addRow(leftJobText(left.content, fate));
    const QString element = u"_%1"_s.arg(position);
    QPushButton* button = nullptr;
    if (stored && fate == Fate::Unchanged) {
        button = addButton(*row, u"Open it"_s, u"cmdOpenLeft"_s + element);
        ui::onEvent(button, &QPushButton::clicked, this,
                    [this, id = left.content.jobId, job = *stored] { Q_EMIT openClicked(id, job); });
    } else {
        button = addButton(*row, u"Forget it"_s, u"cmdForgetLeft"_s + element);
        ui::onEvent(button, &QPushButton::clicked, this, [this, id = left.id] { cmdForgetLeft_Click(id); });
    }
    // There may be several such buttons, each of which belongs to the text beside it.
    button->setAccessibleName(button->text() + u": "_s + leftJobText(left.content, fate));
    setTabOrder(this, button);
}

QWidget* LeftJobsBar::addRow(const QString& text)
{
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    auto* label = new QLabel(text, row);
    label->setObjectName(u"lblLeft_%1"_s.arg(m_rows->count()));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    layout->addWidget(label, 1);
    m_rows->addWidget(row);
    return row;
}

void LeftJobsBar::cmdForgetLeft_Click(qint64 id)
{
    ui::trap(u"cmdForgetLeft_Click"_s, u"Form frmJobs"_s, [&] { m_keeper->forget(id); });
    refresh();
}

} // namespace workspace
