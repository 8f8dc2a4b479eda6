#include "penlode/gdiplus/GdiFonts.h"

#include "penlode/engine/EngineArguments.h"
#include "penlode/engine/LineKey.h"
#include "penlode/text/FontFace.h"
#include "penlode/text/StringUtil.h"
#include "penlode/text/TextPlacement.h"

#include <array>
#include <map>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace penlode {
namespace {

/// As many lines as a dense chart has, and few enough to forget.
constexpr std::size_t kMaxKeptWidths = 8192;
constexpr std::size_t kMaxKeptCharacters = 1U << 20U;
constexpr std::size_t kMaxKeptFaces = 256;

/// Names of one face, Chinese and Latin: a system may know only one of them.
constexpr std::array<std::pair<std::wstring_view, const wchar_t*>, 12> kOtherNames{{
    {L"宋体", L"SimSun"},
    {L"SimSun", L"宋体"},
    {L"新宋体", L"NSimSun"},
    {L"NSimSun", L"新宋体"},
    {L"黑体", L"SimHei"},
    {L"SimHei", L"黑体"},
    {L"楷体", L"KaiTi"},
    {L"KaiTi", L"楷体"},
    {L"仿宋", L"FangSong"},
    {L"FangSong", L"仿宋"},
    {L"微软雅黑", L"Microsoft YaHei"},
    {L"Microsoft YaHei", L"微软雅黑"},
}};

/// Where the system has no sans-serif of its own, any that it is likely to have.
constexpr std::array kLastResorts{L"Microsoft YaHei", L"SimHei", L"SimSun", L"Segoe UI", L"Arial", L"Tahoma"};

GdipFontFamily FamilyNamed(const std::wstring& name) {
    GdipFontFamily family =
        Created<GdipFontFamily>(flat::GdipCreateFontFamilyFromName, name.c_str(), nullptr);
    for (const auto& [known, other] : kOtherNames) {
        if (family == nullptr && name == known) {
            family = Created<GdipFontFamily>(flat::GdipCreateFontFamilyFromName, other, nullptr);
        }
    }
    return family;
}

/// A family may lack a style: then whatever it has.
INT StyleIn(const Gdiplus::GpFontFamily* family, INT wanted) {
    for (const INT style : {wanted, wanted & FontStyle::Bold, wanted & FontStyle::Italic, 0, 1, 2, 3}) {
        BOOL there = FALSE;
        if (flat::GdipIsStyleAvailable(family, style, &there) == Gdiplus::Ok && there != FALSE) {
            return style;
        }
    }
    return wanted;
}

/// Without a font if GDI+ cannot make one of the family: of faces with PostScript outlines, or of none at
/// all.
GdiFace FaceOf(GdipFontFamily family, INT wanted) {
    GdiFace face;
    if (family == nullptr) {
        return face;
    }
    face.Family = std::move(family);
    face.Style = StyleIn(face.Family.get(), wanted);
    face.Face = Created<GdipFont>(flat::GdipCreateFont, face.Family.get(),
                                  static_cast<Gdiplus::REAL>(kShapingEm), face.Style, Gdiplus::UnitWorld);
    UINT16 em = 0;
    UINT16 ascent = 0;
    UINT16 descent = 0;
    flat::GdipGetEmHeight(face.Family.get(), face.Style, &em);
    flat::GdipGetCellAscent(face.Family.get(), face.Style, &ascent);
    flat::GdipGetCellDescent(face.Family.get(), face.Style, &descent);
    if (em != 0) {
        face.CellAscent = static_cast<double>(ascent) / em;
        face.Line = WithoutExcessAir({face.CellAscent, static_cast<double>(descent) / em});
    }
    return face;
}

GdiFace MadeFace(const std::wstring& name, INT wanted) {
    GdiFace face = FaceOf(name.empty() ? nullptr : FamilyNamed(name), wanted);
    if (face.Face == nullptr) {
        face = FaceOf(Created<GdipFontFamily>(flat::GdipGetGenericFontFamilySansSerif), wanted);
    }
    for (const wchar_t* resort : kLastResorts) {
        if (face.Face == nullptr) {
            face = FaceOf(FamilyNamed(resort), wanted);
        }
    }
    return face;
}

/// GDI+'s typographic format, with what its makers left to the writer: blanks at an end count, nothing is
/// wrapped or cut, and digits are those that were written.
GdipStringFormat MadeFormat() {
    GdipStringFormat typographic = Created<GdipStringFormat>(flat::GdipStringFormatGetGenericTypographic);
    GdipStringFormat format = Created<GdipStringFormat>(flat::GdipCloneStringFormat, typographic.get());
    (void)typographic.release(); // GDI+'s own
    INT flags = 0;
    flat::GdipGetStringFormatFlags(format.get(), &flags);
    flags &= ~Gdiplus::StringFormatFlagsLineLimit;
    flags |= Gdiplus::StringFormatFlagsMeasureTrailingSpaces | Gdiplus::StringFormatFlagsNoWrap |
             Gdiplus::StringFormatFlagsNoClip;
    flat::GdipSetStringFormatFlags(format.get(), flags);
    flat::GdipSetStringFormatDigitSubstitution(format.get(), LANG_NEUTRAL,
                                               Gdiplus::StringDigitSubstituteNone);
    return format;
}

/// Measures texts on a bitmap of one pixel. One a thread: GDI+'s objects serve one at a time.
class Measurer {
public:
    Measurer() {
        m_bitmap =
            Created<GdipBitmap>(flat::GdipCreateBitmapFromScan0, 1, 1, 0, PixelFormat32bppPARGB, nullptr);
        if (m_bitmap != nullptr) {
            m_graphics = Created<GdipGraphics>(flat::GdipGetImageGraphicsContext, m_bitmap.get());
        }
        if (m_graphics != nullptr) {
            flat::GdipSetPageUnit(m_graphics.get(), Gdiplus::UnitPixel);
            flat::GdipSetTextRenderingHint(m_graphics.get(), Gdiplus::TextRenderingHintAntiAlias);
        }
    }

