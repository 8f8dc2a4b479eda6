#include "documents/Forms.h"

#include "documents/ColorNames.h"
#include "documents/Fields.h"
#include "penlode/streams/TextForms.h"
#include "penlode/text/Digits.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace millichart::documents {
namespace {

using penlode::Color;

/// None of these is ever the second byte of a narrow character.
constexpr std::string_view kBlanks = " \t\r\n";

struct Unit {
    std::string_view Name;
    double Millimetres;
};

constexpr Unit kUnits[] = {{"mm", 1.0}, {"cm", 10.0}, {"pt", 25.4 / 72.0}, {"in", 25.4}};

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

template <class Value> bool IsReadAnyhow(const std::string& text) {
    Value value{};
    std::string form = text;
    return penlode::ser_evaluate(value, form, false);
}

std::optional<double> FiniteNumber(std::string_view text) {
    double number = 0.0;
    return ParseNumber(std::string(text), number) ? std::optional(number) : std::nullopt;
}

/// A length with its unit.
std::optional<double> LengthInUnit(std::string_view text) {
    for (const Unit& unit : kUnits) {
        if (text.ends_with(unit.Name)) {
            const auto number = FiniteNumber(text.substr(0, text.size() - unit.Name.size()));
            return number ? std::optional(*number * unit.Millimetres) : std::nullopt;
        }
    }
    return std::nullopt;
}

/// #36C is #3366CC.
std::optional<Color> ShortHexColor(std::string_view text) {
    constexpr std::uint32_t kTwice = 0x11U;
    const auto digits = penlode::NumberOf<std::uint32_t>(text.substr(1), 16);
    return digits ? std::optional(Color::FromArgb(0xFFU, (*digits >> 8U) * kTwice,
                                                  (*digits >> 4U & 0xFU) * kTwice, (*digits & 0xFU) * kTwice))
                  : std::nullopt;
}

/// From 0 to 255, of a number from 0 to `full`.
std::optional<std::uint32_t> Channel(std::string_view text, double full) {
    const auto number = FiniteNumber(text);
    const bool isOne = number && *number >= 0.0 && *number <= full;
    return isOne ? std::optional(static_cast<std::uint32_t>(std::lround(*number / full * 255.0)))
                 : std::nullopt;
}

/// "51, 102, 204" or "51, 102, 204, 0.5"
std::optional<Color> ColorOfChannels(std::string_view list) {
    std::uint32_t argb[4] = {255, 0, 0, 0}; // alpha first, though it is written last
    std::size_t count = 0;
    for (std::string_view rest = list; count < 4; ++count) {
        const std::size_t comma = rest.find(',');
        const auto channel = Channel(rest.substr(0, comma), count == 3 ? 1.0 : 255.0);
        if (!channel) {
            return std::nullopt;
        }
        argb[(count + 1) % 4] = *channel;
        if (comma == std::string_view::npos) {
            return count >= 2 ? std::optional(Color::FromArgb(argb[0], argb[1], argb[2], argb[3]))
                              : std::nullopt;
        }
        rest.remove_prefix(comma + 1);
    }
    return std::nullopt;
}

/// Where the first word ends; rgb(1, 2, 3) is one.
std::size_t EndOfFirstWord(std::string_view text) {
    const std::size_t end = std::min(text.find_first_of(kBlanks), text.size());
    const std::size_t bracket = text.find('(');
    const std::size_t closing = text.find(')');
    return bracket < end && closing != std::string_view::npos ? closing + 1 : end;
}

bool IsStyleWord(std::string_view word) {
    return word == "bold" || word == "italic" || word == "underline" || word == "strikeout";
}

/// A word in another form, or itself.
std::string LengthWord(std::string_view word) {
    const auto length = LengthInUnit(word);
    return length ? NumberText(*length) : std::string(word);
}

} // namespace

std::optional<Color> ColorOf(std::string_view text) {
    const std::string_view form = Trimmed(text);
    Color color;
    std::string whole(form);
    if (penlode::ser_evaluate(color, whole, false)) {
        return color;
    }
    if (form.size() == 4 && form.front() == '#') {
        return ShortHexColor(form);
    }
    for (const std::string_view opening : {"rgb(", "rgba("}) {
        if (form.starts_with(opening) && form.ends_with(")")) {
            return ColorOfChannels(form.substr(opening.size(), form.size() - opening.size() - 1));
        }
    }
    return NamedColor(form);
}

std::optional<double> LengthOf(std::string_view text) {
    const std::string_view form = Trimmed(text);
    const auto number = FiniteNumber(form);
    return number ? number : LengthInUnit(form);
}

std::string ColorForm(const std::string& text) {
    auto color = IsReadAnyhow<Color>(text) ? std::nullopt : ColorOf(text);
    std::string form = text;
    if (color) {
        penlode::ser_evaluate(*color, form, true);
    }
    return form;
}

std::string LengthForm(const std::string& text) {
    const auto length = LengthInUnit(Trimmed(text));
    return length ? NumberText(*length) : text;
}

/// Colour and width stand in front.
std::string PenForm(const std::string& text) {
    if (IsReadAnyhow<penlode::Owned<penlode::Pen>>(text)) {
        return text;
    }
    const std::string_view pen = Trimmed(text);
    const std::size_t colorEnd = EndOfFirstWord(pen);
    const std::string_view rest = Trimmed(pen.substr(colorEnd));
    const std::size_t widthEnd = EndOfFirstWord(rest);
    return ColorForm(std::string(pen.substr(0, colorEnd))) + ' ' + LengthWord(rest.substr(0, widthEnd)) +
           std::string(rest.substr(widthEnd));
}

/// The size is the last word that is no style.
std::string FontForm(const std::string& text) {
    std::string_view front = Trimmed(text);
    while (!front.empty()) {
        const std::size_t blank = front.find_last_of(kBlanks);
        const std::size_t start = blank == std::string_view::npos ? 0 : blank + 1;
        const std::string_view word = front.substr(start);
        if (!IsStyleWord(word)) {
            const auto size = LengthInUnit(word);
            return size ? std::string(front.substr(0, start)) + NumberText(*size) +
                              std::string(Trimmed(text).substr(front.size()))
                        : text;
        }
        front = Trimmed(front.substr(0, start));
    }
    return text;
}

std::string PointForm(const std::string& text) {
    const std::string_view point = Trimmed(text);
    const std::size_t end = EndOfFirstWord(point);
    const std::string_view y = Trimmed(point.substr(end));
    const std::string_view x = point.substr(0, end);
    return LengthInUnit(x) || LengthInUnit(y) ? LengthWord(x) + ' ' + LengthWord(y) : text;
}

} // namespace millichart::documents
