#include "frmReport.h"
#include "ui_frmReport.h"

#include "store/nameStatements.h"
#include "ui/eventGuard.h"
#include "ui/itemCombo.h"
#include "ui/messages.h"
#include "ui/optionGroup.h"
#include "ui/refuse.h"
#include "ui/setUpForm.h"
#include "values/clock.h"
#include "values/dates.h"
#include "values/numbers.h"

using namespace Qt::StringLiterals;

namespace reports {

namespace {

QString nameMode(Mode mode)
{
    switch (mode) {
    case Mode::Open:
        return u"Open"_s;
    case Mode::Print:
        return u"Print"_s;
    case Mode::Save:
        return u"Save"_s;
    case Mode::Both:
        return u"Both"_s;
    }
    Q_UNREACHABLE();
}

/// "Period: 8/1/2004 - 8/31/2004", one date for one day.
QString describePeriod(const values::PeriodChoice& choice)
{
    const auto text = [](QDate day) { return values::dateText(values::dateTime(day)); };
    const std::optional<values::Period> period = values::periodOf(choice);
    if (!period)
        return QString();
    QString days = text(period->first);
    if (period->last != period->first)
        days += u" - "_s + text(period->last);
    return u"Period: "_s + days;
}

} // namespace

frmReport::frmReport(QWidget* parent) : QDialog(parent), m_controls(std::make_unique<Ui::frmReport>())
{
    ui::setUpForm(*m_controls, *this);
    m_period.emplace(*m_controls);
    m_period->setDates(values::today());
    popCombos();
    connectEvents();
    for (QButtonGroup* options : {m_controls->kinds, m_controls->summarySubjects, m_controls->detailSubjects,
                                  m_controls->ranges, m_controls->modes})
        ui::setTabStopAtChosen(*options);
    enableUsedControls();
    prepareReports();
}

frmReport::~frmReport() = default;

void frmReport::connectEvents()
{
    for (const QRadioButton* choice : {m_controls->optSummary, m_controls->optOpen, m_controls->optPrint,
                                       m_controls->optSave, m_controls->optPrintSave})
        connect(choice, &QRadioButton::toggled, this, &frmReport::enableUsedControls);
    const std::pair<QComboBox*, QRadioButton*> combos[] = {{m_controls->cmbClientSumm, m_controls->optClient_0},
                                                           {m_controls->cmbAcctSumm, m_controls->optAcct_0},
                                                           {m_controls->cmbClientDet, m_controls->optClient_1},
                                                           {m_controls->cmbAcctDet, m_controls->optAcct_1}};
    for (const auto& [combo, option] : combos)
        connect(combo, &QComboBox::activated, option, [chosen = option] { chosen->setChecked(true); });
    ui::onEvent(m_controls->cmdProcess, &QPushButton::clicked, this, &frmReport::cmdProcess_Click);
    ui::onEvent(m_controls->cmdCancel, &QPushButton::clicked, this, &frmReport::reject);
}

void frmReport::popCombos()
{
    ui::fillCombo(*m_controls->cmbClientSumm, store::selectClients());
    ui::fillCombo(*m_controls->cmbClientDet, store::selectClients());
    ui::fillCombo(*m_controls->cmbAcctSumm, store::selectTypes());
    ui::fillCombo(*m_controls->cmbAcctDet, store::selectTypes());
}

// The options of a summary and of a detail list share their access keys: only those of one of them are enabled.
void frmReport::enableUsedControls()
{
    const bool isSummary = m_controls->optSummary->isChecked();
    m_controls->frSummary->setEnabled(isSummary);
    m_controls->frDetail->setEnabled(!isSummary);
    m_controls->frInclude->setEnabled(!isSummary);
    const bool countsCopies = readMode() == Mode::Both;
    m_controls->txtPrint->setEnabled(countsCopies);
    m_controls->lblPrint->setEnabled(countsCopies);
}

std::pair<QComboBox*, Subject::Kind> frmReport::findChosenCombo() const
{
    const bool isSummary = m_controls->optSummary->isChecked();
    if ((isSummary ? m_controls->optClient_0 : m_controls->optClient_1)->isChecked())
        return {isSummary ? m_controls->cmbClientSumm : m_controls->cmbClientDet, Subject::Kind::Client};
    return {isSummary ? m_controls->cmbAcctSumm : m_controls->cmbAcctDet, Subject::Kind::Type};
}

std::vector<Field> frmReport::readFields() const
{
    const QCheckBox* boxes[] = {m_controls->chkChar,     m_controls->chkLine,  m_controls->chkRate,
                                m_controls->chkTotal,    m_controls->chkStart, m_controls->chkLength,
                                m_controls->chkSubmitted};
    std::vector<Field> fields;
    for (std::size_t i = 0; i < std::size(boxes); ++i) {
        if (boxes[i]->isChecked())
            fields.push_back(static_cast<Field>(i));
    }
    return fields;
}

Mode frmReport::readMode() const
{
    if (m_controls->optOpen->isChecked())
        return Mode::Open;
    if (m_controls->optPrint->isChecked())
        return Mode::Print;
    return m_controls->optSave->isChecked() ? Mode::Save : Mode::Both;
}

std::optional<int> frmReport::readCopies() const
{
    const std::optional<double> number = values::readNumber(m_controls->txtPrint->text());
    if (!number || *number < 1 || *number > 99 || *number != values::roundHalfEven(*number))
        return std::nullopt;
    return static_cast<int>(*number);
}

Request frmReport::makeRequest(const QComboBox& combo, const Subject& subject, int copies) const
{
    // NOLINTNEXTLINE(bugprone-unchecked-optional-access): set by the constructor
    const values::PeriodChoice period = m_period->choice();
    if (m_controls->optSummary->isChecked())
        return {Kind::Summary,
                combo.currentText() + u" Summary"_s,
                readMode(),
                selectSummary(period, subject),
                summaryColumns(),
                describePeriod(period),
                copies};
    const std::vector<Field> fields = readFields();
    return {Kind::Detail,
            combo.currentText() + u" Detail"_s,
            readMode(),
            selectDetail(period, subject, fields),
            detailColumns(fields),
            describePeriod(period),
            copies};
}

void frmReport::cmdProcess_Click()
{
    const auto [combo, kind] = findChosenCombo();
    if (combo->currentText().isEmpty())
        return ui::refuse(ui::selectionMessage, *combo);
    const std::optional<int> copyCount = readMode() == Mode::Both ? readCopies() : 1;
    if (!copyCount)
        return ui::refuse(ui::numberMessage, *m_controls->txtPrint);
    const Request chosen = makeRequest(*combo, {kind, ui::itemData(*combo)}, *copyCount);
    ui::showMessage(nameMode(chosen.mode));
    FillReport(chosen);
}

} // namespace reports