    const Gdiplus::GpStringFormat* Format() const { return m_format.get(); }

    const GdiFace* Face(const Font& font) {
        const auto key = std::pair(font.Family, font.Style & kFaceStyles);
        if (const auto kept = m_faces.find(key); kept != m_faces.end()) {
            return &kept->second;
        }
        if (m_faces.size() == kMaxKeptFaces) {
            m_faces.clear();
        }
        const GdiFace& face = m_faces.emplace(key, MadeFace(key.first, key.second)).first->second;
        return face.Face == nullptr ? nullptr : &face;
    }

    double Width(std::wstring_view line, const Font& font) {
        LineKey key{font.Family, font.Style & kFaceStyles, Printable(line)};
        if (const auto kept = m_widths.find(key); kept != m_widths.end()) {
            return kept->second;
        }
        if (m_widths.size() >= kMaxKeptWidths || m_characters >= kMaxKeptCharacters) {
            m_widths.clear();
            m_characters = 0;
        }
        m_characters += key.Text.size();
        const std::optional<double> width = Measured(key.Text, font);
        if (width) {
            m_widths.emplace(std::move(key), *width);
        }
        return width.value_or(0.0);
    }

private:
    /// Nothing, which is not kept, when it fails.
    std::optional<double> Measured(const std::wstring& text, const Font& font) {
        const GdiFace* face = Face(font);
        if (face == nullptr || m_graphics == nullptr) {
            return std::nullopt;
        }
        const Gdiplus::RectF unbounded(0.0F, 0.0F, 0.0F, 0.0F);
        Gdiplus::RectF bounds;
        const auto status =
            flat::GdipMeasureString(m_graphics.get(), text.data(), static_cast<INT>(text.size()),
                                    face->Face.get(), &unbounded, m_format.get(), &bounds, nullptr, nullptr);
        return status == Gdiplus::Ok ? std::optional<double>(bounds.Width) : std::nullopt;
    }

    GdipBitmap m_bitmap;
    GdipGraphics m_graphics;
    GdipStringFormat m_format = MadeFormat();
    std::map<std::pair<std::wstring, INT>, GdiFace> m_faces;
    std::unordered_map<LineKey, double, LineKeyHash> m_widths;
    std::size_t m_characters = 0; ///< of the lines whose widths are kept
};

/// Null where GDI+ does not start.
Measurer* ThreadMeasurer() {
    if (!StartGdiplus()) {
        return nullptr;
    }
    thread_local const std::unique_ptr<Measurer> kMeasurer = std::make_unique<Measurer>();
    return kMeasurer.get();
}

bool IsInstalled(const std::wstring& family) {
    return !family.empty() && StartGdiplus() && FamilyNamed(family) != nullptr;
}

} // namespace

const GdiFace* FaceFor(const Font& font) {
    Measurer* const measurer = ThreadMeasurer();
    return measurer == nullptr ? nullptr : measurer->Face(font);
}

const Gdiplus::GpStringFormat* LineFormat() {
    Measurer* const measurer = ThreadMeasurer();
    return measurer == nullptr ? nullptr : measurer->Format();
}

std::wstring Printable(std::wstring_view line) {
    std::wstring text(line.substr(0, kMaxLineCharacters));
    std::replace_if(
        text.begin(), text.end(), [](wchar_t c) { return c < L' ' || c == 0x7F; }, L' ');
    return text;
}

double LineWidth(std::wstring_view line, const Font& font) {
    Measurer* const measurer = ThreadMeasurer();
    return measurer == nullptr || line.empty() ? 0.0 : measurer->Width(line, font);
}

float CStringUtil::MeasureLine(std::wstring_view line, const Font& font) {
    return IsDrawable(font) ? static_cast<float>(LineWidth(line, font) / kShapingEm * font.Size) : 0.0F;
}

FontMetrics CStringUtil::MeasureFont(const Font& font) {
    const GdiFace* face = IsDrawable(font) ? FaceFor(font) : nullptr;
    if (face == nullptr) {
        return {};
    }
    const FaceMetrics& line = face->Line;
    return {static_cast<float>(line.Ascent * font.Size),
            static_cast<float>((line.Ascent + line.Descent) * font.Size)};
}

bool HasStandIns(const std::wstring& family) {
    return std::any_of(kOtherNames.begin(), kOtherNames.end(),
                       [&family](const auto& names) { return names.first == family; });
}

std::wstring ResolvedFamily(const std::wstring& family) {
    if (IsInstalled(family)) {
        return family;
    }
    const GdiFace* face = FaceFor(Font{family});
    if (face == nullptr) {
        return {};
    }
    std::wstring name(LF_FACESIZE, L'\0');
    flat::GdipGetFamilyName(face->Family.get(), name.data(), LANG_NEUTRAL);
    name.resize(name.find(L'\0'));
    return name;
}

} // namespace penlode
