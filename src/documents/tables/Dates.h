#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Days and times of day as people and programs write them:
///
///     2024-01-05    2024/1/5    2024.1.5    2024年1月5日    with or without 14:30, 14:30:05.25, T14:30Z
///     2024-01       2024/1      2024年1月                   a month, which stands at its first day
///     5.1.2024      5/1/2024    5-1-2024                    day first after dots, else day or month first
///     14:30                                                 a time alone
namespace millichart::documents {

using Milliseconds = std::chrono::milliseconds;

/// A moment as it is written. Which of `Month` and `Day` is which may be open.
struct WrittenDate {
    int Year = 1970;
    unsigned Month = 1;
    unsigned Day = 1;
    bool IsOrderOpen = false; ///< as in 5/1/2024
    bool HasDate = true;
    Milliseconds Time{};   ///< since midnight
    Milliseconds Offset{}; ///< of the zone, east of Greenwich

    /// Since the beginning of 1970 in Greenwich, with month and day exchanged or not; nothing for a day that
    /// does not exist.
    std::optional<Milliseconds> Moment(bool isDayFirst) const;
};

/// Nothing for what is no date and no time.
std::optional<WrittenDate> ReadDate(std::string_view text);

/// "2024-01-05"
std::string DayText(Milliseconds moment);

/// "14:30", with seconds and less as far as `step`, of which the moment is a multiple, needs them.
std::string ClockText(Milliseconds moment, Milliseconds step);

/// The moments of a column of dates.
struct DateColumn {
    std::vector<Milliseconds> Moments; ///< a row each, by the first one's clock; an empty text's is the first
    bool IsOrderOpen = false;          ///< nothing told whether days or months come first
    bool AreOfOneDay = false;          ///< times alone
};

/// Nothing unless all texts that are not empty are dates, or all are times. Days and months are told apart by
/// what exists and by what makes a rising column; where that says nothing, by `isDayFirst`.
std::optional<DateColumn> ReadDates(const std::vector<std::string>& texts, bool isDayFirst);

} // namespace millichart::documents
