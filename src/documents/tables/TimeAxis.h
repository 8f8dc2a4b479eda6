#pragma once

#include "documents/ChartData.h"
#include "documents/tables/Dates.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace millichart::documents {

/// Beyond this a number no longer holds each whole one.
inline constexpr double kMaxTimeNumber = 1e15;

/// What a line chart makes of a first column that holds no whole numbers: times at their true distances, and
/// texts to be spread evenly from the first to the last, each true where it stands.
struct TimeAxis {
    std::vector<std::int32_t> Times;
    std::vector<std::string> Labels;
    std::optional<DateCount> Dates = {}; ///< of dates that are more than times of one day
};

/// 1, 2 or 5 times a power of ten, so that every so many of `count` labels are few enough to read.
std::int32_t ReadableStep(std::size_t count);

/// Whole numbers from the first to the last, evenly spread: a few, or else one for each time of a short span
/// if a step may pass over some of them, or else the ends alone.
std::vector<std::string> LabelsOfWholeTimes(std::int64_t first, std::int64_t last, bool mayPassOver);

/// Counted from the first in days, hours, minutes, seconds or less, whichever is the largest that fits all.
/// There is one at least.
TimeAxis AxisOfDates(const DateColumn& dates);

/// Numbers with decimals, or beyond 32 bits: times a power of ten, and counted from the smallest if they must
/// be. There is one at least, and none is beyond kMaxTimeNumber.
TimeAxis AxisOfNumbers(const std::vector<double>& numbers);

} // namespace millichart::documents
