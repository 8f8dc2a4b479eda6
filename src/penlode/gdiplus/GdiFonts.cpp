#include "penlode/gdiplus/GdiFonts.h"

#include "penlode/engine/EngineArguments.h"
#include "penlode/engine/LineKey.h"
#include "penlode/text/FontFace.h"
#include "penlode/text/StringUtil.h"
#include "penlode/text/TextPlacement.h"

#include <array>
#include <map>
#include <unordered_map>
#include <utility>
#include <vector>

namespace penlode {
namespace {

/// As many lines as a dense chart has, and few enough to forget.
constexpr std::size_t kMaxKeptWidths = 8192;
constexpr std::size_t kMaxKeptCharacters = 1U << 20U;
constexpr std::size_t kMaxKeptFaces = 256;

GdipFontFamily FamilyNamed(const wchar_t* name) {
    return Created<GdipFontFamily>(flat::GdipCreateFontFamilyFromName, name, nullptr);
}

/// Where the system has no sans-serif of its own, any that it is likely to have.
constexpr std::array kLastResorts{L"Microsoft YaHei", L"SimHei", L"SimSun", L"Segoe UI", L"Arial", L"Tahoma"};

GdipFontFamily FamilyFor(const std::wstring& name) {
    GdipFontFamily family = name.empty() ? nullptr : FamilyNamed(name.c_str());
    if (family == nullptr) {
        family = Created<GdipFontFamily>(flat::GdipGetGenericFontFamilySansSerif);
    }
    for (const wchar_t* resort : kLastResorts) {
        family = family == nullptr ? FamilyNamed(resort) : std::move(family);
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

GdiFace MadeFace(const std::wstring& name, INT wanted) {
    GdiFace face;
    face.Family = FamilyFor(name);
    if (face.Family == nullptr) {
        return face;
    }
    face.Style = StyleIn(face.Family.get(), wanted);
    face.Face = Created<GdipFont>(flat::GdipCreateFont, face.Family.get(),
                                  static_cast<Gdiplus::REAL>(kShapingEm), face.Style, Gdiplus::UnitPixel);
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
        const double width = Measured(key.Text, font);
        m_widths.emplace(std::move(key), width);
        return width;
    }

private:
    double Measured(const std::wstring& text, const Font& font) {
        const GdiFace* face = Face(font);
        if (face == nullptr || m_graphics == nullptr) {
            return 0.0;
        }
        const Gdiplus::RectF unbounded(0.0F, 0.0F, 0.0F, 0.0F);
        Gdiplus::RectF bounds;
        const auto status =
            flat::GdipMeasureString(m_graphics.get(), text.data(), static_cast<INT>(text.size()),
                                    face->Face.get(), &unbounded, LineFormat(), &bounds, nullptr, nullptr);
        return status == Gdiplus::Ok ? bounds.Width : 0.0;
    }

    GdipBitmap m_bitmap;
    GdipGraphics m_graphics;
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
    return !family.empty() && StartGdiplus() && FamilyNamed(family.c_str()) != nullptr;
}

} // namespace

const GdiFace* FaceFor(const Font& font) {
    Measurer* const measurer = ThreadMeasurer();
    return measurer == nullptr ? nullptr : measurer->Face(font);
}

const Gdiplus::GpStringFormat* LineFormat() {
    static const Gdiplus::GpStringFormat* const kFormat = [] {
        GdipStringFormat typographic = Created<GdipStringFormat>(flat::GdipStringFormatGetGenericTypographic);
        GdipStringFormat format = Created<GdipStringFormat>(flat::GdipCloneStringFormat, typographic.get());
        (void)typographic.release(); // GDI+'s own
        flat::GdipSetStringFormatFlags(format.get(), Gdiplus::StringFormatFlagsMeasureTrailingSpaces |
                                                         Gdiplus::StringFormatFlagsNoWrap |
                                                         Gdiplus::StringFormatFlagsNoClip);
        return format.release(); // like GDI+ itself it stays
    }();
    return kFormat;
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
