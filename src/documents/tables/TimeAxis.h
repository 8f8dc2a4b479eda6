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

/// What must be known of a column of dates, in milliseconds.
struct DateSpan {
    std::int64_t First = 0; ///< the earliest
    std::int64_t Last = 0;
    std::int64_t Step = 0; ///< divides all distances
    bool AreOfOneDay = false;
};

/// The same of one of numbers.
struct NumberSpan {
    double First = 0.0; ///< the smallest
    double Last = 0.0;
    int Decimals = 0; ///< the most that one has
};

/// How the times of a column are counted and labelled.
struct TimeScale {
    bool AreDates = false; ///< counted in units from the first; else numbers, as many times as large
    std::int64_t First = 0;
    std::int64_t Unit = 1;
    double From = 0.0;
    double Factor = 1.0;
    std::vector<std::string> Labels = {};
    std::optional<DateCount> Dates = {};

    /// Of a moment, or a number.
    std::int32_t TimeOf(double written) const;
};

TimeScale ScaleOf(const DateSpan& dates);
TimeScale ScaleOf(const NumberSpan& numbers);

/// So many count of those that the shortest text has that reads back the same.
int DecimalsOf(double number);

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
