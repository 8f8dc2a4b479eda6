#include "penlode/text/TextPlacement.h"

#include "penlode/text/StringUtil.h"

namespace penlode {
namespace {

/// Where an interval of this length begins when it is aligned in the one from `start` on.
float Aligned(StringAlignment alignment, float start, float extent, float length) {
    switch (alignment) {
    case StringAlignment::Center:
        return start + (extent - length) * 0.5F;
    case StringAlignment::Far:
        return start + extent - length;
    case StringAlignment::Near:
        break;
    }
    return start;
}

} // namespace

std::wstring_view TextOf(const wchar_t* text, std::int32_t length) {
    if (text == nullptr) {
        return {};
    }
    if (length < 0) {
        return text;
    }
    std::size_t count = 0;
    while (count < static_cast<std::size_t>(length) && text[count] != L'\0') {
        ++count;
    }
    return {text, count};
}

std::vector<std::wstring_view> SplitLines(std::wstring_view text) {
    std::vector<std::wstring_view> lines;
    for (std::size_t end = text.find(L'\n'); end != std::wstring_view::npos; end = text.find(L'\n')) {
        const bool carriageReturn = end > 0 && text[end - 1] == L'\r';
        lines.push_back(text.substr(0, carriageReturn ? end - 1 : end));
        text.remove_prefix(end + 1);
    }
    lines.push_back(text);
    return lines;
}

std::vector<PlacedLine> PlaceLines(std::wstring_view text, const Font& font, const RectF& box,
                                   const StringFormat& format) {
    const FontMetrics metrics = CStringUtil::MeasureFont(font);
    const std::vector<std::wstring_view> lines = SplitLines(text);
    const float height = static_cast<float>(lines.size()) * metrics.LineHeight;
    const float firstBaseline = Aligned(format.LineAlignment, box.Y, box.Height, height) + metrics.Ascent;

    std::vector<PlacedLine> placed;
    placed.reserve(lines.size());
    for (const std::wstring_view line : lines) {
        const float width = CStringUtil::MeasureLine(line, font);
        const float left = Aligned(format.Alignment, box.X, box.Width, width);
        const float drop = static_cast<float>(placed.size()) * metrics.LineHeight;
        placed.push_back({line.substr(0, kMaxLineCharacters), {left, firstBaseline + drop}, width});
    }
    return placed;
}

RectF TextBounds(std::wstring_view text, const Font& font, const RectF& box, const StringFormat& format) {
    // However the lines are aligned, the widest one spans all the others.
    const SizeF size = CStringUtil::MeasureWideString(text, &font);
    return {Aligned(format.Alignment, box.X, box.Width, size.Width),
            Aligned(format.LineAlignment, box.Y, box.Height, size.Height), size.Width, size.Height};
}

} // namespace penlode
