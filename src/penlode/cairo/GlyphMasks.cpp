#include "penlode/cairo/GlyphMasks.h"

#include "penlode/cairo/CairoCanvas.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <pango/pangocairo.h>
#include <unordered_map>
#include <utility>
#include <vector>

namespace penlode {
namespace {

/// Places within a pixel that are told apart, each way.
constexpr double kPlacesPerPixel = 4.0;

/// Of a line's mask. Longer lines are filled.
constexpr double kMaxPixels = 1048576.0;

/// All glyphs of a thread; when there are more, all begin anew.
constexpr std::size_t kMaxBytes = std::size_t{1} << 22U;

/// Round the ink that a font tells of, in pixels: of faces that have no bold cut it tells too little.
constexpr double kMargin = 2.0;

/// How far a glyph may reach from where it stands, in ems.
constexpr double kMaxReach = 4.0;

struct FontUnref {
    void operator()(PangoFont* font) const { g_object_unref(font); }
};

using HeldFont = std::unique_ptr<PangoFont, FontUnref>;

/// A glyph at a place within a pixel. The matrix moves nothing by whole pixels.
struct GlyphKey {
    PangoFont* Font;
    PangoGlyph Glyph;
    Matrix ToPixels;

    friend bool operator==(const GlyphKey&, const GlyphKey&) = default;
};

struct GlyphKeyHash {
    std::size_t operator()(const GlyphKey& key) const {
        const Matrix& m = key.ToPixels;
        std::size_t sum = std::hash<PangoFont*>()(key.Font) * 31U + key.Glyph;
        for (const double number : {m.M11, m.M12, m.M21, m.M22, m.Dx, m.Dy}) {
            sum = sum * 31U + std::hash<double>()(number);
        }
        return sum;
    }
};

/// Coverage of the pixels of a box beside the pixel in which the glyph stands, row by row.
struct Glyph {
    HeldFont Font; ///< its address stands for it while the glyph is kept
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    std::vector<unsigned char> Coverage;
};

/// The whole pixels that a glyph may touch; without size for a blank.
BoxD InkBox(const GlyphKey& key) {
    PangoRectangle ink{};
    pango_font_get_glyph_extents(key.Font, key.Glyph, &ink, nullptr);
    if (ink.width <= 0 || ink.height <= 0) {
        return {};
    }
    const Matrix toUnits = Matrix::Scale(1.0 / PANGO_SCALE, 1.0 / PANGO_SCALE);
    const BoxD box{static_cast<double>(ink.x), static_cast<double>(ink.y),
                   static_cast<double>(ink.x) + ink.width, static_cast<double>(ink.y) + ink.height};
    return RoundedOut(Mapped(toUnits * key.ToPixels, box)).Grown(kMargin);
}

/// Fills a glyph on a surface whose corner is the box's. False when Cairo fails.
bool FillGlyph(cairo_surface_t* surface, const GlyphKey& key, const BoxD& box) {
    const CairoContext context(cairo_create(surface));
    const cairo_matrix_t matrix = ToCairo(key.ToPixels * Matrix::Translation(-box.Left, -box.Top));
    cairo_set_matrix(context.get(), &matrix);
    cairo_set_fill_rule(context.get(), CAIRO_FILL_RULE_WINDING);
    cairo_scaled_font_t* face = pango_cairo_font_get_scaled_font(PANGO_CAIRO_FONT(key.Font));
    if (face == nullptr) {
        return false;
    }
    cairo_set_scaled_font(context.get(), face);
    const cairo_glyph_t glyph{key.Glyph, 0.0, 0.0};
    cairo_glyph_path(context.get(), &glyph, 1);
    cairo_fill(context.get());
    cairo_surface_flush(surface);
    return cairo_status(context.get()) == CAIRO_STATUS_SUCCESS &&
           cairo_surface_status(surface) == CAIRO_STATUS_SUCCESS;
}

std::optional<Glyph> MakeGlyph(const GlyphKey& key) {
    const BoxD box = InkBox(key);
    if (box.Width() * box.Height() > kMaxPixels) {
        return std::nullopt;
    }
    Glyph glyph{HeldFont(static_cast<PangoFont*>(g_object_ref(key.Font))),
                static_cast<int>(box.Left),
                static_cast<int>(box.Top),
                static_cast<int>(box.Width()),
                static_cast<int>(box.Height()),
                {}};
    if (glyph.Width == 0) {
        return glyph;
    }
    const CairoSurface surface(cairo_image_surface_create(CAIRO_FORMAT_A8, glyph.Width, glyph.Height));
    if (!FillGlyph(surface.get(), key, box)) {
        return std::nullopt;
    }
    const unsigned char* row = cairo_image_surface_get_data(surface.get());
    for (int y = 0; y < glyph.Height; ++y, row += cairo_image_surface_get_stride(surface.get())) {
        glyph.Coverage.insert(glyph.Coverage.end(), row, row + glyph.Width);
    }
    return glyph;
}

/// One thread's glyphs.
class GlyphCache {
public:
    /// Stays where it is until the next call of MakeRoom. Null when Cairo fails.
    const Glyph* Find(const GlyphKey& key) {
        if (const auto found = m_glyphs.find(key); found != m_glyphs.end()) {
            return &found->second;
        }
        std::optional<Glyph> glyph = MakeGlyph(key);
        if (!glyph) {
            return nullptr;
        }
        m_bytes += kOverhead + glyph->Coverage.size();
        return &m_glyphs.emplace(key, std::move(*glyph)).first->second;
    }

