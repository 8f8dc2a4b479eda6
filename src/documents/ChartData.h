#pragma once

#include "charts/curve/CurveProp.h"
#include "penlode/Equality.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// The data of chart documents. Texts are narrow. A NaN equals a NaN here.
namespace millichart {

/// What the times of a table's first column count, where that holds dates: so many milliseconds each, from a
/// moment since the beginning of 1970.
struct DateCount {
    std::int64_t First = 0;
    std::int64_t Each = 0;

    friend bool operator==(const DateCount&, const DateCount&) = default;
};

/// Where data that were read from a table stand in it, which diagnostics of their values tell.
struct TableOrigin {
    std::string File;                 ///< as diagnostics call it; empty for data that stand in the document
    std::vector<std::uint32_t> Lines; ///< a row each, from 1; 0 for a row that stands for several
    /// Where the columns stand in the table, from 1; empty when they stand as they are here.
    std::vector<std::uint32_t> Columns = {};
    std::string Sheet = {};    ///< of a spreadsheet file, UTF-8
    bool ArePercent = false;   ///< every number is written as in 45%
    bool IsTransposed = false; ///< rows here are the table's columns: Lines are these, and Columns are lines
    std::optional<DateCount> Dates = {}; ///< none where times are no dates

    friend bool operator==(const TableOrigin&, const TableOrigin&) = default;
};

/// The slices of a pie or half pie: a number each, 0 or more.
struct SliceData {
    std::vector<std::string> Names; ///< those of a table; they show where the record has none
    std::vector<double> Values;

    friend bool operator==(const SliceData& a, const SliceData& b) {
        return penlode::HaveEqualMembers<2>(a, b);
    }
};

/// The bars of a chart: a list a group, a number a component. NaN is a gap.
struct BarData {
    std::vector<std::string> GroupNames;     ///< one a group, or none
    std::vector<std::string> ComponentNames; ///< of a table's heading; they show where the record has none
    std::vector<std::vector<double>> Values;
    TableOrigin Origin; ///< a line a group

    /// Bars of the largest group, or names if there are more.
    std::size_t Components() const {
        std::size_t count = ComponentNames.size();
        for (const std::vector<double>& group : Values) {
            count = (std::max)(count, group.size());
        }
        return count;
    }

    friend bool operator==(const BarData& a, const BarData& b) { return penlode::HaveEqualMembers<4>(a, b); }
};

/// The curves of a chart: a list a curve of values and of the times at which they are. kCurveNull is a gap.
struct CurveData {
    std::vector<std::string> CurveNames; ///< one a curve, or none; they show where the record has none
    std::vector<std::vector<double>> Values;
    std::vector<std::vector<std::int32_t>> Times;
    std::vector<std::string> Labels; ///< of the horizontal axis; without any there are numbers of times
    TableOrigin Origin;              ///< a line a time

    friend bool operator==(const CurveData& a, const CurveData& b) {
        return penlode::HaveEqualMembers<5>(a, b);
    }
};

} // namespace millichart
