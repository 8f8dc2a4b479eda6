#pragma once

#include "documents/ChartData.h"
#include "penlode/streams/Diagnostic.h"

#include <cstdint>
#include <span>
#include <vector>

namespace millichart {

/// The curves of a table with more rows than a program should hold. Whoever draws them lays the chart out by
/// their extent first, asks where a column of the picture begins, and then for the rows that show in each.
/// Rows count as in the order of their times.
class LargeCurves {
public:
    LargeCurves() = default;
    LargeCurves(const LargeCurves&) = delete;
    LargeCurves& operator=(const LargeCurves&) = delete;
    virtual ~LargeCurves() = default;

    /// Names, labels and, of each curve, a few rows with its first and its last time, its least and its
    /// greatest value: whatever a layout depends on. Without curves, and told why, if the table cannot be
    /// read.
    virtual CurveData Extent(std::vector<penlode::Diagnostic>& diagnostics) = 0;

    /// As few rows as draw the same line as all: of each column, and between gaps, the first, the first of
    /// the lowest, the first of the highest and the last. A column begins at each of `starts`, which ascend,
    /// in the unit of the extent's times. Fewer than 65 rows between two gaps all stay, as their line is not
    /// thinned when it is drawn; of 65 or more, where rows are left out a row comes twice, and so often that
    /// at least 66 are left, so that the line is still drawn as one of many points. Values that single
    /// precision does not tell apart on the page count as different here, so that another of them may show in
    /// its column, in the same height.
    virtual CurveData Thinned(std::span<const std::int32_t> starts,
                              std::vector<penlode::Diagnostic>& diagnostics) = 0;
};

} // namespace millichart
