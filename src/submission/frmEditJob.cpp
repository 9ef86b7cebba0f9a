#include "frmEditJob.h"
#include "ui_frmEditJob.h"

#include "jobLength.h"
#include "statements.h"
#include "typeLine.h"

#include "store/connectionStrings.h"
#include "store/recordset.h"
#include "ui/eventGuard.h"
#include "ui/leaveCheck.h"
#include "ui/refuse.h"
#include "ui/setUpForm.h"
#include "ui/twips.h"
#include "values/dates.h"

#include <QFontDatabase>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace submission {

namespace {

// The frames, by the index of the value label that they edit.
enum Index { Date = 0, Type = 2, Start = 7, Length = 8, Submitted = 9, Reference = 10 };

QString formatDate(const QDateTime& value)
{
    return value.toString(u"MM/dd/yyyy"_s);
}

QString formatTime(const QDateTime& value)
{
    return value.toString(u"HH:mm"_s);
}

// The columns stand below each other only in a font of one letter width, which not every theme's fixed font is.
QFont findFixedPitchFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (!QFontInfo(font).fixedPitch()) {
        font.setFamilies({u"monospace"_s, u"Courier New"_s});
        font.setStyleHint(QFont::Monospace);
        font.setFixedPitch(true);
    }
    return font;
}

} // namespace

frmEditJob::frmEditJob(QWidget* parent) : QDialog(parent), m_controls(std::make_unique<Ui::frmEditJob>())
{
    ui::setUpForm(*m_controls, *this);
    setUpFrames();
    setUpRules();
    setUpEvents();
    Form_Load();
}

frmEditJob::~frmEditJob() = default;

void frmEditJob::setUpFrames()
{
    Ui::frmEditJob& controls = *m_controls;
    m_frames = {{Date, {controls.frEdit_0, controls.cmdApply_0, controls.txtJobDate}},
                {Type, {controls.frEdit_2, controls.cmdApply_2, controls.List1}},
                {Start, {controls.frEdit_7, controls.cmdApply_7, controls.txtStartDate}},
                {Length, {controls.frEdit_8, controls.cmdApply_8, controls.txtHr}},
                // Not the date beside it, which only Cancel can leave.
                {Submitted, {controls.frEdit_9, controls.cmdApply_9, controls.txtTimeSub}},
                {Reference, {controls.frEdit_10, controls.cmdApply_10, controls.txtRefId}}};
    for (const auto& [index, frame] : m_frames) {
        frame.box->move(ui::panelOutOfView, 0);
        frame.box->hide();
    }
}

// A submitted date is not to be changed: its rule tests the start date, which is empty while a submission is edited, so
// that only Cancel leaves the box. A wrong submitted time highlights that date.
void frmEditJob::setUpRules()
{
    const QString timeMessage = u"Please insert a time in this field."_s;
    const Ui::frmEditJob& controls = *m_controls;
    m_rules = {{controls.txtJobDate, controls.txtJobDate, controls.txtJobDate, ui::dateMessage},
               {controls.txtStartDate, controls.txtStartDate, controls.txtStartDate, ui::dateMessage},
               {controls.txtStartTime, controls.txtStartTime, controls.txtStartTime, timeMessage},
               {controls.txtDateSub, controls.txtStartDate, controls.txtDateSub, ui::dateMessage},
               {controls.txtTimeSub, controls.txtTimeSub, controls.txtDateSub, timeMessage}};
}

void frmEditJob::setUpEvents()
{
    for (const auto& [index, frame] : m_frames)
        ui::onEvent(frame.applyButton, &QPushButton::clicked, this, [this, index = index] { cmdApply_Click(index); });
    ui::onEvent(m_controls->List1, &QListWidget::itemDoubleClicked, this, &frmEditJob::List1_DblClick);
    ui::onEvent(m_controls->cmdCancel, &QPushButton::clicked, this, &frmEditJob::reject);
    new ui::LeaveCheck(*this, *m_controls->cmdCancel, [this](const QWidget* box) { return mayLeave(box); });
}

void frmEditJob::Form_Load()
{
    const QString dateAndTime = u"Enter values above as follows:\r\n"
                                "     Date - enter 8/15/2004\r\n"
                                "     Time - enter 2:30 PM or 14:30\r\n"
                                "\r\n"
                                "You must enter the / and :"_s;
    m_controls->Label3->setText(dateAndTime);
    m_controls->Label4->setText(dateAndTime);
    m_controls->Label15->setText(u"Enter the date above as follows:\r\n"
                                 "     Date - enter 8/15/2004\r\n"
                                 "You must enter the /"_s);
    const QFont fixedPitch = findFixedPitchFont();
    for (QWidget* control : std::initializer_list<QWidget*>{m_controls->List1, m_controls->Label7, m_controls->Label13})
        control->setFont(fixedPitch);
    const int lineWidth = QFontMetrics(fixedPitch).horizontalAdvance(QString(maximumTypeLine + 1, u'0'));
    m_controls->List1->setMinimumWidth(lineWidth + style()->pixelMetric(QStyle::PM_ScrollBarExtent));
}

