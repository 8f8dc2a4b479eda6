#include "documents/points/CellSteps.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <random>

namespace millichart::documents {
namespace {

using Starts = std::vector<std::int32_t>;

/// Columns of a picture, some of whose edges are one time wide as nobody knows where they are.
Starts ColumnsFrom(double first, double width, std::size_t count, std::mt19937& random) {
    Starts starts;
    for (std::size_t i = 0; i < count; ++i) {
        const auto start = static_cast<std::int32_t>(std::ceil(first + width * static_cast<double>(i)));
        starts.push_back(start);
        if (random() % 2 == 0) {
            starts.push_back(start + 1);
        }
    }
    starts.erase(std::unique(starts.begin(), starts.end()), starts.end());
    return starts;
}

/// The key by which a data base with other rounding groups a time.
double KeyOf(const CellSteps& steps, double time, double rounding) {
    if (steps.AreTimesAlone) {
        return time;
    }
    const double step = ((time - steps.Base) * steps.Scale + steps.Shift) * (1.0 + rounding);
    const double whole = std::floor(step);
    const bool isAlone = step - whole < steps.Bracket ||
                         std::count(steps.Odd.begin(), steps.Odd.end(), static_cast<std::int64_t>(whole)) > 0;
    return isAlone ? time : -1e10 - whole;
}

/// How many groups all times fall into, or those near every start. None may reach over a start.
std::size_t CountGroups(const Starts& starts, std::int64_t first, std::int64_t last, std::int64_t near) {
    const CellSteps steps = StepsOf(starts, first, last);
    std::map<double, std::ptrdiff_t> cells;
    std::mt19937 random(7);
    const auto look = [&](std::int64_t time) {
        const double rounding = (static_cast<double>(random() % 3) - 1.0) * 2.0e-16;
        const auto cell = std::upper_bound(starts.begin(), starts.end(), time) - starts.begin();
        const auto known = cells.emplace(KeyOf(steps, static_cast<double>(time), rounding), cell).first;
        EXPECT_EQ(known->second, cell) << "of the time " << time;
    };
    for (std::int64_t time = first; near == 0 && time <= last; ++time) {
        look(time);
    }
    for (const std::int32_t start : starts) {
        for (std::int64_t time = start - near; time < start + near; ++time) {
            look(std::clamp(time, first, last));
        }
    }
    return cells.size();
}

} // namespace

TEST(CellSteps, NoGroupReachesOverAStartAndThereAreFew) {
    std::mt19937 random(1);
    for (const double width : {40.0, 61.8, 517.03, 2500.37}) {
        for (const double first : {-70000.5, 0.0, 123456.7}) {
            const Starts starts = ColumnsFrom(first, width, 400, random);
            const std::size_t groups = CountGroups(starts, starts.front() - 90, starts.back() + 3000, 0);
            EXPECT_LT(groups, starts.size() * 10) << width;
        }
    }
    const double second = 4.2e9 / 3000.0;
    const Starts wide = ColumnsFrom(-2.1e9, second, 3000, random);
    EXPECT_LT(CountGroups(wide, INT32_MIN, INT32_MAX, 20), wide.size() * 50);
}

TEST(CellSteps, StartsOutOfAllOrderCostGroupsAndNoCells) {
    std::mt19937 random(2);
    Starts starts = ColumnsFrom(1000.0, 300.0, 500, random);
    starts.insert(std::upper_bound(starts.begin(), starts.end(), 4157), 4157);
    starts.insert(starts.begin(), 517);
    EXPECT_LT(CountGroups(starts, 0, 160000, 0), 10000U);
    for (std::int32_t& start : starts) {
        start += static_cast<std::int32_t>(random() % 90);
    }
    std::sort(starts.begin(), starts.end());
    starts.erase(std::unique(starts.begin(), starts.end()), starts.end());
    CountGroups(starts, 0, 160000, 0);
    CountGroups({}, -5, 160000, 0);
    CountGroups({77}, -5, 160000, 0);
    EXPECT_EQ(CountGroups({3, 9, 12}, 0, 20, 0), 21U) << "too few to be told apart from others";
}

} // namespace millichart::documents
