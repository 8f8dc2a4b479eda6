#pragma once

#include "charts/curve/CurveProp.h"
#include "documents/large/LineRules.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <vector>

namespace millichart::documents {

/// Does a value break its line?
inline bool IsGap(double value, const LineRules& rules) {
    return IsCurveNull(value) || (rules.IsLogarithmic && !(value > 0.0));
}

/// What a curve shows of a value.
inline double ShownValue(double value, const LineRules& rules, std::size_t curve) {
    return IsCurveNull(value) && rules.IsZero(curve) ? 0.0 : value;
}

/// The rows on which a layout depends: of all the first and the last; of each curve two values, the
/// first of the least and of the greatest ones, of those above 0 too, and a null.
class OuterRows {
public:
    struct Row {
        double Time = 0.0;
        std::uint64_t Line = 0;
        std::vector<double> Values;
    };

    /// For so many curves.
    void Begin(std::size_t curves) { m_rows.resize(kOfTable + kOfCurve * curves); }

    /// Rows may come in any order.
    void Take(double time, std::uint64_t line, const std::vector<double>& values) {
        TakeIf(m_rows[0], time, line, values, [&](const Row& row) { return time < row.Time; });
        TakeIf(m_rows[1], time, line, values, [&](const Row& row) { return time >= row.Time; });
        for (std::size_t curve = 0; curve < values.size(); ++curve) {
            Row* const own = &m_rows[kOfTable + kOfCurve * curve];
            const double value = values[curve];
            if (IsCurveNull(value)) {
                TakeIf(own[0], time, line, values, [](const Row&) { return false; });
                continue;
            }
            TakeIf(own[1], time, line, values, [&](const Row& row) { return value < row.Values[curve]; });
            TakeIf(own[2], time, line, values, [&](const Row& row) { return value > row.Values[curve]; });
            if (own[4].Line == 0) {
                TakeIf(own[own[3].Line == 0 ? 3 : 4], time, line, values, [](const Row&) { return false; });
            }
            if (value > 0.0) {
                TakeIf(own[5], time, line, values, [&](const Row& row) { return value < row.Values[curve]; });
            }
        }
    }

    /// Each once, as they stand in the table.
    std::vector<Row> List() const {
        std::vector<Row> rows;
        std::copy_if(m_rows.begin(), m_rows.end(), std::back_inserter(rows),
                     [](const Row& row) { return row.Line != 0; });
        std::sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) { return a.Line < b.Line; });
        const auto end = std::unique(rows.begin(), rows.end(),
                                     [](const Row& a, const Row& b) { return a.Line == b.Line; });
        rows.erase(end, rows.end());
        std::stable_sort(rows.begin(), rows.end(),
                         [](const Row& a, const Row& b) { return a.Time < b.Time; });
        return rows;
    }

private:
    static constexpr std::size_t kOfTable = 2;
    static constexpr std::size_t kOfCurve = 6;

    template <class Suits>
    static void TakeIf(Row& row, double time, std::uint64_t line, const std::vector<double>& values,
                       const Suits& suits) {
        if (row.Line == 0 || suits(row)) {
            row.Time = time;
            row.Line = line;
            row.Values = values;
        }
    }

    std::vector<Row> m_rows;
};

} // namespace millichart::documents
