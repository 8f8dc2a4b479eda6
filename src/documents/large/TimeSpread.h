#pragma once

#include "documents/large/PlainRows.h"
#include "documents/tables/TimeAxis.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <numeric>

namespace millichart::documents {

/// What must be known of all times before one of them can be counted.
class TimeSpread {
public:
    void Take(double time, int decimals, RowTimes form) {
        m_decimals = std::max(m_decimals, decimals);
        if (form == RowTimes::Dates) {
            const auto moment = static_cast<std::int64_t>(time);
            m_some = m_most < m_least ? moment : m_some;
            const std::int64_t since = moment - m_some;
            m_step = m_step != 0 && since % m_step == 0 ? m_step : std::gcd(m_step, since);
        }
        m_least = std::min(m_least, time);
        m_most = std::max(m_most, time);
    }

    bool IsEmpty() const { return m_most < m_least; }

    TimeScale Scale(RowTimes form, bool areOfOneDay) const {
        if (form == RowTimes::Dates) {
            return ScaleOf(DateSpan{static_cast<std::int64_t>(m_least), static_cast<std::int64_t>(m_most),
                                    m_step, areOfOneDay});
        }
        return form == RowTimes::Decimal ? ScaleOf(NumberSpan{m_least, m_most, m_decimals}) : TimeScale();
    }

private:
    double m_least = std::numeric_limits<double>::infinity();
    double m_most = -std::numeric_limits<double>::infinity();
    int m_decimals = 0;
    std::int64_t m_some = 0; ///< the first of the moments
    std::int64_t m_step = 0; ///< divides their distances from it
};

} // namespace millichart::documents