void frmEditJob::PopForm(qint16 index, const QString& value)
{
    showFrame(index);
    switch (index) {
    case Date:
        m_controls->txtJobDate->setText(formatDate(values::toDate(value)));
        break;
    case Type:
        fillTypes();
        break;
    case Start:
        fillStart(value);
        break;
    case Length:
        fillLength(value);
        break;
    case Submitted:
        fillSubmitted(value);
        break;
    case Reference:
        m_controls->txtRefId->setText(value);
        break;
    default:
        break;
    }
}

// The other frames stay out of view, and the form is as large as this frame needs.
void frmEditJob::showFrame(int index)
{
    const auto found = m_frames.find(index);
    if (found == m_frames.end())
        return;
    const Frame& frame = found->second;
    frame.box->adjustSize();
    frame.box->move(ui::panelInView, ui::panelInView);
    frame.box->show();
    m_controls->area->setFixedSize(frame.box->size() + 2 * QSize(ui::panelInView, ui::panelInView));
    frame.applyButton->setDefault(true);
    frame.firstControl->setFocus();
}

void frmEditJob::fillTypes()
{
    store::Connection connection(modMain::DBConnString);
    store::Recordset types(connection, selectTypesByClient());
    for (; !types.atEnd(); types.moveNext()) {
        auto* line = new QListWidgetItem(PadTypeLine(types.field(1).toText(), types.field(2).toText(),
                                                     types.field(3).toText(), types.field(4).toDouble()),
                                         m_controls->List1);
        line->setData(Qt::UserRole, types.field(0).toLong());
    }
    // Otherwise the list makes its first line the current one, which looks as if it were selected.
    m_controls->List1->setCurrentIndex(QModelIndex());
}

void frmEditJob::fillStart(const QString& value)
{
    if (value.isEmpty())
        return;
    const QDateTime start = values::toDate(value);
    m_controls->txtStartDate->setText(formatDate(start));
    m_controls->txtStartTime->setText(formatTime(start));
}

void frmEditJob::fillLength(const QString& value)
{
    if (value == u"..")
        return;
    const JobLength length = splitLength(value);
    m_controls->txtHr->setText(length.hours);
    m_controls->txtMin->setText(length.minutes);
    m_controls->txtSec->setText(length.seconds);
}

void frmEditJob::fillSubmitted(const QString& value)
{
    const std::optional<QDateTime> submitted = values::readDate(value);
    if (!submitted)
        return;
    m_controls->txtDateSub->setText(formatDate(*submitted));
    m_controls->txtTimeSub->setText(formatTime(*submitted));
}

bool frmEditJob::mayLeave(const QWidget* box)
{
    for (const Rule& rule : m_rules) {
        if (rule.leftBox != box || values::isDate(rule.testedBox->text()))
            continue;
        rule.highlightedBox->highlight();
        ui::refuse(rule.message, *rule.leftBox);
        return false;
    }
    return true;
}

// Enter presses the button while the focus is still in a box, whose text must be tested first.
void frmEditJob::cmdApply_Click(int index)
{
    if (!mayLeave(focusWidget()))
        return;
    if (index == Type)
        return applyType();
    Q_EMIT captionApplied(index, readCaption(index));
    accept();
}

void frmEditJob::List1_DblClick()
{
    cmdApply_Click(Type);
}

void frmEditJob::applyType()
{
    const QList<QListWidgetItem*> selected = m_controls->List1->selectedItems();
    if (selected.isEmpty())
        return ui::refuse(ui::selectionMessage, *m_controls->List1);
    Q_EMIT typeApplied(selected.first()->data(Qt::UserRole).toInt());
    accept();
}

QString frmEditJob::readCaption(int index) const
{
    const Ui::frmEditJob& controls = *m_controls;
    switch (index) {
    case Date:
        return controls.txtJobDate->text();
    case Start:
        return values::dateText(values::toDate(controls.txtStartDate->text() + u' ' + controls.txtStartTime->text()));
    case Length:
        return joinLength({controls.txtHr->text(), controls.txtMin->text(), controls.txtSec->text()});
    case Submitted:
        return controls.txtDateSub->text() + u' ' + controls.txtTimeSub->text();
    default:
        return controls.txtRefId->text();
    }
}

} // namespace submission
