#pragma once

#include "charts/curve/BasicCurve.h"
#include "documents/LargeCurves.h"

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace millichart {

/// How a chart counts a table's times: as they are, or in units since 1970.
struct TimeCount {
    std::int64_t First = 0; ///< the table's time 0
    std::int64_t Each = 1;  ///< a time of the table is so much
    std::int64_t Unit = 1;  ///< and a time of the chart is so much

    /// In the chart.
    std::int64_t Counted(std::int64_t time) const { return (First + Each * time) / Unit; }

    /// The table's first time that is not before this one of the chart.
    std::int64_t Uncounted(std::int64_t time) const;
};

/// Where a laid-out chart's rows are, if they are too many to be held.
struct LargeRows {
    std::shared_ptr<LargeCurves> Source; ///< null for any other chart
    TimeCount Count;
};

namespace documents {

/// Gives a chart, laid out by the extent of what is large, the rows that it shows on this engine under its
/// present transform. Tells what is wrong.
std::vector<penlode::Diagnostic> TakeShownRows(const LargeRows& rows, const penlode::IGraphicsEngine& engine,
                                               CBasicCurve& chart);

} // namespace documents
} // namespace millichart
