#include "charts/reading/TimeTicks.h"

#include "foundation/ChartOptions.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <optional>

namespace millichart {
namespace {

constexpr std::int64_t kMinute = 60;
constexpr std::int64_t kHour = 60 * kMinute;
constexpr std::int64_t kDay = 24 * kHour;
constexpr std::int64_t kMonthsOfYear = 12;

std::int64_t FloorOf(std::int64_t number, std::int64_t divisor) {
    return number / divisor - (number % divisor < 0 ? 1 : 0);
}

/// Counted from 1 January 1970 on, by a calendar whose years have no end. It repeats itself after 400 years,
/// so that the standard library's, whose years have, can tell all dates.
struct Date {
    static constexpr std::int64_t kCycleYears = 400;
    static constexpr std::int64_t kCycleDays = 146097;

    std::int64_t Year;
    unsigned Month;
    unsigned Day;

    static Date OfDay(std::int64_t day) {
        const std::int64_t cycles = FloorOf(day, kCycleDays);
        const std::chrono::year_month_day date{
            std::chrono::sys_days(std::chrono::days(static_cast<int>(day - cycles * kCycleDays)))};
        return {static_cast<int>(date.year()) + cycles * kCycleYears, static_cast<unsigned>(date.month()),
                static_cast<unsigned>(date.day())};
    }

    /// Of the first day of a month, counted from January of the year 0.
    static std::int64_t DayOfMonth(std::int64_t month) {
        const std::int64_t year = FloorOf(month, kMonthsOfYear);
        const std::int64_t cycles = FloorOf(year, kCycleYears);
        const std::chrono::year_month_day date =
            std::chrono::year(static_cast<int>(year - cycles * kCycleYears)) /
            static_cast<int>(month - year * kMonthsOfYear + 1) / 1;
        return std::chrono::sys_days(date).time_since_epoch().count() + cycles * kCycleDays;
    }

