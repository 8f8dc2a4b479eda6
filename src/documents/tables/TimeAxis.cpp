#include "documents/tables/TimeAxis.h"

#include "penlode/text/Digits.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <limits>
#include <numeric>

namespace millichart::documents {
namespace {

using Count = std::int64_t;

constexpr Count kMaxTime = std::numeric_limits<std::int32_t>::max();
constexpr Count kMinute = 60'000;
constexpr Count kHour = 60 * kMinute;
constexpr Count kDay = 24 * kHour;

/// Into how many equal parts labels divide a span: of the steps given, coarse ones first, the first of which
/// every part is a multiple. The ends alone if there is none.
Count PartsOf(Count span, std::initializer_list<Count> steps, std::initializer_list<Count> parts) {
    for (const Count step : steps) {
        for (const Count count : parts) {
            if (span % (count * step) == 0) {
                return count;
            }
        }
    }
    return 1;
}

/// A label stands on what was measured if it can, else on a whole day, hour, minute or second.
std::vector<std::string> LabelsOfDates(Count first, Count span, Count step, bool areOfOneDay) {
    areOfOneDay = areOfOneDay || DayText(Milliseconds(first)) == DayText(Milliseconds(first + span));
    Count parts = areOfOneDay ? PartsOf(span, {step, kHour, kMinute, 1000, 1}, {6, 5, 8, 4, 7, 3, 2})
                              : PartsOf(span, {step, kDay, kHour, kMinute, 1000, 1}, {4, 5, 3, 6, 7, 2});
    // Days that make no few equal parts have a place for a label each, and some of them a text: of those that
    // a readable step leaves every other one, as dates are wide.
    constexpr Count kMostDays = 400;
    const bool isSplit = step % kDay == 0 && span / parts % kDay != 0 && span / kDay <= kMostDays;
    parts = isSplit ? span / kDay : parts;
    const Count shown = isSplit ? 2 * Count{ReadableStep(static_cast<std::size_t>(parts) + 1)} : 1;
    const Count common = std::gcd(first, span / parts);
    std::vector<std::string> labels;
    for (Count i = 0; i <= parts; ++i) {
        if (i % shown != 0) {
            labels.emplace_back();
            continue;
        }
        const Milliseconds moment(first + span / parts * i);
        const std::string clock = ClockText(moment, Milliseconds(common));
        labels.push_back(areOfOneDay          ? clock
                         : common % kDay == 0 ? DayText(moment)
                                              : DayText(moment) + "\n" + clock);
    }
    return labels;
}

} // namespace

int DecimalsOf(double number) {
    constexpr std::size_t kMostDecimals = 9;
    const std::string text = penlode::Digits(number, std::chars_format::fixed);
    const std::size_t point = text.find('.');
    return point == std::string::npos ? 0
                                      : static_cast<int>(std::min(text.size() - point - 1, kMostDecimals));
}

std::int32_t TimeScale::TimeOf(double written) const {
    return AreDates ? static_cast<std::int32_t>((static_cast<std::int64_t>(written) - First) / Unit)
                    : static_cast<std::int32_t>(std::lround((written - From) * Factor));
}

std::int32_t ReadableStep(std::size_t count) {
    constexpr std::size_t kMaxLabels = 12;
    for (std::int32_t power = 1; power < 1000000000; power *= 10) {
        for (const std::int32_t digit : {1, 2, 5}) {
            if (count / static_cast<std::size_t>(digit * power) < kMaxLabels) {
                return digit * power;
            }
        }
    }
    return 1000000000;
}

std::vector<std::string> LabelsOfWholeTimes(std::int64_t first, std::int64_t last, bool mayPassOver) {
    constexpr Count kShort = 300;
    const Count span = last - first;
    const Count few = PartsOf(span, {1}, {10, 8, 6, 5, 9, 7, 4, 3, 2});
    const Count parts = few == 1 && mayPassOver && span <= kShort ? span : few;
    std::vector<std::string> labels;
    for (Count i = 0; i <= parts; ++i) {
        labels.push_back(std::to_string(first + span / parts * i));
    }
    return labels;
}

TimeScale ScaleOf(const DateSpan& dates) {
    const Count span = dates.Last - dates.First;
    const Count step = std::max(dates.Step, Count{1});
    Count unit = 1;
    for (const Count larger : {Count{1000}, kMinute, kHour, kDay}) {
        unit = step % larger == 0 || span / unit > kMaxTime ? larger : unit;
    }
    TimeScale scale;
    scale.AreDates = true;
    scale.First = dates.First;
    scale.Unit = unit;
    if (!dates.AreOfOneDay) {
        scale.Dates = DateCount{dates.First, unit};
    }
    if (span > 0) {
        scale.Labels = LabelsOfDates(dates.First, span, step, dates.AreOfOneDay);
    }
    return scale;
}

TimeScale ScaleOf(const NumberSpan& numbers) {
    const auto [first, last, most] = numbers;
    int decimals = most;
    const double largest = std::max(std::abs(first), std::abs(last));
    while (decimals > 0 && largest * std::pow(10.0, decimals) > kMaxTimeNumber) {
        --decimals;
    }
    const auto most32 = static_cast<double>(kMaxTime);
    TimeScale scale;
    scale.Factor = std::pow(10.0, decimals);
    const bool isFar = largest * scale.Factor > most32;
    scale.From = isFar ? first : 0.0;
    scale.Factor = std::min(scale.Factor, isFar && last > first ? most32 / (last - first) : scale.Factor);
    if (first < last) {
        const auto span = std::llround((last - first) * std::pow(10.0, decimals));
        // A fifth of any number has one decimal more.
        const Count found = PartsOf(span, {1}, {10, 8, 6, 5, 9, 7, 4});
        const Count parts = found == 1 ? 5 : found;
        for (Count i = 0; i <= parts; ++i) {
            const double part = static_cast<double>(i) / static_cast<double>(parts);
            scale.Labels.push_back(penlode::RoundedDigits(first + (last - first) * part, decimals + 1));
        }
    }
    return scale;
}

TimeAxis AxisOfDates(const DateColumn& dates) {
    const auto [least, most] = std::minmax_element(dates.Moments.begin(), dates.Moments.end());
    DateSpan span{least->count(), most->count(), 0, dates.AreOfOneDay};
    for (const Milliseconds moment : dates.Moments) {
        span.Step = std::gcd(span.Step, moment.count() - span.First);
    }
    TimeScale scale = ScaleOf(span);
    TimeAxis axis;
    std::transform(
        dates.Moments.begin(), dates.Moments.end(), std::back_inserter(axis.Times),
        [&scale](Milliseconds moment) { return scale.TimeOf(static_cast<double>(moment.count())); });
    axis.Labels = std::move(scale.Labels);
    axis.Dates = scale.Dates;
    return axis;
}

TimeAxis AxisOfNumbers(const std::vector<double>& numbers) {
    const auto [least, most] = std::minmax_element(numbers.begin(), numbers.end());
    NumberSpan span{*least, *most, 0};
    for (const double number : numbers) {
        span.Decimals = std::max(span.Decimals, DecimalsOf(number));
    }
    TimeScale scale = ScaleOf(span);
    TimeAxis axis;
    std::transform(numbers.begin(), numbers.end(), std::back_inserter(axis.Times),
                   [&scale](double number) { return scale.TimeOf(number); });
    axis.Labels = std::move(scale.Labels);
    return axis;
}

} // namespace millichart::documents
