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

    /// As few rows as draw the same line as all: of each column, and between gaps, the first, the first of the
    /// lowest, the first of the highest and the last. A column begins at each of `starts`, which ascend, in
    /// the unit of the extent's times. Where rows are left out, a row comes twice, and so often that at least
    /// 66 are left between two gaps; so the line is still drawn as one of many points.
    virtual CurveData Thinned(std::span<const std::int32_t> starts,
                              std::vector<penlode::Diagnostic>& diagnostics) = 0;
};

} // namespace millichart
