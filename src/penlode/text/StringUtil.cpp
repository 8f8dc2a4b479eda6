#include "penlode/text/StringUtil.h"

#include "penlode/text/Gb18030.h"
#include "penlode/text/TextPlacement.h"
#include "penlode/text/Utf8.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace penlode {
namespace {

template <class Char> constexpr bool IsAscii(Char unit) {
    return static_cast<std::make_unsigned_t<Char>>(unit) < 0x80;
}

constexpr bool IsSurrogate(char32_t codePoint) {
    return codePoint >= 0xD800 && codePoint <= 0xDFFF;
}

/// A broken character is replaced as far as it could have been the beginning of a good one.
DecodedCharacter DecodeUtf8(std::string_view text, std::size_t position) {
    const auto lead = static_cast<std::uint8_t>(text[position]);
    if (IsAscii(lead)) {
        return {lead, 1};
    }
    Utf8Form form = Utf8FormOf(lead);
    if (form.Continuations == 0) {
        return {};
    }
    char32_t codePoint = lead & (0x3FU >> form.Continuations);
    for (std::size_t i = 1; i <= form.Continuations; ++i) {
        const bool ended = text.size() - position <= i;
        const std::uint8_t byte = ended ? std::uint8_t{0} : static_cast<std::uint8_t>(text[position + i]);
        if (byte < form.Low || byte > form.High) {
            return {kReplacementCharacter, i};
        }
        codePoint = codePoint << 6 | (byte & 0x3FU);
        form.Low = 0x80;
        form.High = 0xBF;
    }
    return {codePoint, form.Continuations + 1};
}

/// UTF-16 or UTF-32, whichever the platform's wide texts are. Surrogates without their partner are replaced.
DecodedCharacter DecodeWide(std::wstring_view text, std::size_t position) {
    const auto unitAt = [text](std::size_t at) {
        return static_cast<char32_t>(static_cast<std::make_unsigned_t<wchar_t>>(text[at]));
    };
    const char32_t unit = unitAt(position);
    if constexpr (sizeof(wchar_t) == 2) {
        if (unit >= 0xD800 && unit <= 0xDBFF && position + 1 < text.size()) {
            const char32_t low = unitAt(position + 1);
            if (low >= 0xDC00 && low <= 0xDFFF) {
                return {0x10000 + ((unit - 0xD800) << 10 | (low - 0xDC00)), 2};
            }
        }
    }
    return {IsSurrogate(unit) || unit > 0x10FFFF ? kReplacementCharacter : unit, 1};
}

void AppendWide(std::wstring& text, char32_t codePoint) {
    if constexpr (sizeof(wchar_t) == 2) {
        if (codePoint >= 0x10000) {
            const char32_t offset = codePoint - 0x10000;
            text.push_back(static_cast<wchar_t>(0xD800 + (offset >> 10)));
            text.push_back(static_cast<wchar_t>(0xDC00 + (offset & 0x3FF)));
            return;
        }
    }
    text.push_back(static_cast<wchar_t>(codePoint));
}

/// The text in another encoding. All of them share ASCII, whose runs are copied as they are.
template <class Out, class Char, class Decode, class Append>
Out Converted(std::basic_string_view<Char> text, Decode decode, Append append) {
    Out result;
    for (auto from = text.begin(); from != text.end();) {
        const auto to = std::find_if_not(from, text.end(), IsAscii<Char>);
        const std::size_t before = result.size();
        result.resize(before + static_cast<std::size_t>(to - from));
        std::copy(from, to, result.begin() + static_cast<std::ptrdiff_t>(before));
        from = to;
        while (from != text.end() && !IsAscii(*from)) {
            const DecodedCharacter character = decode(text, static_cast<std::size_t>(from - text.begin()));
            append(result, character.CodePoint);
            from += static_cast<std::ptrdiff_t>(character.Length);
        }
    }
    return result;
}

} // namespace

std::wstring CStringUtil::AnsiToWideString(const std::string& text) {
    return Converted<std::wstring>(std::string_view(text), DecodeGb18030, AppendWide);
}

std::string CStringUtil::WideToAnsiString(std::wstring_view text) {
    return Converted<std::string>(text, DecodeWide, AppendGb18030);
}

std::string CStringUtil::AnsiToUtf8(const std::string& text) {
    return Converted<std::string>(std::string_view(text), DecodeGb18030, AppendUtf8);
}

std::string CStringUtil::Utf8ToAnsi(std::string_view text) {
    return Converted<std::string>(text, DecodeUtf8, AppendGb18030);
}

std::wstring CStringUtil::Utf8ToWideString(std::string_view text) {
    return Converted<std::wstring>(text, DecodeUtf8, AppendWide);
}

std::string CStringUtil::WideToUtf8(std::wstring_view text) {
    return Converted<std::string>(text, DecodeWide, AppendUtf8);
}

std::size_t CStringUtil::AnsiCharLength(std::string_view text, std::size_t position) {
    return position < text.size() ? DecodeGb18030(text, position).Length : 0;
}

SizeF CStringUtil::MeasureString(const std::string& text, const Font* font) {
    return font == nullptr ? SizeF{} : MeasureWideString(AnsiToWideString(text), font);
}

SizeF CStringUtil::MeasureWideString(std::wstring_view text, const Font* font) {
    if (font == nullptr || text.empty()) {
        return {};
    }
    const std::vector<std::wstring_view> lines = SplitLines(text);
    float width = 0.0F;
    for (const std::wstring_view line : lines) {
        width = std::max(width, MeasureLine(line, *font));
    }
    return {width, static_cast<float>(lines.size()) * MeasureFont(*font).LineHeight};
}

} // namespace penlode
