#include "listPanel.h"
#include "ui_listPanel.h"

#include "describeJob.h"

#include "store/nameStatements.h"
#include "ui/eventGuard.h"
#include "ui/itemCombo.h"
#include "ui/optionGroup.h"
#include "ui/setUpForm.h"
#include "values/money.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace workspace {

namespace {

const QString allEntries = u"All"_s;

std::optional<qint32> readChosenId(const QComboBox& combo)
{
    if (combo.currentText() == allEntries)
        return std::nullopt;
    return ui::itemData(combo);
}

} // namespace

ListPanel::ListPanel(QWidget* parent) : QWidget(parent), m_controls(std::make_unique<Ui::listPanel>())
{
    ui::setUpForm(*m_controls, *this);
    // Room for any amount, and no more, so that the totals stand beside the filters on most screens.
    for (QLineEdit* box : {m_controls->txtCount, m_controls->txtTotal})
        box->setFixedWidth(fontMetrics().horizontalAdvance(u" $9,999,999.99 "_s));
    m_period.emplace(*m_controls);
    ui::setTabStopAtChosen(*m_controls->ranges);
    connect(m_controls->cmdList, &QPushButton::clicked, this, &ListPanel::listClicked);
    ui::onEvent(m_controls->dgList, &GridView::rowChanged, this, &ListPanel::showRowDetails);
}

ListPanel::~ListPanel() = default;

GridView& ListPanel::grid() const
{
    return *m_controls->dgList;
}

LeftJobsBar& ListPanel::leftJobs() const
{
    return *m_controls->frLeft;
}

void ListPanel::setInstruction(const QString& text)
{
    m_controls->lblGridInstr->setText(text);
}

void ListPanel::setJobControlsVisible(bool visible)
{
    m_controls->frList->setVisible(visible);
    m_controls->frDisplay->setVisible(visible);
    m_controls->lblRow->setVisible(visible);
}

void ListPanel::PopCombos()
{
    const auto fill = [](QComboBox& combo, const QString& statement) {
        ui::fillCombo(combo, statement);
        combo.addItem(allEntries);
        combo.setCurrentIndex(combo.count() - 1);
    };
    fill(*m_controls->cmbClient, store::selectClients());
    fill(*m_controls->cmbAcct, store::selectTypes());
}

void ListPanel::setDates(QDate date)
{
    // NOLINTNEXTLINE(bugprone-unchecked-optional-access): set by the constructor
    m_period->setDates(date);
}

JobFilter ListPanel::filter() const
{
    // NOLINTNEXTLINE(bugprone-unchecked-optional-access): set by the constructor
    return {m_period->choice(), readChosenId(*m_controls->cmbClient), readChosenId(*m_controls->cmbAcct)};
}

void ListPanel::showRowDetails()
{
    const GridView& jobs = grid();
    const List* list = jobs.rows().list();
    const bool isJob = list && list->kind == RecordKind::Job && jobs.hasCurrentRow();
    m_controls->lblRow->setText(isJob ? describeJob(jobs.rows(), jobs.currentIndex().row()) : QString());
}

void ListPanel::chooseToday()
{
    m_controls->optRange_0->setChecked(true);
}

void ListPanel::showTotals(const store::RowSet& jobs)
{
    values::Money total;
    const int amountColumn = jobs.columnCount() - 1;
    for (int row = 0; row < jobs.rowCount(); ++row)
        total += values::Money::fromDouble(jobs.at(row, amountColumn).toDouble());
    m_controls->txtTotal->setText(total.currencyText());
    m_controls->txtCount->setText(QString::number(jobs.rowCount()));
}

void ListPanel::clearTotals()
{
    m_controls->txtTotal->clear();
    m_controls->txtCount->clear();
}

QSize ListPanel::minimumSizeHint() const
{
    const QMargins margins = layout()->contentsMargins();
    const int filters = m_controls->frList->isHidden() ? 0 : m_controls->frList->minimumSizeHint().width();
    const int grid = m_controls->dgList->minimumWidth();
    return {std::max(filters, grid) + margins.left() + margins.right(), layout()->minimumSize().height()};
}

void ListPanel::resizeEvent(QResizeEvent* event)
{
    const QBoxLayout& filters = *m_controls->filters;
    const int sideBySide =
        m_controls->frList->minimumSizeHint().width() + filters.spacing() + m_controls->frDisplay->sizeHint().width();
    const bool fits =
        sideBySide <= contentsRect().width() - layout()->contentsMargins().left() - layout()->contentsMargins().right();
    m_controls->filters->setDirection(fits ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    QWidget::resizeEvent(event);
}

} // namespace workspace
