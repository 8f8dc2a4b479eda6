#include "model/CellTexts.h"

#include "documents/tables/Dates.h"
#include "documents/tables/WrittenNumber.h"
#include "penlode/text/Digits.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace designer {
namespace {

using millichart::documents::Milliseconds;

constexpr std::int64_t kSecond = 1000;
constexpr std::int64_t kDay = 86400 * kSecond;

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// Most numbers are plain, and a pasted column has many.
std::optional<double> ReadPlain(std::string_view text) {
    const std::optional<double> number = penlode::NumberOf<double>(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

std::optional<std::int64_t> Within32Bits(std::int64_t time) {
    return time >= INT32_MIN && time <= INT32_MAX ? std::optional(time) : std::nullopt;
}

std::optional<std::int64_t> ReadWholeTime(std::string_view text) {
    const std::optional<double> number = ReadNumberCell(text);
    if (!number || std::trunc(*number) != *number || std::abs(*number) > 1e10) {
        return std::nullopt;
    }
    return Within32Bits(static_cast<std::int64_t>(*number));
}

} // namespace

std::string NumberCell(double number) {
    return std::isnan(number) ? "" : penlode::PlainDigits(number == 0.0 ? 0.0 : number);
}

std::optional<double> ReadNumberCell(std::string_view text) {
    text = Trimmed(text);
    std::optional<double> number = ReadPlain(text);
    if (!number && !text.empty()) {
        const millichart::documents::WrittenNumber written = millichart::documents::ReadWritten(text);
        number = written.ByPoint ? written.ByPoint : written.ByComma;
    }
    return number && *number == 0.0 ? 0.0 : number;
}

std::string TimeCell(std::int64_t time, RowHeads heads) {
    if (time == DataTable::kNoTime) {
        return {};
    }
    switch (heads) {
    case RowHeads::Days:
        return millichart::documents::DayText(Milliseconds(time * kDay));
    case RowHeads::Seconds: {
        const Milliseconds moment(time * kSecond);
        return millichart::documents::DayText(moment) + " " +
               millichart::documents::ClockText(moment, Milliseconds(kSecond));
    }
    default:
        return penlode::Digits(time);
    }
}

std::optional<std::int64_t> ReadTimeCell(std::string_view text, RowHeads heads) {
    text = Trimmed(text);
    if (heads == RowHeads::Times) {
        return ReadWholeTime(text);
    }
    const std::optional<millichart::documents::WrittenDate> date = millichart::documents::ReadDate(text);
    if (!date || !date->HasDate) {
        return std::nullopt;
    }
    const std::optional<Milliseconds> moment = date->Moment(false);
    const std::int64_t unit = heads == RowHeads::Days ? kDay : kSecond;
    if (!moment || moment->count() % unit != 0) {
        return std::nullopt;
    }
    return Within32Bits(moment->count() / unit);
}

std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(kBlanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string ToUtf8(const std::string& narrow) {
    return IsAscii(narrow) ? narrow : penlode::CStringUtil::AnsiToUtf8(narrow);
}

std::string ToNarrow(const std::string& utf8) {
    return IsAscii(utf8) ? utf8 : penlode::CStringUtil::Utf8ToAnsi(utf8);
}

} // namespace designer
