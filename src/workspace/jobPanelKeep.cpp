// The part of the job panel that keeps what it holds, and takes up what was left of a job.
#include "jobPanel.h"
#include "ui_jobPanel.h"

#include "clearLayout.h"
#include "leftJobText.h"

#include "ui/eventGuard.h"

using namespace Qt::StringLiterals;

namespace workspace {

PanelContent JobPanel::takeContent(const StoredJob& stored) const
{
    QStringList captions;
    for (const ui::ValueLabel* label : m_values)
        captions << label->text();
    return {.jobId = m_jobId,
            .typeId = m_typeId,
            .stored = stored.texts,
            .captions = captions,
            .total = m_controls->lblJobTotal->text(),
            .characters = m_controls->txtChar->text(),
            .charactersPerLine = m_charactersPerLine,
            .timer = m_timer};
}

// What was left of this job stays the only thing that is kept of it until the person changes something.
void JobPanel::beginKeeping()
{
    m_kept.clear();
    if (!m_stored || m_keeper.leftJobs(m_jobId).empty())
        return keep();
    m_kept = takeContent(*m_stored).toJson();
    offerLeftJobs();
}

void JobPanel::keep()
{
    if (m_stored)
        write(takeContent(*m_stored));
}

// A failure stops nothing and is told once; the next change tries again.
void JobPanel::write(const PanelContent& content)
{
    const QByteArray json = content.toJson();
    if (json == m_kept)
        return;
    try {
        m_keeper.keep(content);
        m_kept = json;
    } catch (const values::RuntimeError& error) {
        m_controls->lblNotKept->setText(u"Save this job before you end Penwright. "_s + error.description());
        m_controls->lblNotKept->show();
    }
}

// What could not be saved is left, like a job that was open when the program ended.
void JobPanel::endKeeping(bool isDone)
{
    if (!m_stored)
        return;
    if (isDone) {
        m_keeper.forgetJob(m_jobId);
    } else {
        PanelContent content = takeContent(*m_stored);
        content.isRefused = true;
        write(content);
        m_keeper.leave(content);
    }
    m_stored.reset();
}

void JobPanel::offerLeftJobs()
{
    QHBoxLayout& offers = *m_controls->offers;
    clearLayout(offers);
    for (const LeftJob& left : m_keeper.leftJobs(m_jobId)) {
        if (findFate(left.content, m_stored) != Fate::Unchanged)
            continue;
        auto* button = new QPushButton(u"Take up %1"_s.arg(left.content.timer.clockText()), m_controls->frTimer);
        button->setObjectName(u"cmdTakeUp_%1"_s.arg(offers.count()));
        button->setAutoDefault(true);
        offers.addWidget(button);
        setTabOrder(m_controls->txtChar, button);
        button->show();
        ui::onEvent(button, &QPushButton::clicked, this, [this, left] { takeUp(left); });
    }
    offers.addStretch();
}

void JobPanel::takeUp(const LeftJob& left)
{
    if (!m_stored)
        return;
    m_keeper.takeUp(left.id, takeContent(*m_stored));
    showContent(left.content);
    offerLeftJobs();
    keep();
    m_controls->cmdStart->setFocus();
    // Characters that were typed but not yet counted are counted when their box is left.
    if (left.content.characters != left.content.captions[jobValue::Characters])
        m_controls->txtChar->setFocus();
}

// A job that was marked as submitted meanwhile stays so, unless the person had changed the mark.
void JobPanel::showContent(const PanelContent& content)
{
    for (int index = 0; index < jobValue::Count; ++index) {
        const QString& caption = content.captions[index];
        if (index != jobValue::Submitted || caption != content.stored.last())
            value(index).setText(caption);
    }
    m_typeId = content.typeId;
    m_charactersPerLine = content.charactersPerLine;
    m_timer = content.timer;
    m_controls->lblJobTotal->setText(content.total);
    m_controls->txtChar->setText(content.characters);
    m_controls->txtChar->setEnabled(isLine());
    showLineControls();
    showTimer();
}

} // namespace workspace
