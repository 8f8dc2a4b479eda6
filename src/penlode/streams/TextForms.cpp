#include "penlode/streams/TextForms.h"

#include "penlode/text/Digits.h"
#include "penlode/text/StringUtil.h"

#include <array>
#include <cmath>
#include <optional>
#include <sstream>
#include <string_view>
#include <utility>

namespace penlode {
namespace {

/// None of these is ever the second byte of a narrow character, so narrow texts may be cut at them bytewise.
constexpr std::string_view kBlanks = " \t\r\n";

constexpr std::string_view kNone = "none";
constexpr std::string_view kGenericFamily = "sans-serif";

struct StyleWord {
    std::int32_t Bit;
    std::string_view Word;
};

constexpr std::array<StyleWord, 4> kStyleWords = {{{FontStyle::Bold, "bold"},
                                                   {FontStyle::Italic, "italic"},
                                                   {FontStyle::Underline, "underline"},
                                                   {FontStyle::Strikeout, "strikeout"}}};

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string_view CutFirstWord(std::string_view& text) {
    const std::string_view word = text.substr(0, text.find_first_of(kBlanks));
    text = Trimmed(text.substr(word.size()));
    return word;
}

std::string_view CutLastWord(std::string_view& text) {
    const std::size_t blank = text.find_last_of(kBlanks);
    const std::string_view word = blank == std::string_view::npos ? text : text.substr(blank + 1);
    text = Trimmed(text.substr(0, text.size() - word.size()));
    return word;
}

/// A pen's width or a font's size.
std::optional<float> SizeOf(std::string_view text) {
    const auto size = NumberOf<float>(text);
    return size && std::isfinite(*size) ? size : std::nullopt;
}

std::string ColorText(Color color) {
    return "#" + HexDigits(color.Argb, 8);
}

std::optional<Color> ColorOf(std::string_view text) {
    const bool opaque = text.size() == 7;
    if ((!opaque && text.size() != 9) || text.front() != '#') {
        return std::nullopt;
    }
    const auto word = NumberOf<std::uint32_t>(text.substr(1), 16);
    return word ? std::optional(Color{opaque ? *word | 0xFF000000U : *word}) : std::nullopt;
}

std::string PenText(const Pen& pen) {
    const auto dash = static_cast<std::size_t>(pen.GetDashStyle());
    return ColorText(pen.GetColor()) + ' ' + Digits(pen.GetWidth()) + ' ' + std::string(kDashNames[dash]);
}

std::optional<DashStyle> DashOf(std::string_view word) {
    for (std::size_t i = 0; i < kDashNames.size(); ++i) {
        if (word == kDashNames[i]) {
            return static_cast<DashStyle>(i);
        }
    }
    return word.empty() ? std::optional(DashStyle::Solid) : std::nullopt;
}

std::optional<Pen> PenOf(std::string_view text) {
    const auto color = ColorOf(CutFirstWord(text));
    const auto width = SizeOf(CutFirstWord(text));
    const auto dash = DashOf(text);
    return color && width && dash ? std::optional(Pen(*color, *width, *dash)) : std::nullopt;
}

std::string FontText(const Font& font) {
    const std::string family = CStringUtil::WideToAnsiString(font.Family);
    std::string text(Trimmed(family));
    if (text.empty()) {
        text = kGenericFamily;
    }
    text += ' ' + Digits(font.Size);
    for (const auto& [bit, word] : kStyleWords) {
        if (font.Has(bit)) {
            text.append(1, ' ').append(word);
        }
    }
    return text;
}

std::int32_t StyleBitOf(std::string_view word) {
    for (const auto& style : kStyleWords) {
        if (word == style.Word) {
            return style.Bit;
        }
    }
    return FontStyle::Regular;
}

/// Read from the end, since a family may hold blanks, digits and style words itself.
std::optional<Font> FontOf(std::string_view text) {
    std::int32_t style = FontStyle::Regular;
    std::string_view word = CutLastWord(text);
    while (const std::int32_t bit = StyleBitOf(word)) {
        style |= bit;
        word = CutLastWord(text);
    }
    const auto size = SizeOf(word);
    if (!size || text.empty()) {
        return std::nullopt;
    }
    return Font{CStringUtil::AnsiToWideString(std::string(text)), *size, style};
}

/// By a function that gives a value's text, and one that gives what a text means, if anything.
template <class Value, class TextOf, class ValueOf>
bool Evaluate(Value& value, std::string& text, bool toText, TextOf textOf, ValueOf valueOf) {
    if (toText) {
        text = textOf(value);
        return true;
    }
    auto read = valueOf(Trimmed(text));
    if (read) {
        value = std::move(*read);
    }
    return read.has_value();
}

template <class Object, class TextOf, class ObjectOf>
bool EvaluateObject(Owned<Object>& object, std::string& text, bool toText, TextOf textOf, ObjectOf objectOf) {
    if (!toText && Trimmed(text) == kNone) {
        object = nullptr;
        return true;
    }
    return Evaluate(
        object, text, toText,
        [textOf](const Owned<Object>& shown) { return shown ? textOf(*shown) : std::string(kNone); },
        objectOf);
}

} // namespace

bool ser_evaluate(std::int32_t& value, std::string& text, bool toText) {
    return Evaluate(value, text, toText, Digits<std::int32_t>, NumberOf<std::int32_t>);
}

bool ser_evaluate(float& value, std::string& text, bool toText) {
    return Evaluate(value, text, toText, Digits<float>, NumberOf<float>);
}

bool ser_evaluate(double& value, std::string& text, bool toText) {
    return Evaluate(value, text, toText, Digits<double>, NumberOf<double>);
}

bool ser_evaluate(Color& value, std::string& text, bool toText) {
    return Evaluate(value, text, toText, ColorText, ColorOf);
}

bool ser_evaluate(Owned<Pen>& value, std::string& text, bool toText) {
    return EvaluateObject(value, text, toText, PenText, PenOf);
}

bool ser_evaluate(Owned<Font>& value, std::string& text, bool toText) {
    return EvaluateObject(value, text, toText, FontText, FontOf);
}

bool ser_evaluate_vector(float& value, std::stringstream& stream, bool toText) {
    if (toText) {
        const std::string text = Digits(value) + ' ';
        stream.write(text.data(), static_cast<std::streamsize>(text.size()));
        return true;
    }
    std::string word;
    stream >> word;
    return ser_evaluate(value, word, false);
}

} // namespace penlode
