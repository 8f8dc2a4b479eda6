#pragma once

#include "penlode/Geometry.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// Where the ticks of an axis of dates stand and what they say: on years, half-years, quarters, months,
/// Mondays, days, hours, minutes or seconds.
///
///     |      |      |      |      |        |     |     |
///     11月   12月   1月    2月    3月      6:00  12:00 18:00
///     2023          2024                   3月15日
///
/// Below the first of a year's months and days stands the year, below the first of a day's hours the day, and
/// below the first label of all the whole of it. Years are counted as in the present calendar at any time,
/// the one before the year 1 being the year 0.
namespace millichart {

struct TimeTick {
    std::int32_t Time;
    std::string Text; ///< narrow (GB18030), of one or two lines

    friend bool operator==(const TimeTick&, const TimeTick&) = default;
};

/// From the first time of an axis to the last, in one of the units that are dates.
struct DateSpan {
    std::int32_t First;
    std::int32_t Last;
    std::int32_t Unit; ///< TimeUnit::Days or TimeUnit::Seconds
};

/// The closest round ticks within the span that are at most so many, and at most 10,000.
std::vector<TimeTick> TimeTicks(const DateSpan& span, std::size_t most);

/// The texts that have a time, and times that have a text, from `first` to `last`, in the order of time.
std::vector<TimeTick> LabelsWithin(std::int32_t first, std::int32_t last,
                                   const std::vector<std::int32_t>& times,
                                   const std::vector<std::string>& texts);

/// Up to twelve ticks whose labels do not touch on an axis of that length; at least two if there are any two,
/// touching or not.
std::vector<TimeTick> TimeTicksThatFit(const DateSpan& span, float length,
                                       const std::function<penlode::SizeF(const std::string&)>& measure);

} // namespace millichart
