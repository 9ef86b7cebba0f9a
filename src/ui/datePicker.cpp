#include "datePicker.h"

#include "values/dates.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QStyleOptionComboBox>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

QDate readDay(const QString& text)
{
    const std::optional<QDateTime> dateTime = values::readDate(text);
    // A time alone is not a day.
    return dateTime && dateTime->date() != values::timeOnlyDay ? dateTime->date() : QDate();
}

/// Reads month, day and year without marks: 08162004, 8162004, 081604, 81604, and 812004, which can only be 8/1/2004.
QDate readDigits(const QString& text)
{
    static const QRegularExpression twoDigitDay(u"^(\\d\\d?)(\\d\\d)(\\d{4}|\\d\\d)$"_s);
    static const QRegularExpression oneDigitDay(u"^(\\d)(\\d)(\\d{4})$"_s);
    QDate day;
    for (const QRegularExpression& form : {twoDigitDay, oneDigitDay}) {
        const QRegularExpressionMatch fields = form.match(text);
        if (!day.isValid() && fields.hasMatch())
            day = readDay(fields.capturedTexts().sliced(1).join(u'/'));
    }
    return day;
}

QDate readTyped(const QString& text)
{
    const QDate day = readDay(text);
    return day.isValid() ? day : readDigits(text.trimmed());
}

} // namespace

DatePicker::DatePicker(QWidget* parent) : QDateEdit(parent)
{
    setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    setDisplayFormat(u"M/d/yyyy"_s);
    setCalendarPopup(true);
    setKeyboardTracking(false);
    setFocusPolicy(Qt::StrongFocus);
    // Otherwise Qt would complete a half-typed date as soon as the cursor passes a slash.
    disconnect(lineEdit(), &QLineEdit::cursorPositionChanged, this, nullptr);
}

void DatePicker::stepBy(int days)
{
    interpretText();
    setDate(std::clamp(date().addDays(days), minimumDate(), maximumDate()));
    selectAll();
}

QAbstractSpinBox::StepEnabled DatePicker::stepEnabled() const
{
    return StepUpEnabled | StepDownEnabled;
}

QValidator::State DatePicker::validate(QString& text, int&) const
{
    const QDate day = readTyped(text);
    return day.isValid() && day >= minimumDate() && day <= maximumDate() ? QValidator::Acceptable
                                                                         : QValidator::Intermediate;
}

// Qt would replace text that is not a date by some date of its own.
void DatePicker::fixup(QString&) const {}

QDateTime DatePicker::dateTimeFromText(const QString& text) const
{
    return readTyped(text).startOfDay();
}

// Tab leaves the picker at once; the base class would go through month, day and year first.
bool DatePicker::focusNextPrevChild(bool next)
{
    return QAbstractSpinBox::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call): see above
}

void DatePicker::focusInEvent(QFocusEvent* event)
{
    QDateEdit::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason)
        selectAll();
}

// The calendar takes the names of the weekdays from the picker, but not the first day of the week.
void DatePicker::mousePressEvent(QMouseEvent* event)
{
    calendarWidget()->setFirstDayOfWeek(locale().firstDayOfWeek());
    QDateEdit::mousePressEvent(event);
}

// Typing goes to the box as a whole; the base class would edit month, day and year one by one.
void DatePicker::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier))
        openCalendar();
    else
        QAbstractSpinBox::keyPressEvent(event); // NOLINT(bugprone-parent-virtual-call): see above
}

// Scrolling past the box must not change the date.
void DatePicker::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QDateEdit::wheelEvent(event);
    else
        event->ignore();
}

// The base class opens the calendar only for a mouse press on the arrow.
void DatePicker::openCalendar()
{
    interpretText();
    QStyleOptionComboBox option;
    option.initFrom(this);
    option.editable = true;
    const QPointF arrow =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this).center();
    QMouseEvent press(QEvent::MouseButtonPress, arrow, mapToGlobal(arrow), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    mousePressEvent(&press);
}

} // namespace ui
