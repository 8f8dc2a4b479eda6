#include "documents/points/RowCondition.h"

#include "penlode/text/Digits.h"

#include <algorithm>

namespace millichart::documents {
namespace {

std::string_view Trimmed(std::string_view text) {
    constexpr const char* kBlanks = " \t\r\n";
    const std::size_t begin = std::min(text.find_first_not_of(kBlanks), text.size());
    return text.substr(begin, text.find_last_not_of(kBlanks) + 1 - begin);
}

/// What stands between quotes; nothing unless one ends the text and all within are doubled.
std::optional<std::string> Unquoted(std::string_view text, char quote) {
    if (text.size() < 2 || text.front() != quote || text.back() != quote) {
        return std::nullopt;
    }
    std::string inner;
    for (std::size_t i = 1; i + 1 < text.size(); ++i) {
        inner += text[i];
        if (text[i] == quote && (++i + 1 >= text.size() || text[i] != quote)) {
            return std::nullopt;
        }
    }
    return inner;
}

SqlValue ValueOf(std::string_view text) {
    if (const auto whole = penlode::NumberOf<std::int64_t>(text)) {
        return *whole;
    }
    if (const auto number = penlode::NumberOf<double>(text)) {
        return *number;
    }
    return std::string(text);
}

/// Where the operator begins, behind a name in quotes.
std::size_t OperatorPlace(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(" \t\r\n");
    std::size_t from = 0;
    if (begin != std::string_view::npos && text[begin] == '"') {
        from = text.find('"', begin + 1);
        while (from != std::string_view::npos && text.substr(from + 1, 1) == "\"") {
            from = text.find('"', from + 2);
        }
    }
    return from == std::string_view::npos ? from : text.find_first_of("<>=", from);
}

} // namespace

std::optional<RowCondition> ConditionOf(std::string_view text) {
    const std::size_t place = OperatorPlace(text);
    if (place == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view two = text.substr(place, 2);
    const std::size_t length = two == "<>" || two == "<=" || two == ">=" ? 2 : 1;
    const std::string_view name = Trimmed(text.substr(0, place));
    const std::string_view value = Trimmed(text.substr(place + length));
    const std::optional<std::string> inner = name.starts_with('"') ? Unquoted(name, '"') : std::string(name);
    const std::optional<std::string> quoted = Unquoted(value, '\'');
    const bool isValue = !value.empty() && (quoted || value.find_first_of("'<>=") != 0);
    if (!inner || inner->empty() || !isValue) {
        return std::nullopt;
    }
    return RowCondition{*inner, std::string(text.substr(place, length)),
                        quoted ? SqlValue(*quoted) : ValueOf(value)};
}

} // namespace millichart::documents
