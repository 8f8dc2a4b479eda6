#include "documents/tables/Dates.h"

#include "penlode/text/Digits.h"

#include <algorithm>
#include <array>

namespace millichart::documents {
namespace {

using namespace std::chrono_literals;

/// Takes a text apart from its beginning.
class Scanner {
public:
    explicit Scanner(std::string_view text) : m_text(text) {}

    bool AtEnd() const { return m_text.empty(); }

    bool Take(std::string_view word) {
        const bool isThere = m_text.starts_with(word);
        m_text.remove_prefix(isThere ? word.size() : 0);
        return isThere;
    }

    void TakeBlanks() {
        while (Take(" ")) {
        }
    }

    /// A number of so many digits; `digits` tells how many there were.
    std::optional<int> Number(std::size_t fewest, std::size_t most, std::size_t* digits = nullptr) {
        const std::size_t count = std::min(m_text.find_first_not_of("0123456789"), m_text.size());
        if (count < fewest || count > most) {
            return std::nullopt;
        }
        const std::optional<int> number = penlode::NumberOf<int>(m_text.substr(0, count));
        m_text.remove_prefix(count);
        if (digits != nullptr) {
            *digits = count;
        }
        return number;
    }

private:
    std::string_view m_text;
};

bool ReadFraction(Scanner& scanner, WrittenDate& date) {
    constexpr std::array<int, 4> kUnits = {1000, 100, 10, 1};
    std::size_t digits = 0;
    const std::optional<int> fraction = scanner.Number(1, 9, &digits);
    if (!fraction) {
        return false;
    }
    int value = *fraction;
    for (; digits > 3; --digits) {
        value /= 10;
    }
    date.Time += value * kUnits[digits] * 1ms;
    return true;
}

bool ReadZone(Scanner& scanner, WrittenDate& date) {
    if (scanner.Take("Z")) {
        return true;
    }
    const bool isEast = scanner.Take("+");
    if (!isEast && !scanner.Take("-")) {
        return true;
    }
    const std::optional<int> hours = scanner.Number(2, 2);
    scanner.Take(":");
    const std::optional<int> minutes = scanner.AtEnd() ? 0 : scanner.Number(2, 2);
    if (!hours || !minutes) {
        return false;
    }
    date.Offset = (*hours * 1h + *minutes * 1min) * (isEast ? 1 : -1);
    return true;
}

/// "14:30" and what may follow, up to the end.
bool ReadTime(Scanner& scanner, WrittenDate& date) {
    const std::optional<int> hours = scanner.Number(1, 2);
    const std::optional<int> minutes = hours && scanner.Take(":") ? scanner.Number(2, 2) : std::nullopt;
    const std::optional<int> seconds = minutes && scanner.Take(":") ? scanner.Number(2, 2) : std::optional(0);
    if (!minutes || !seconds || *hours > 24 || *minutes > 59 || *seconds > 60) {
        return false;
    }
    date.Time = *hours * 1h + *minutes * 1min + *seconds * 1s;
    if (scanner.Take(".") && !ReadFraction(scanner, date)) {
        return false;
    }
    return ReadZone(scanner, date) && scanner.AtEnd();
}

std::string TwoDigits(std::int64_t number) {
    const std::string digits = std::to_string(number);
    return digits.size() < 2 ? "0" + digits : digits;
}

/// What parts a date's numbers; empty for what does not.
std::string_view TakeSeparator(Scanner& scanner) {
    for (const std::string_view separator : {"-", "/", ".", "年"}) {
        if (scanner.Take(separator)) {
            return separator;
        }
    }
    return {};
}

/// What follows a year.
bool ReadMonth(Scanner& scanner, std::string_view separator, WrittenDate& date) {
    const bool isChinese = separator == "年";
    const std::optional<int> month = scanner.Number(1, 2);
    if (!month || (isChinese && !scanner.Take("月"))) {
        return false;
    }
    date.Month = static_cast<unsigned>(*month);
    if (scanner.AtEnd()) {
        return separator != "."; // which a decimal number has
    }
    const std::optional<int> day = isChinese || scanner.Take(separator) ? scanner.Number(1, 2) : std::nullopt;
    date.Day = static_cast<unsigned>(day.value_or(0));
    return day && (!isChinese || scanner.Take("日") || scanner.Take("号"));
}

bool ReadDayFirst(Scanner& scanner, std::string_view separator, int first, WrittenDate& date) {
    const std::optional<int> second = scanner.Number(1, 2);
    const std::optional<int> year = second && scanner.Take(separator) ? scanner.Number(4, 4) : std::nullopt;
    if (!year) {
        return false;
    }
    date.Year = *year;
    date.Month = static_cast<unsigned>(*second);
    date.Day = static_cast<unsigned>(first);
    date.IsOrderOpen = separator != ".";
    return true;
}

std::optional<Milliseconds> MomentOf(const WrittenDate& date, unsigned month, unsigned day) {
    const std::chrono::year_month_day on{std::chrono::year(date.Year), std::chrono::month(month),
                                         std::chrono::day(day)};
    if (!on.ok()) {
        return std::nullopt;
    }
    return std::chrono::sys_days(on).time_since_epoch() + date.Time - date.Offset;
}

/// The moments of those that are there, if all exist.
std::optional<std::vector<Milliseconds>> Moments(const std::vector<WrittenDate>& dates, bool isDayFirst) {
    std::vector<Milliseconds> moments;
    moments.reserve(dates.size());
    for (const WrittenDate& date : dates) {
        const std::optional<Milliseconds> moment = date.Moment(isDayFirst);
        if (!moment) {
            return std::nullopt;
        }
        moments.push_back(*moment + dates.front().Offset);
    }
    return moments;
}

bool IsRising(const std::vector<Milliseconds>& moments) {
    return std::is_sorted(moments.begin(), moments.end());
}

/// Puts a moment for each empty text between those of the others.
void Spread(std::vector<Milliseconds>& moments, const std::vector<std::string>& texts) {
    std::vector<Milliseconds> spread(texts.size(), moments.front());
    std::size_t next = 0;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (!texts[i].empty()) {
            spread[i] = moments[next++];
        }
    }
    moments = std::move(spread);
}

} // namespace

