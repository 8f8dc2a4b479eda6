#include "penlode/svg/SvgText.h"

#include "penlode/svg/SvgGeometry.h"
#include "penlode/svg/SvgPath.h"
#include "penlode/svg/SvgWriter.h"
#include "penlode/text/FontFace.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <type_traits>

namespace penlode::svg {
namespace {

constexpr const char* kSerif = "serif";
constexpr const char* kSansSerif = "sans-serif";
constexpr const char* kMonospace = "monospace";

/// Parts of family names, in lower case, that tell the kind of a face. The first that fits counts.
struct KindMark {
    std::wstring_view Part;
    const char* Generic;
};

constexpr std::array<KindMark, 20> kKindMarks{
    {{L"mono", kMonospace}, {L"courier", kMonospace}, {L"consol", kMonospace}, {L"sans", kSansSerif},
     {L"serif", kSerif},    {L"times", kSerif},       {L"georgia", kSerif},    {L"roman", kSerif},
     {L"simsun", kSerif},   {L"song", kSerif},        {L"ming", kSerif},       {L"kai", kSerif},
     {L"宋", kSerif},       {L"明", kSerif},          {L"楷", kSerif},         {L"garamond", kSerif},
     {L"palatino", kSerif}, {L"cambria", kSerif},     {L"bookman", kSerif},    {L"century", kSerif}}};

const char* GenericFor(std::wstring family) {
    std::transform(family.begin(), family.end(), family.begin(), [](wchar_t c) {
        return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
    });
    for (const auto& [part, generic] : kKindMarks) {
        if (family.find(part) != std::wstring::npos) {
            return generic;
        }
    }
    return kSansSerif;
}

/// A name as CSS reads it, whatever is in it.
std::string Quoted(const std::wstring& family) {
    std::string quoted = "'";
    for (const char c : CStringUtil::WideToUtf8(family)) {
        if (c == '\'' || c == '\\') {
            quoted += '\\';
        }
        quoted += c;
    }
    return quoted + "'";
}

std::string FamilyList(const std::wstring& family) {
    const std::string generic = GenericFor(family);
    const std::wstring genericName(generic.begin(), generic.end());
    std::string list;
    for (const std::wstring& name : {family, ResolvedFamily(family)}) {
        const std::string entry = Quoted(name) + ", ";
        if (!name.empty() && name != genericName && list != entry) {
            list += entry;
        }
    }
    return list + generic;
}

bool IsCjk(wchar_t unit) {
    const auto c = static_cast<std::uint32_t>(static_cast<std::make_unsigned_t<wchar_t>>(unit));
    const auto within = [c](std::uint32_t low, std::uint32_t high) { return c >= low && c <= high; };
    const bool supplementary = sizeof(wchar_t) == 2 ? within(0xD840, 0xD8BF) : within(0x20000, 0x3FFFF);
    return within(0x2E80, 0x9FFF) || within(0xF900, 0xFAFF) || within(0xFE30, 0xFE4F) ||
           within(0xFF00, 0xFFEF) || supplementary;
}

/// Blanks that a viewer would drop or join if it were not told to keep them.
bool HasFragileBlanks(std::wstring_view text) {
    const auto isBlank = [](wchar_t c) { return c == L' ' || c == L'\t' || c == L'\r'; };
    const auto pair = std::adjacent_find(text.begin(), text.end(),
                                         [&](wchar_t a, wchar_t b) { return isBlank(a) && isBlank(b); });
    return isBlank(text.front()) || isBlank(text.back()) || pair != text.end() ||
           text.find(L'\t') != std::wstring_view::npos;
}

void SetStyle(SvgElement& element, const Font& font) {
    if (font.Has(FontStyle::Bold)) {
        element.Set("font-weight", "bold");
    }
    if (font.Has(FontStyle::Italic)) {
        element.Set("font-style", "italic");
    }
    if (font.Has(FontStyle::Underline | FontStyle::Strikeout)) {
        element.Set("text-decoration", "underline line-through");
    } else if (font.Has(FontStyle::Underline)) {
        element.Set("text-decoration", "underline");
    } else if (font.Has(FontStyle::Strikeout)) {
        element.Set("text-decoration", "line-through");
    }
}

/// Puts the line's start in its place. The factor by which its own lengths must still be multiplied.
double Place(SvgElement& element, const Matrix& toPage, PointF baseline) {
    const PointD start = OnPage(toPage, baseline);
    const std::string turn = Number(AxesUnder(toPage).Degrees);
    if (!KeepsShapes(toPage)) {
        const Matrix placed{toPage.M11, toPage.M12, toPage.M21, toPage.M22, start.X, start.Y};
        element.Set("transform", MatrixText(placed));
        return 1.0;
    }
    if (turn == "0") {
        element.Set("x", start.X).Set("y", start.Y);
    } else {
        element.Set("transform", "translate(" + Pair(start) + ") rotate(" + turn + ")");
    }
    return toPage.LengthFactor();
}

} // namespace

const std::string& SvgFamilies::For(const std::wstring& family) {
    const auto [place, isNew] = m_lists.try_emplace(family);
    if (isNew) {
        place->second = FamilyList(family);
    }
    return place->second;
}

std::string TextElement(const Matrix& toPage, const PlacedLine& line, const Font& font,
                        const std::string& families, const std::string& fill) {
    if (line.Text.empty()) {
        return "";
    }
    SvgElement element("text");
    const double scale = Place(element, toPage, line.Baseline);
    const std::string length = Number(line.Width * scale);
    if (length != "0") {
        element.Set("textLength", length).Set("lengthAdjust", "spacingAndGlyphs");
    }
    element.Set("font-family", families).Set("font-size", font.Size * scale);
    SetStyle(element, font);
    if (std::any_of(line.Text.begin(), line.Text.end(), IsCjk)) {
        element.Set("xml:lang", "zh-CN");
    }
    if (HasFragileBlanks(line.Text)) {
        element.Set("xml:space", "preserve");
    }
    return element.Raw(fill).Around(Escaped(CStringUtil::WideToUtf8(line.Text)));
}

std::string OutlineElement(const PageMap& map, const PlacedLine& line, const Font& font,
                           const std::string& fill) {
    const Matrix place = Matrix::Translation(line.Baseline.X, line.Baseline.Y) * map.ToPage;
    const std::string data = PathData(OutlineOfLine(line.Text, font), {place, map.Page});
    if (data.empty()) {
        return "";
    }
    return SvgElement("path")
        .Set("role", "img")
        .Set("aria-label", CStringUtil::WideToUtf8(line.Text))
        .Set("d", data)
        .Set("fill-rule", "nonzero")
        .Raw(fill)
        .Empty();
}

} // namespace penlode::svg
