#pragma once

#include "charts/curve/CurveProp.h"
#include "documents/ChartData.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

/// What becomes of a line when it is stroked, told in the plainest way, so that lines of different rows can
/// be found to look alike.
namespace documents_test {

using Line = std::vector<std::pair<std::int32_t, double>>;

/// All rows of one curve, which need no order.
inline Line InOrder(Line rows) {
    std::sort(rows.begin(), rows.end());
    return rows;
}

inline Line LineOf(const millichart::CurveData& data, std::size_t curve) {
    Line line;
    for (std::size_t i = 0; i < data.Values[curve].size(); ++i) {
        line.emplace_back(data.Times[curve][i], data.Values[curve][i]);
    }
    return line;
}

/// The rows of one column that stay, each once.
inline void Keep(const Line& column, Line& kept) {
    const auto lower = [](const auto& a, const auto& b) { return a.second < b.second; };
    std::vector<std::size_t> places{0, column.size() - 1};
    places.push_back(
        static_cast<std::size_t>(std::min_element(column.begin(), column.end(), lower) - column.begin()));
    places.push_back(
        static_cast<std::size_t>(std::max_element(column.begin(), column.end(), lower) - column.begin()));
    std::sort(places.begin(), places.end());
    for (const std::size_t place : places) {
        if (kept.empty() || kept.back() != column[place]) {
            kept.push_back(column[place]);
        }
    }
}

/// Of a part without gaps: whether it is stroked as data are, and then what is left of it.
inline std::pair<bool, Line> Stroked(const Line& run, const std::vector<std::int32_t>& starts) {
    if (run.size() < 65) {
        return {false, run};
    }
    const auto cellOf = [&starts](std::int32_t time) {
        return std::upper_bound(starts.begin(), starts.end(), time);
    };
    Line kept;
    bool isThinned = false;
    for (std::size_t i = 0; i < run.size();) {
        Line column;
        for (; i < run.size() && (column.empty() || cellOf(column[0].first) == cellOf(run[i].first)); ++i) {
            column.push_back(run[i]);
        }
        const std::size_t before = kept.size();
        Keep(column, kept);
        isThinned = isThinned || kept.size() - before < column.size();
    }
    return {isThinned, kept};
}

/// What is stroked of each part between two gaps, and where these are.
template <class IsGap>
std::vector<std::pair<bool, Line>> Look(const Line& line, const std::vector<std::int32_t>& starts,
                                        const IsGap& isGap) {
    std::vector<std::pair<bool, Line>> look;
    Line run;
    for (const auto& row : line) {
        if (isGap(row.second)) {
            look.push_back(Stroked(run, starts));
            look.emplace_back(false, Line{{row.first, 0.0}});
            run.clear();
        } else {
            run.push_back(row);
        }
    }
    look.push_back(Stroked(run, starts));
    return look;
}

inline std::vector<std::pair<bool, Line>> Look(const Line& line, const std::vector<std::int32_t>& starts) {
    return Look(line, starts, millichart::IsCurveNull);
}

} // namespace documents_test
