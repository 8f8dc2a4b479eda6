#include "penlode/text/FontFace.h"
#include "penlode/text/StringUtil.h"

/// Faces to go with the sizes of simple arithmetic: "宋体" is not installed and "Noto Serif CJK SC" stands
/// for it; every character but the blank is a box as wide as it is measured and half the font's size high, on
/// the baseline.
namespace penlode {

std::wstring ResolvedFamily(const std::wstring& family) {
    return family == L"宋体" ? L"Noto Serif CJK SC" : family;
}

bool HasStandIns(const std::wstring& family) {
    return family == L"宋体";
}

GraphicsPath OutlineOfLine(std::wstring_view line, const Font& font) {
    GraphicsPath outline;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const float left = CStringUtil::MeasureLine(line.substr(0, i), font);
        const float right = CStringUtil::MeasureLine(line.substr(0, i + 1), font);
        if (line[i] != L' ') {
            outline.AddRectangle({left, -font.Size * 0.5F, right - left, font.Size * 0.5F});
        }
    }
    return outline;
}

} // namespace penlode