std::optional<Milliseconds> WrittenDate::Moment(bool isDayFirst) const {
    return IsOrderOpen && !isDayFirst ? MomentOf(*this, Day, Month) : MomentOf(*this, Month, Day);
}

std::optional<WrittenDate> ReadDate(std::string_view text) {
    WrittenDate date;
    if (Scanner time(text); ReadTime(time, date)) {
        date.HasDate = false;
        return date;
    }
    date = {};
    Scanner scanner(text);
    std::size_t digits = 0;
    const std::optional<int> first = scanner.Number(1, 4, &digits);
    const std::string_view separator = first && digits != 3 ? TakeSeparator(scanner) : std::string_view();
    if (separator.empty() || (digits < 3 && separator == "年")) {
        return std::nullopt;
    }
    date.Year = *first;
    if (!(digits == 4 ? ReadMonth(scanner, separator, date)
                      : ReadDayFirst(scanner, separator, *first, date)) ||
        (!date.Moment(true) && !date.Moment(false))) {
        return std::nullopt;
    }
    const bool hasMore = scanner.Take("T") || !scanner.AtEnd();
    scanner.TakeBlanks();
    if (hasMore && !ReadTime(scanner, date)) {
        return std::nullopt;
    }
    return date;
}

std::string DayText(Milliseconds moment) {
    const std::chrono::year_month_day date(
        std::chrono::sys_days(std::chrono::floor<std::chrono::days>(moment)));
    return std::to_string(static_cast<int>(date.year())) + "-" +
           TwoDigits(static_cast<unsigned>(date.month())) + "-" +
           TwoDigits(static_cast<unsigned>(date.day()));
}

std::string ClockText(Milliseconds moment, Milliseconds step) {
    const std::int64_t time = (moment - std::chrono::floor<std::chrono::days>(moment)).count();
    std::string text = TwoDigits(time / 3600000) + ":" + TwoDigits(time / 60000 % 60);
    if (step % 1min != 0ms) {
        text += ":" + TwoDigits(time / 1000 % 60);
    }
    if (step % 1s != 0ms) {
        text += "." + std::to_string(1000 + time % 1000).substr(1);
    }
    return text;
}

std::optional<DateColumn> ReadDates(const std::vector<std::string>& texts, bool isDayFirst) {
    std::vector<WrittenDate> dates;
    for (const std::string& text : texts) {
        const std::optional<WrittenDate> date = text.empty() ? std::nullopt : ReadDate(text);
        if (date && (dates.empty() || dates.front().HasDate == date->HasDate)) {
            dates.push_back(*date);
        } else if (!text.empty()) {
            return std::nullopt;
        }
    }
    std::optional<std::vector<Milliseconds>> byDay = Moments(dates, true);
    std::optional<std::vector<Milliseconds>> byMonth = Moments(dates, false);
    if (dates.empty() || (!byDay && !byMonth)) {
        return std::nullopt;
    }
    DateColumn column;
    column.AreOfOneDay = !dates.front().HasDate;
    if (byDay && byMonth && *byDay != *byMonth) {
        column.IsOrderOpen = IsRising(*byDay) == IsRising(*byMonth);
        isDayFirst = column.IsOrderOpen ? isDayFirst : IsRising(*byDay);
    } else {
        isDayFirst = byDay.has_value();
    }
    column.Moments = *std::move(isDayFirst ? byDay : byMonth);
    Spread(column.Moments, texts);
    return column;
}

} // namespace millichart::documents
