#include "listPanel.h"
#include "ui_listPanel.h"

#include "store/nameStatements.h"
#include "ui/accessKeys.h"
#include "ui/eventGuard.h"
#include "ui/itemCombo.h"
#include "ui/optionGroup.h"
#include "values/money.h"

using namespace Qt::StringLiterals;

namespace workspace {

namespace {

const QString all = u"All"_s;

std::optional<qint32> chosenId(const QComboBox& combo)
{
    if (combo.currentText() == all)
        return std::nullopt;
    return ui::itemData(combo);
}

} // namespace

ListPanel::ListPanel(QWidget* parent) : QWidget(parent), m_controls(std::make_unique<Ui::listPanel>())
{
    m_controls->setupUi(this);
    m_period.emplace(ui::RangeButtons{m_controls->optRange_0, m_controls->optRange_1, m_controls->optRange_2,
                                      m_controls->optRange_3, m_controls->optRange_4},
                     *m_controls->dtpFrom, *m_controls->dtpTo, *m_controls->dtpOther);
    ui::setTabStopAtChosen(*m_controls->ranges);
    connect(m_controls->cmdList, &QPushButton::clicked, this, &ListPanel::listClicked);
    setAccessKeys();
}

ListPanel::~ListPanel() = default;

void ListPanel::setAccessKeys()
{
    ui::setAccessKey(*m_controls->optRange_0, u'Y');
    ui::setAccessKey(*m_controls->optRange_1, u'W');
    ui::setAccessKey(*m_controls->optRange_2, u'M');
    ui::setAccessKey(*m_controls->optRange_3, u'O');
    ui::setAccessKey(*m_controls->optRange_4, u'E');
    ui::setAccessKey(*m_controls->cmbClient, u'C');
    ui::setAccessKey(*m_controls->cmbAcct, u'A');
    ui::setAccessKey(*m_controls->cmdList, u'L');
    ui::setAccessKey(*m_controls->dgList, u'G');
}

GridView& ListPanel::grid() const
{
    return *m_controls->dgList;
}

void ListPanel::setInstruction(const QString& text)
{
    m_controls->lblGridInstr->setText(text);
}

void ListPanel::setJobControlsVisible(bool visible)
{
    m_controls->frList->setVisible(visible);
    m_controls->frDisplay->setVisible(visible);
}

void ListPanel::PopCombos()
{
    const auto fill = [](QComboBox& combo, const QString& statement) {
        ui::fillCombo(combo, statement);
        combo.addItem(all);
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
    return {m_period->choice(), chosenId(*m_controls->cmbClient), chosenId(*m_controls->cmbAcct)};
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

} // namespace workspace
