#pragma once

#include "values/period.h"

#include <QDateEdit>
#include <QRadioButton>

#include <array>

namespace ui {

/// The option buttons of the five periods, in their order.
using RangeButtons = std::array<QRadioButton*, 5>;

/// The option buttons and date pickers with which a person chooses a period. Picking a date also chooses the period
/// that it belongs to.
class PeriodChooser {
public:
    PeriodChooser(const RangeButtons& ranges, QDateEdit& from, QDateEdit& to, QDateEdit& other);

    /// Sets the date pickers without choosing their periods.
    void setDates(QDate date);
    values::PeriodChoice choice() const;

private:
    RangeButtons m_ranges;
    QDateEdit& m_from;
    QDateEdit& m_to;
    QDateEdit& m_other;
};

} // namespace ui
