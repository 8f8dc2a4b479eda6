#include "penlode/engine/DeviceText.h"
#include "penlode/engine/EngineArguments.h"
#include "penlode/gdiplus/GdiFonts.h"
#include "penlode/text/FontFace.h"

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <set>
#include <vector>

namespace penlode {
namespace {

/// GDI+'s points of a line's glyphs, one after the other.
class OutlineReader {
public:
    explicit OutlineReader(double scale) : m_scale(scale) {}

    void Add(std::span<const Gdiplus::PointF> points, std::span<const BYTE> types) {
        for (std::size_t i = 0; i < points.size(); ++i) {
            const auto kind = types[i] & Gdiplus::PathPointTypePathTypeMask;
            if (kind == Gdiplus::PathPointTypeStart) {
                m_outline.StartFigure();
                m_last = At(points[i]);
            } else if (kind == Gdiplus::PathPointTypeBezier && i + 2 < points.size()) {
                m_outline.AddBezier(m_last, At(points[i]), At(points[i + 1]), At(points[i + 2]));
                i += 2;
                m_last = At(points[i]);
            } else {
                m_outline.AddLine(m_last, At(points[i]));
                m_last = At(points[i]);
            }
            if ((types[i] & Gdiplus::PathPointTypeCloseSubpath) != 0) {
                m_outline.CloseFigure();
            }
        }
    }

    GraphicsPath Take() { return std::move(m_outline); }

private:
    PointF At(const Gdiplus::PointF& p) const {
        return {static_cast<float>(p.X * m_scale), static_cast<float>(p.Y * m_scale)};
    }

    double m_scale;
    GraphicsPath m_outline;
    PointF m_last;
};

void AddGlyphs(OutlineReader& reader, const std::wstring& text, const GdiFace& face) {
    const GdipPath path = Created<GdipPath>(flat::GdipCreatePath, Gdiplus::FillModeWinding);
    if (path == nullptr) {
        return;
    }
    const Gdiplus::RectF place(0.0F, static_cast<float>(-face.CellAscent * kShapingEm), 0.0F, 0.0F);
    flat::GdipAddPathString(path.get(), text.data(), static_cast<INT>(text.size()), face.Family.get(),
                            face.Style, static_cast<float>(kShapingEm), &place, LineFormat());
    INT count = 0;
    flat::GdipGetPointCount(path.get(), &count);
    if (count > 0) {
        std::vector<Gdiplus::PointF> points(static_cast<std::size_t>(count));
        std::vector<BYTE> types(points.size());
        flat::GdipGetPathPoints(path.get(), points.data(), count);
        flat::GdipGetPathTypes(path.get(), types.data(), count);
        reader.Add(points, types);
    }
}

/// Of the Basic Multilingual Plane.
using CharacterSet = std::bitset<0x10000>;

/// A device context without a device.
class MemoryDc {
public:
    MemoryDc() : m_dc(CreateCompatibleDC(nullptr)) {}

    ~MemoryDc() { DeleteDC(m_dc); }

    MemoryDc(const MemoryDc&) = delete;
    MemoryDc& operator=(const MemoryDc&) = delete;

    HDC Handle() const { return m_dc; }

    /// Adds the characters that a face has.
    void AddCharacters(const LOGFONTW& face, CharacterSet& characters) const {
        HFONT font = CreateFontIndirectW(&face);
        HGDIOBJ before = SelectObject(m_dc, font);
        std::vector<std::byte> room(GetFontUnicodeRanges(m_dc, nullptr));
        if (!room.empty()) {
            auto* ranges = reinterpret_cast<GLYPHSET*>(room.data());
            GetFontUnicodeRanges(m_dc, ranges);
            for (DWORD i = 0; i < ranges->cRanges; ++i) {
                for (USHORT k = 0; k < ranges->ranges[i].cGlyphs; ++k) {
                    characters.set(static_cast<std::size_t>(ranges->ranges[i].wcLow) + k);
                }
            }
        }
        SelectObject(m_dc, before);
        DeleteObject(font);
    }

private:
    HDC m_dc;
};

/// What any installed face of those that GDI+ draws can show: where a font lacks a glyph GDI+ looks for it in
/// others, though perhaps not in all.
const CharacterSet& ShownCharacters() {
    static const CharacterSet kCharacters = [] {
        struct Search {
            MemoryDc Dc;
            CharacterSet Found;
            std::set<std::wstring> Seen; ///< a face comes once for each character set
        } search;
        LOGFONTW all{};
        all.lfCharSet = DEFAULT_CHARSET;
        const auto look = [](const LOGFONTW* face, const TEXTMETRICW*, DWORD kind, LPARAM argument) -> int {
            auto& looked = *reinterpret_cast<Search*>(argument);
            const bool isUpright = face->lfFaceName[0] != L'@'; // the other is for vertical lines
            if (isUpright && kind == TRUETYPE_FONTTYPE && looked.Seen.insert(face->lfFaceName).second) {
                looked.Dc.AddCharacters(*face, looked.Found);
            }
            return 1;
        };
        EnumFontFamiliesExW(search.Dc.Handle(), &all, look, reinterpret_cast<LPARAM>(&search), 0);
        return search.Found;
    }();
    return kCharacters;
}

} // namespace

GraphicsPath OutlineOfLine(std::wstring_view line, const Font& font) {
    const GdiFace* face = IsDrawable(font) && !line.empty() ? FaceFor(font) : nullptr;
    if (face == nullptr) {
        return {};
    }
    OutlineReader reader(font.Size / kShapingEm);
    AddGlyphs(reader, Printable(line), *face);
    GraphicsPath outline = reader.Take();
    AddDecorations(outline, {kShapingEm, LineWidth(line, font)}, font);
    return outline;
}

/// Characters beyond the Basic Multilingual Plane are not looked for: GDI does not tell who has them.
std::wstring MissingCharacters(std::wstring_view text, const Font&) {
    std::wstring missing;
    for (const wchar_t c : text) {
        const bool isUnit = c >= 0xD800 && c <= 0xDFFF;
        if (c > L' ' && !isUnit && missing.find(c) == std::wstring::npos &&
            !ShownCharacters().test(static_cast<std::uint16_t>(c))) {
            missing += c;
        }
    }
    return missing;
}

} // namespace penlode
