#include "penlode/text/StringUtil.h"

/// Text sizes that a reader of a test can work out, the same on every machine: a character below U+0100 is
/// half as wide as the font is high and any other as wide as high; a line's ascent is the font's size and its
/// height 1.25 times that.
namespace penlode {

float CStringUtil::MeasureLine(std::wstring_view line, const Font& font) {
    int halves = 0;
    for (const wchar_t character : line) {
        const bool secondHalf = sizeof(wchar_t) == 2 && character >= 0xDC00 && character <= 0xDFFF;
        if (!secondHalf) {
            halves += character < 0x100 ? 1 : 2;
        }
    }
    return static_cast<float>(halves) * 0.5F * font.Size;
}

FontMetrics CStringUtil::MeasureFont(const Font& font) {
    return {font.Size, font.Size * 1.25F};
}

} // namespace penlode
