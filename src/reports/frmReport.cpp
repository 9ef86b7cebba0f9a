#include "frmReport.h"
#include "ui_frmReport.h"

#include "store/nameStatements.h"
#include "ui/accessKeys.h"
#include "ui/eventGuard.h"
#include "ui/itemCombo.h"
#include "ui/messages.h"
#include "ui/optionGroup.h"
#include "ui/refuse.h"
#include "values/clock.h"
#include "values/dates.h"
#include "values/numbers.h"

using namespace Qt::StringLiterals;

namespace reports {

namespace {

QString modeWord(Mode mode)
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
QString periodText(const values::PeriodChoice& choice)
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
    m_controls->setupUi(this);
    m_period.emplace(ui::RangeButtons{m_controls->optRange_0, m_controls->optRange_1, m_controls->optRange_2,
                                      m_controls->optRange_3, m_controls->optRange_4},
                     *m_controls->dtpFrom, *m_controls->dtpTo, *m_controls->dtpOther);
    m_period->setDates(values::today());
    popCombos();
    connectEvents();
    for (QButtonGroup* options : {m_controls->kinds, m_controls->summarySubjects, m_controls->detailSubjects,
                                  m_controls->ranges, m_controls->modes})
        ui::setTabStopAtChosen(*options);
    setAccessKeys();
    enableWhatCounts();
}

frmReport::~frmReport() = default;

void frmReport::connectEvents()
{
    for (const QRadioButton* choice : {m_controls->optSummary, m_controls->optOpen, m_controls->optPrint,
                                       m_controls->optSave, m_controls->optPrintSave})
        connect(choice, &QRadioButton::toggled, this, &frmReport::enableWhatCounts);
    const std::pair<QComboBox*, QRadioButton*> combos[] = {{m_controls->cmbClientSumm, m_controls->optClient_0},
                                                           {m_controls->cmbAcctSumm, m_controls->optAcct_0},
                                                           {m_controls->cmbClientDet, m_controls->optClient_1},
                                                           {m_controls->cmbAcctDet, m_controls->optAcct_1}};
    for (const auto& [combo, option] : combos)
        connect(combo, &QComboBox::activated, option, [chosen = option] { chosen->setChecked(true); });
    ui::onEvent(m_controls->cmdProcess, &QPushButton::clicked, this, [this] { cmdProcess_Click(); });
    ui::onEvent(m_controls->cmdCancel, &QPushButton::clicked, this, [this] { reject(); });
}

void frmReport::setAccessKeys()
{
    // Either the summary's options can be pressed or those of the detail list: they share their letters.
    const std::pair<QAbstractButton*, char16_t> buttons[] = {
        {m_controls->optSummary, u'S'},   {m_controls->optDetail, u'D'},   {m_controls->optClient_0, u'E'},
        {m_controls->optAcct_0, u'U'},    {m_controls->optClient_1, u'E'}, {m_controls->optAcct_1, u'U'},
        {m_controls->optRange_0, u'Y'},   {m_controls->optRange_1, u'W'},  {m_controls->optRange_2, u'M'},
        {m_controls->optRange_3, u'F'},   {m_controls->optRange_4, u'H'},  {m_controls->optOpen, u'O'},
        {m_controls->optPrint, u'P'},     {m_controls->optSave, u'V'},     {m_controls->optPrintSave, u'N'},
        {m_controls->chkChar, u'K'},      {m_controls->chkLine, u'L'},     {m_controls->chkRate, u'J'},
        {m_controls->chkTotal, u'T'},     {m_controls->chkStart, u'A'},    {m_controls->chkLength, u'G'},
        {m_controls->chkSubmitted, u'B'}, {m_controls->cmdProcess, u'R'},  {m_controls->cmdCancel, u'C'}};
    for (const auto& [button, letter] : buttons)
        ui::setAccessKey(*button, letter);
    ui::setAccessKey(*m_controls->txtPrint, u'I');
}

void frmReport::popCombos()
{
    ui::fillCombo(*m_controls->cmbClientSumm, store::selectClients());
    ui::fillCombo(*m_controls->cmbClientDet, store::selectClients());
    ui::fillCombo(*m_controls->cmbAcctSumm, store::selectTypes());
    ui::fillCombo(*m_controls->cmbAcctDet, store::selectTypes());
}

// What the other choice reads is grey.
void frmReport::enableWhatCounts()
{
    const bool isSummary = m_controls->optSummary->isChecked();
    m_controls->frSummary->setEnabled(isSummary);
    m_controls->frDetail->setEnabled(!isSummary);
    m_controls->frInclude->setEnabled(!isSummary);
    const bool countsCopies = chosenMode() == Mode::Both;
    m_controls->txtPrint->setEnabled(countsCopies);
    m_controls->lblPrint->setEnabled(countsCopies);
}

std::pair<QComboBox*, Subject::Kind> frmReport::chosenCombo() const
{
    const bool isSummary = m_controls->optSummary->isChecked();
    if ((isSummary ? m_controls->optClient_0 : m_controls->optClient_1)->isChecked())
        return {isSummary ? m_controls->cmbClientSumm : m_controls->cmbClientDet, Subject::Kind::Client};
    return {isSummary ? m_controls->cmbAcctSumm : m_controls->cmbAcctDet, Subject::Kind::Type};
}

std::vector<Field> frmReport::chosenFields() const
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

Mode frmReport::chosenMode() const
{
    if (m_controls->optOpen->isChecked())
        return Mode::Open;
    if (m_controls->optPrint->isChecked())
        return Mode::Print;
    return m_controls->optSave->isChecked() ? Mode::Save : Mode::Both;
}

std::optional<int> frmReport::copies() const
{
    const std::optional<double> number = values::readNumber(m_controls->txtPrint->text());
    if (!number || *number < 1 || *number > 99 || *number != values::roundHalfEven(*number))
        return std::nullopt;
    return static_cast<int>(*number);
}

Request frmReport::request(const QComboBox& combo, const Subject& subject, int copies) const
{
    // NOLINTNEXTLINE(bugprone-unchecked-optional-access): set by the constructor
    const values::PeriodChoice period = m_period->choice();
    if (m_controls->optSummary->isChecked())
        return {Kind::Summary,
                combo.currentText() + u" Summary"_s,
                chosenMode(),
                selectSummary(period, subject),
                summaryColumns(),
                periodText(period),
                copies};
    const std::vector<Field> fields = chosenFields();
    return {Kind::Detail,
            combo.currentText() + u" Detail"_s,
            chosenMode(),
            selectDetail(period, subject, fields),
            detailColumns(fields),
            periodText(period),
            copies};
}

void frmReport::cmdProcess_Click()
{
    const auto [combo, kind] = chosenCombo();
    if (combo->currentText().isEmpty())
        return ui::refuse(u"You must select from the list."_s, *combo);
    const std::optional<int> copyCount = chosenMode() == Mode::Both ? copies() : 1;
    if (!copyCount)
        return ui::refuse(u"Please enter a number ONLY."_s, *m_controls->txtPrint);
    const Request chosen = request(*combo, {kind, ui::itemData(*combo)}, *copyCount);
    ui::showMessage(modeWord(chosen.mode));
    FillReport(chosen);
}

} // namespace reports
