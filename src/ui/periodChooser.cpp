#include "periodChooser.h"

#include <algorithm>

namespace ui {

using values::Range;

PeriodChooser::PeriodChooser(const RangeButtons& ranges, QDateEdit& from, QDateEdit& to, QDateEdit& other)
    : m_ranges(ranges), m_from(from), m_to(to), m_other(other)
{
    const auto chooseOnChange = [&](const QDateEdit& picker, Range range) {
        QRadioButton* button = ranges[static_cast<std::size_t>(range)];
        QObject::connect(&picker, &QDateEdit::dateChanged, button, [button] { button->setChecked(true); });
    };
    chooseOnChange(from, Range::FromTo);
    chooseOnChange(to, Range::FromTo);
    chooseOnChange(other, Range::Other);
}

void PeriodChooser::setDates(QDate date)
{
    for (QDateEdit* picker : {&m_from, &m_to, &m_other}) {
        const QSignalBlocker blocker(picker);
        picker->setDate(date);
    }
}

values::PeriodChoice PeriodChooser::choice() const
{
    values::PeriodChoice choice{{}, m_from.date(), m_to.date(), m_other.date()};
    const auto chosen = std::ranges::find_if(m_ranges, &QRadioButton::isChecked);
    if (chosen != m_ranges.end())
        choice.range = static_cast<Range>(chosen - m_ranges.begin());
    return choice;
}

} // namespace ui