    std::int64_t MonthCount() const { return Year * kMonthsOfYear + Month - 1; }
};

/// What a label tells in its first line.
enum class Grain { Second, Minute, Day, Month, Year };

/// From tick to tick.
struct TickStep {
    Grain Tells;
    std::int64_t Seconds; ///< about so many, if there are months
    std::int64_t Months = 0;
    std::int64_t Start = 0; ///< a tick, from which the seconds are counted
};

constexpr TickStep Months(std::int64_t count) {
    constexpr std::int64_t kMonth = 2629746;
    return {count < kMonthsOfYear ? Grain::Month : Grain::Year, count * kMonth, count};
}

constexpr TickStep Years(std::int64_t count) {
    return Months(count * kMonthsOfYear);
}

constexpr std::int64_t kMonday = 4 * kDay;

constexpr std::array kSteps{
    TickStep{Grain::Second, 1},
    TickStep{Grain::Second, 2},
    TickStep{Grain::Second, 5},
    TickStep{Grain::Second, 10},
    TickStep{Grain::Second, 30},
    TickStep{Grain::Minute, kMinute},
    TickStep{Grain::Minute, 2 * kMinute},
    TickStep{Grain::Minute, 5 * kMinute},
    TickStep{Grain::Minute, 10 * kMinute},
    TickStep{Grain::Minute, 30 * kMinute},
    TickStep{Grain::Minute, kHour},
    TickStep{Grain::Minute, 2 * kHour},
    TickStep{Grain::Minute, 3 * kHour},
    TickStep{Grain::Minute, 6 * kHour},
    TickStep{Grain::Minute, 12 * kHour},
    TickStep{Grain::Day, kDay},
    TickStep{Grain::Day, 2 * kDay},
    TickStep{Grain::Day, 7 * kDay, 0, kMonday},
    TickStep{Grain::Day, 14 * kDay, 0, kMonday},
    Months(1),
    Months(3),
    Months(6),
    Years(1),
    Years(2),
    Years(5),
    Years(10),
    Years(20),
    Years(50),
    Years(100),
    Years(200),
    Years(500),
    Years(1000),
    Years(2000),
    Years(5000),
    Years(10000),
    Years(20000),
    Years(50000),
    Years(100000),
    Years(200000),
    Years(500000),
    Years(1000000),
    Years(2000000),
    Years(5000000),
    Years(10000000),
};

/// The axis in seconds since 1970, and what its times are counted in.
struct Axis {
    std::int64_t First;
    std::int64_t Last;
    std::int64_t Unit;
};

Axis AxisOf(const DateSpan& span) {
    const std::int64_t unit = span.Unit == TimeUnit::Days ? kDay : 1;
    return {span.First * unit, span.Last * unit, unit};
}

/// The multiple of the step at a number or above it.
std::int64_t MultipleFrom(std::int64_t number, std::int64_t step) {
    return -FloorOf(-number, step) * step;
}

/// The moments of the ticks; nothing if there are more than `most`.
std::optional<std::vector<std::int64_t>> MomentsOf(const Axis& axis, const TickStep& step, std::size_t most) {
    std::vector<std::int64_t> moments;
    const auto add = [&](std::int64_t moment) {
        if (moment >= axis.First && moment <= axis.Last) {
            moments.push_back(moment);
        }
        return moment <= axis.Last && moments.size() <= most;
    };
    if (step.Months == 0) {
        std::int64_t moment = MultipleFrom(axis.First - step.Start, step.Seconds) + step.Start;
        while (add(moment)) {
            moment += step.Seconds;
        }
    } else {
        const Date first = Date::OfDay(FloorOf(axis.First, kDay));
        std::int64_t month = MultipleFrom(first.MonthCount(), step.Months);
        while (add(Date::DayOfMonth(month) * kDay)) {
            month += step.Months;
        }
    }
    return moments.size() <= most ? std::optional(moments) : std::nullopt;
}

std::string TwoDigits(std::int64_t number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

std::string Clock(std::int64_t secondOfDay, bool tellsSeconds) {
    return std::to_string(secondOfDay / kHour) + ":" + TwoDigits(secondOfDay % kHour / kMinute) +
           (tellsSeconds ? ":" + TwoDigits(secondOfDay % kMinute) : "");
}

std::string DayText(const Date& date) {
    return std::to_string(date.Month) + "月" + std::to_string(date.Day) + "日";
}

/// One label after the other, each of which tells below it what the one before it has not told.
class Labels {
public:
    explicit Labels(Grain tells) : m_tells(tells) {}

    std::string Next(std::int64_t moment) {
        const std::int64_t day = FloorOf(moment, kDay);
        const Date date = Date::OfDay(day);
        const bool isNewYear = date.Year != m_year;
        const bool isNewDay = day != m_day;
        m_year = date.Year;
        m_day = day;
        return penlode::CStringUtil::Utf8ToAnsi(TextOf(date, moment - day * kDay, isNewYear, isNewDay));
    }

private:
    std::string TextOf(const Date& date, std::int64_t secondOfDay, bool isNewYear, bool isNewDay) const {
        const std::string year = std::to_string(date.Year);
        const std::string below = isNewYear ? "\n" + year : "";
        switch (m_tells) {
        case Grain::Year:
            return year;
        case Grain::Month:
            return std::to_string(date.Month) + "月" + below;
        case Grain::Day:
            return DayText(date) + below;
        default:
            return Clock(secondOfDay, m_tells == Grain::Second) +
                   (isNewDay ? (isNewYear ? below + "年" : "\n") + DayText(date) : "");
        }
    }

    Grain m_tells;
    std::optional<std::int64_t> m_year;
    std::optional<std::int64_t> m_day;
};

bool DoTouch(const std::vector<TimeTick>& ticks, const DateSpan& span, float length,
             const std::function<penlode::SizeF(const std::string&)>& measure) {
    constexpr float kGapOfHeight = 0.35F;
    const double reach = static_cast<double>(span.Last) - span.First;
    penlode::SizeF previous;
    for (std::size_t i = 0; i < ticks.size(); ++i) {
        const penlode::SizeF size = measure(ticks[i].Text);
        if (i > 0) {
            const double distance = (static_cast<double>(ticks[i].Time) - ticks[i - 1].Time) * length / reach;
            if (distance < (previous.Width + size.Width) * 0.5F +
                               kGapOfHeight * std::max(previous.Height, size.Height)) {
                return true;
            }
        }
        previous = size;
    }
    return false;
}

} // namespace

std::vector<TimeTick> LabelsWithin(std::int32_t first, std::int32_t last,
                                   const std::vector<std::int32_t>& times,
                                   const std::vector<std::string>& texts) {
    std::vector<TimeTick> labels;
    for (std::size_t i = 0; i < times.size() && i < texts.size(); ++i) {
        if (times[i] >= first && times[i] <= last) {
            labels.push_back({times[i], texts[i]});
        }
    }
    std::stable_sort(labels.begin(), labels.end(),
                     [](const TimeTick& a, const TimeTick& b) { return a.Time < b.Time; });
    return labels;
}

std::vector<TimeTick> TimeTicks(const DateSpan& span, std::size_t most) {
    constexpr std::size_t kMostTicks = 10000;
    most = std::min(most, kMostTicks);
    const Axis axis = AxisOf(span);
    for (const TickStep& step : kSteps) {
        const bool isTooFine = static_cast<std::uint64_t>((axis.Last - axis.First) / step.Seconds) > most + 1;
        if (isTooFine || step.Seconds < axis.Unit) {
            continue;
        }
        if (const auto moments = MomentsOf(axis, step, most)) {
            Labels labels(step.Tells);
            std::vector<TimeTick> ticks;
            for (const std::int64_t moment : *moments) {
                ticks.push_back({static_cast<std::int32_t>(moment / axis.Unit), labels.Next(moment)});
            }
            return ticks;
        }
    }
    return {};
}

std::vector<TimeTick> TimeTicksThatFit(const DateSpan& span, float length,
                                       const std::function<penlode::SizeF(const std::string&)>& measure) {
    constexpr std::size_t kMost = 12;
    std::vector<TimeTick> ticks = TimeTicks(span, kMost);
    while (ticks.size() > 2 && DoTouch(ticks, span, length, measure)) {
        std::vector<TimeTick> fewer = TimeTicks(span, ticks.size() - 1);
        if (fewer.size() < 2) {
            break;
        }
        ticks = std::move(fewer);
    }
    return ticks;
}

} // namespace millichart