    void MakeRoom() {
        if (m_bytes >= kMaxBytes) {
            m_glyphs.clear();
            m_bytes = 0;
        }
    }

private:
    static constexpr std::size_t kOverhead = sizeof(GlyphKey) + sizeof(Glyph) + 64;

    std::unordered_map<GlyphKey, Glyph, GlyphKeyHash> m_glyphs;
    std::size_t m_bytes = 0;
};

GlyphCache& ThisThread() {
    thread_local GlyphCache cache;
    return cache;
}

/// A glyph and the pixel in which it stands.
struct PlacedGlyph {
    const Glyph* Shape;
    double X;
    double Y;
};

/// Rounds to a place that is told apart. Gives the pixel and, in `within`, the place in it.
double Settle(double place, double& within) {
    const double settled = std::floor(place * kPlacesPerPixel + 0.5) / kPlacesPerPixel;
    const double pixel = std::floor(settled);
    within = settled - pixel;
    return pixel;
}

/// The glyphs that stand in `sight`. False when one of them cannot be had.
bool Place(GlyphCache& cache, const PangoLayoutRun& run, int& pen, const Matrix& toDevice, const BoxD& sight,
           std::vector<PlacedGlyph>& placed) {
    for (int i = 0; i < run.glyphs->num_glyphs; ++i) {
        const PangoGlyphInfo& glyph = run.glyphs->glyphs[i];
        const PointD origin{static_cast<double>(pen + glyph.geometry.x_offset) / PANGO_SCALE,
                            static_cast<double>(glyph.geometry.y_offset) / PANGO_SCALE};
        pen += glyph.geometry.width;
        const PointD at = Mapped(toDevice, origin);
        if (glyph.glyph == PANGO_GLYPH_EMPTY || !sight.Contains(at)) {
            continue;
        }
        GlyphKey key{run.item->analysis.font, glyph.glyph, toDevice};
        const double x = Settle(at.X, key.ToPixels.Dx);
        const double y = Settle(at.Y, key.ToPixels.Dy);
        const bool isUnknown = (glyph.glyph & PANGO_GLYPH_UNKNOWN_FLAG) != 0;
        const Glyph* const shape = isUnknown ? nullptr : cache.Find(key);
        if (shape == nullptr) {
            return false;
        }
        if (shape->Width > 0) {
            placed.push_back({shape, x, y});
        }
    }
    return true;
}

BoxD BoxOf(const PlacedGlyph& glyph) {
    const double left = glyph.X + glyph.Shape->Left;
    const double top = glyph.Y + glyph.Shape->Top;
    return {left, top, left + glyph.Shape->Width, top + glyph.Shape->Height};
}

/// Where glyphs touch, they cover a pixel together.
void Copy(const PlacedGlyph& glyph, const BoxD& box, unsigned char* pixels, std::ptrdiff_t stride) {
    const Glyph& shape = *glyph.Shape;
    unsigned char* to = pixels + static_cast<std::ptrdiff_t>(glyph.Y + shape.Top - box.Top) * stride +
                        static_cast<std::ptrdiff_t>(glyph.X + shape.Left - box.Left);
    const unsigned char* from = shape.Coverage.data();
    for (int y = 0; y < shape.Height; ++y, to += stride, from += shape.Width) {
        for (int x = 0; x < shape.Width; ++x) {
            to[x] = static_cast<unsigned char>(std::min(255, to[x] + from[x]));
        }
    }
}

} // namespace

std::optional<GlyphMask> GlyphMaskOf(const ShapedLine& line, const Matrix& toDevice, const BoxD& sight) {
    const BoxD around = sight.Grown(kMaxReach * kShapingEm * toDevice.LengthFactor());
    GlyphCache& cache = ThisThread();
    cache.MakeRoom();
    std::vector<PlacedGlyph> placed;
    int pen = 0;
    for (const GSList* run = line.Line->runs; run != nullptr; run = run->next) {
        if (!Place(cache, *static_cast<const PangoLayoutRun*>(run->data), pen, toDevice, around, placed)) {
            return std::nullopt;
        }
    }
    if (placed.empty()) {
        return GlyphMask{};
    }
    BoxD box = BoxOf(placed.front());
    for (const PlacedGlyph& glyph : placed) {
        box = Union(box, BoxOf(glyph));
    }
    if (box.Width() * box.Height() > kMaxPixels) {
        return std::nullopt;
    }
    GlyphMask mask{CairoSurface(cairo_image_surface_create(CAIRO_FORMAT_A8, static_cast<int>(box.Width()),
                                                           static_cast<int>(box.Height()))),
                   box.Left, box.Top};
    unsigned char* const pixels = cairo_image_surface_get_data(mask.Coverage.get());
    if (pixels == nullptr) {
        return std::nullopt;
    }
    for (const PlacedGlyph& glyph : placed) {
        Copy(glyph, box, pixels, cairo_image_surface_get_stride(mask.Coverage.get()));
    }
    cairo_surface_mark_dirty(mask.Coverage.get());
    return mask;
}

} // namespace penlode
