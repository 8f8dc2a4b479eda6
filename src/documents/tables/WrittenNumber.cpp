#include "documents/tables/WrittenNumber.h"

#include "penlode/text/Digits.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace millichart::documents {
namespace {

constexpr std::wstring_view kBlanks = L"\u00A0\u2007\u2009\u202F\u3000\t\r";
constexpr std::wstring_view kMinuses = L"\u2212\u2012\u2013";
constexpr std::wstring_view kCurrencies = L"$€£¥₩₹₽₺元";
constexpr std::string_view kDigits = "0123456789";

/// Stands for any currency's sign.
constexpr char kCurrency = '$';

/// In ASCII; empty for a text that has other characters than numbers are written with.
std::string InAscii(std::string_view cell) {
    constexpr std::size_t kLongest = 120;
    if (cell.size() > kLongest) {
        return {};
    }
    std::string text;
    for (wchar_t c : penlode::CStringUtil::Utf8ToWideString(cell)) {
        if (c == L'\uFFE5') {
            c = L'¥';
        } else if (c > 0xFF00 && c < 0xFF5F) { // full width
            c = static_cast<wchar_t>(c - 0xFEE0);
        }
        text += kBlanks.find(c) != std::wstring_view::npos       ? ' '
                : kMinuses.find(c) != std::wstring_view::npos    ? '-'
                : kCurrencies.find(c) != std::wstring_view::npos ? kCurrency
                : c == L'\u2019'                                 ? '\''
                : c > 0 && c < 0x80                              ? static_cast<char>(c)
                                                                 : '?';
    }
    return text.find('?') == std::string::npos ? text : "";
}

bool TakeFront(std::string_view& text, char c) {
    const bool isThere = text.starts_with(c);
    text.remove_prefix(isThere ? 1 : 0);
    return isThere;
}

bool TakeBack(std::string_view& text, char c) {
    const bool isThere = text.ends_with(c);
    text.remove_suffix(isThere ? 1 : 0);
    return isThere;
}

void Trim(std::string_view& text) {
    while (TakeFront(text, ' ') || TakeBack(text, ' ')) {
    }
}

/// Takes what stands round the digits. Is the number below 0?
bool TakeSigns(std::string_view& text) {
    Trim(text);
    const bool isInBrackets = text.size() > 2 && text.front() == '(' && text.back() == ')';
    if (isInBrackets) {
        text = text.substr(1, text.size() - 2);
        Trim(text);
    }
    bool isNegative = !isInBrackets && TakeFront(text, '-');
    const bool isSigned = isInBrackets || isNegative || TakeFront(text, '+');
    if (!TakeBack(text, '%')) {
        Trim(text);
        if (TakeFront(text, kCurrency)) {
            isNegative = isNegative || (!isSigned && TakeFront(text, '-'));
        } else {
            TakeBack(text, kCurrency);
        }
    }
    Trim(text);
    return isNegative || isInBrackets;
}

bool AreDigits(std::string_view text) {
    return text.find_first_not_of(kDigits) == std::string_view::npos;
}

/// The digits of a whole number, maybe in groups: of three, or as in 12,34,567.
std::optional<std::string> Ungrouped(std::string_view text, char mark) {
    const std::size_t first = std::min(text.find_first_not_of(kDigits), text.size());
    if (first == text.size()) {
        return std::string(text);
    }
    const char separator = text[first];
    if (separator == mark || std::string_view(",.' ").find(separator) == std::string_view::npos) {
        return std::nullopt;
    }
    std::string digits(text.substr(0, first));
    std::size_t size = 3;
    for (std::size_t at = first; at < text.size();) {
        const std::size_t end = std::min(text.find(separator, at + 1), text.size());
        const std::string_view group = text.substr(at + 1, end - at - 1);
        size = at == first && group.size() == 2 ? 2 : size;
        if (group.size() != (end == text.size() ? 3 : size) || !AreDigits(group)) {
            return std::nullopt;
        }
        digits += group;
        at = end;
    }
    const bool isWhole = first >= 1 && first <= size && digits.front() != '0';
    return isWhole ? std::optional(std::move(digits)) : std::nullopt;
}

std::optional<double> Read(std::string_view text, char mark, bool isNegative) {
    const std::size_t exponent = std::min(text.find_first_of("eE"), text.size());
    const std::size_t point = std::min(text.find(mark), exponent);
    std::optional<std::string> digits = Ungrouped(text.substr(0, point), mark);
    if (!digits) {
        return std::nullopt;
    }
    const std::string_view decimals = text.substr(point, exponent - point).substr(point < exponent ? 1 : 0);
    if (!AreDigits(decimals) || (digits->empty() && decimals.empty())) {
        return std::nullopt;
    }
    digits->append(".").append(decimals).append(text.substr(exponent));
    const std::optional<double> number = penlode::NumberOf<double>("0" + *digits);
    if (!number || !std::isfinite(*number)) {
        return std::nullopt;
    }
    return isNegative ? -*number : *number;
}

} // namespace

WrittenNumber ReadWritten(std::string_view cell) {
    const std::string ascii = InAscii(cell);
    std::string_view text = ascii;
    const bool isNegative = TakeSigns(text);
    return {Read(text, '.', isNegative), Read(text, ',', isNegative)};
}

} // namespace millichart::documents
