#include "documents/large/PlainRows.h"

#include "charts/curve/CurveProp.h"
#include "documents/tables/TimeAxis.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <limits>
#include <system_error>

namespace millichart::documents {
namespace {

constexpr std::array kPowers{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                             1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

unsigned DigitAt(const char* at) {
    return static_cast<unsigned char>(*at) - static_cast<unsigned>('0');
}

/// What is written with digits alone.
struct PlainNumber {
    double Value = 0.0;
    int Decimals = 0; ///< without zeros at the end
    bool HasMark = false;
};

/// With few digits the number and the power of ten are exact, and so their quotient is rounded but once.
/// Anything longer is left to the standard library, which must know the mark.
const char* ReadLongNumber(const char* at, const char* end, char mark, PlainNumber& number) {
    const auto [stop, error] = std::from_chars(at, end, number.Value);
    if (error != std::errc() || mark != '.' || !std::isfinite(number.Value)) {
        return nullptr;
    }
    number.Decimals = DecimalsOf(number.Value);
    number.HasMark = true; // or too long for a whole time
    return stop;
}

/// Behind a number; null for what is none.
const char* ReadNumber(const char* at, const char* end, char mark, PlainNumber& number) {
    constexpr std::ptrdiff_t kMostDigits = 15;
    const char* const begin = at;
    const bool isNegative = *at == '-';
    at += isNegative ? 1 : 0;
    const char* const digits = at;
    std::uint64_t whole = 0;
    for (; DigitAt(at) < 10U; ++at) {
        whole = whole * 10U + DigitAt(at);
    }
    std::ptrdiff_t count = at - digits;
    if (count == 0) {
        return nullptr;
    }
    std::ptrdiff_t decimals = 0;
    number.HasMark = *at == mark;
    number.Decimals = 0;
    if (number.HasMark) {
        const char* const first = ++at;
        for (; DigitAt(at) < 10U; ++at) {
            whole = whole * 10U + DigitAt(at);
        }
        decimals = at - first;
        count += decimals;
        if (decimals == 0) {
            return nullptr;
        }
    }
    if (count > kMostDigits || *at == 'e' || *at == 'E') {
        return ReadLongNumber(begin, end, mark, number);
    }
    number.Value = static_cast<double>(whole);
    if (decimals > 0) {
        number.Value /= kPowers[static_cast<std::size_t>(decimals)];
        number.Decimals = static_cast<int>(decimals);
        for (const char* last = at - 1; number.Decimals > 0 && *last == '0'; --last) {
            --number.Decimals;
        }
    }
    number.Value = isNegative ? -number.Value : number.Value;
    return at;
}

/// So many digits; -1 for others.
int ReadDigits(const char* at, int count) {
    int number = 0;
    for (int i = 0; i < count; ++i) {
        if (DigitAt(at + i) > 9U) {
            return -1;
        }
        number = number * 10 + static_cast<int>(DigitAt(at + i));
    }
    return number;
}

/// "14:30", "14:30:05", "14:30:05.250", maybe with a Z. Others are left to who knows more forms.
const char* ReadClock(const char* at, std::int64_t& milliseconds) {
    const int hours = ReadDigits(at, 2);
    const int minutes = hours >= 0 && at[2] == ':' ? ReadDigits(at + 3, 2) : -1;
    if (minutes < 0 || hours > 23 || minutes > 59) {
        return nullptr;
    }
    at += 5;
    int seconds = 0;
    int fraction = 0;
    if (*at == ':') {
        seconds = ReadDigits(at + 1, 2);
        if (seconds < 0 || seconds > 59) {
            return nullptr;
        }
        at += 3;
        if (*at == '.') {
            fraction = ReadDigits(at + 1, 3);
            if (fraction < 0) {
                return nullptr;
            }
            at += 4;
        }
    }
    milliseconds = ((hours * 60 + minutes) * 60 + seconds) * std::int64_t{1000} + fraction;
    return *at == 'Z' ? at + 1 : at;
}

/// "2024-01-05", alone or with a time of day behind a T or a blank.
const char* ReadIsoDate(const char* at, double& moment) {
    const int year = ReadDigits(at, 4);
    const int month = year >= 0 && at[4] == '-' ? ReadDigits(at + 5, 2) : -1;
    const int day = month >= 0 && at[7] == '-' ? ReadDigits(at + 8, 2) : -1;
    const std::chrono::year_month_day date{std::chrono::year(year),
                                           std::chrono::month(static_cast<unsigned>(month)),
                                           std::chrono::day(static_cast<unsigned>(day))};
    if (day < 0 || !date.ok()) {
        return nullptr;
    }
    at += 10;
    std::int64_t time = 0;
    if (*at == 'T' || (*at == ' ' && DigitAt(at + 1) < 10U)) {
        at = ReadClock(at + 1, time);
    }
    constexpr std::int64_t kDay = 86'400'000;
    moment = static_cast<double>(std::chrono::sys_days(date).time_since_epoch().count() * kDay + time);
    return at;
}

const char* ReadTime(const char* at, const char* end, const PlainForm& form, PlainRow& row) {
    if (form.Times == RowTimes::Dates) {
        return ReadIsoDate(at, row.Time);
    }
    PlainNumber number;
    at = ReadNumber(at, end, form.Mark, number);
    row.Time = number.Value;
    row.Decimals = number.Decimals;
    using Limits = std::numeric_limits<std::int32_t>;
    const bool isWhole = !number.HasMark && number.Value >= Limits::min() && number.Value <= Limits::max();
    const bool isTaken = form.Times == RowTimes::Whole ? isWhole : std::abs(number.Value) <= kMaxTimeNumber;
    return isTaken ? at : nullptr;
}

/// Up to its separator or the end of its line; null for what is not plain.
const char* ReadCell(const char* at, const char* end, const PlainForm& form, std::size_t cell,
                     PlainRow& row) {
    const int target = form.Cells[cell];
    const auto isEnd = [&form](char c) { return c == form.Separator || c == '\n' || c == '\r'; };
    while (*at == ' ') {
        ++at;
    }
    if (target < 0) {
        for (; !isEnd(*at); ++at) {
            if (*at == '"' || static_cast<signed char>(*at) <= 0) { // or the text's end
                return nullptr;
            }
        }
        return at;
    }
    if (target > 0 && isEnd(*at)) {
        row.Values[static_cast<std::size_t>(target - 1)] = kCurveNull;
        return at;
    }
    const bool isQuoted = *at == '"';
    at += isQuoted ? 1 : 0;
    if (target == 0) {
        at = ReadTime(at, end, form, row);
    } else {
        PlainNumber number;
        at = ReadNumber(at, end, form.Mark, number);
        row.Values[static_cast<std::size_t>(target - 1)] = number.Value;
    }
    if (at == nullptr || (isQuoted && *at++ != '"')) {
        return nullptr;
    }
    while (*at == ' ') {
        ++at;
    }
    row.Filled = std::max(row.Filled, static_cast<std::size_t>(target) + 1);
    return isEnd(*at) ? at : nullptr;
}

} // namespace

const char* ReadPlainRow(const char* at, const char* end, const PlainForm& form, PlainRow& row) {
    row.Filled = 0;
    const std::size_t count = form.Cells.size();
    for (std::size_t cell = 0; cell < count; ++cell) {
        at = ReadCell(at, end, form, cell, row);
        const bool isLast = cell + 1 == count;
        if (at == nullptr || (!isLast && *at != form.Separator)) {
            return nullptr;
        }
        at += isLast ? 0 : 1;
    }
    at += count != 0 && *at == '\r' ? 1 : 0;
    return count != 0 && *at == '\n' ? at + 1 : nullptr;
}

} // namespace millichart::documents
