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
    /// On a form whose controls have the names that such controls have everywhere.
    template <typename Controls>
    explicit PeriodChooser(const Controls& form)
        : PeriodChooser({form.optRange_0, form.optRange_1, form.optRange_2, form.optRange_3, form.optRange_4},
                        *form.dtpFrom, *form.dtpTo, *form.dtpOther)
    {
    }

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
