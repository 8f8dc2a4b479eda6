#include "penlode/cairo/LetterMasks.h"

#include "penlode/DeviceGeometry.h"
#include "penlode/cairo/CairoCanvas.h"

#include <array>
#include <cmath>
#include <functional>
#include <pango/pangocairo.h>
#include <string>
#include <unordered_map>
#include <utility>

namespace penlode {
namespace {

/// Larger ones are drawn anew each time.
constexpr double kMostPixels = 65536.0;

/// A thread's masks together; when there are more, all begin anew.
constexpr std::size_t kMostBytes = std::size_t{1} << 22U;

/// The same letters at the same place within a pixel.
struct MaskKey {
    std::wstring Family;
    std::int32_t Style;
    std::wstring Text;
    std::array<double, 6> Place;

    friend bool operator==(const MaskKey&, const MaskKey&) = default;
};

struct MaskKeyHash {
    std::size_t operator()(const MaskKey& key) const {
        std::size_t sum = std::hash<std::wstring>()(key.Text) + std::hash<std::wstring>()(key.Family) * 7U +
                          static_cast<std::size_t>(key.Style);
        for (const double number : key.Place) {
            sum = sum * 31U + std::hash<double>()(number);
        }
        return sum;
    }
};

/// A mask and where it stands beside the pixel in which the line begins.
struct KeptMask {
    CairoSurface Coverage;
    double X = 0.0;
    double Y = 0.0;
};

/// The whole pixels that the letters touch; nothing for blanks.
BoxD InkBox(const SetLine& line, const Matrix& toDevice) {
    PangoRectangle ink{};
    pango_layout_line_get_extents(line.Line, &ink, nullptr);
    if (ink.width <= 0 || ink.height <= 0) {
        return {};
    }
    const auto corner = [&](int x, int y) {
        return Mapped(toDevice,
                      PointD{static_cast<double>(x) / PANGO_SCALE, static_cast<double>(y) / PANGO_SCALE});
    };
    const int right = ink.x + ink.width;
    const int bottom = ink.y + ink.height;
    const BoxD one = BoxBetween(corner(ink.x, ink.y), corner(right, bottom));
    const BoxD other = BoxBetween(corner(right, ink.y), corner(ink.x, bottom));
    return {std::floor(std::min(one.Left, other.Left)) - 1.0, std::floor(std::min(one.Top, other.Top)) - 1.0,
            std::ceil(std::max(one.Right, other.Right)) + 1.0,
            std::ceil(std::max(one.Bottom, other.Bottom)) + 1.0};
}

KeptMask MakeMask(const SetLine& line, const Matrix& toDevice) {
    const BoxD box = InkBox(line, toDevice);
    if (box.Width() <= 0.0) {
        return {};
    }
    KeptMask mask{CairoSurface(cairo_image_surface_create(CAIRO_FORMAT_A8, static_cast<int>(box.Width()),
                                                          static_cast<int>(box.Height()))),
                  box.Left, box.Top};
    const CairoContext context(cairo_create(mask.Coverage.get()));
    const cairo_matrix_t matrix = ToCairo(toDevice * Matrix::Translation(-box.Left, -box.Top));
    cairo_set_matrix(context.get(), &matrix);
    cairo_set_fill_rule(context.get(), CAIRO_FILL_RULE_WINDING);
    cairo_move_to(context.get(), 0.0, 0.0);
    pango_cairo_layout_line_path(context.get(), line.Line);
    cairo_fill(context.get());
    return mask;
}

class LetterMasks {
public:
    const KeptMask& Of(const SetLine& line, MaskKey key, const Matrix& toDevice) {
        if (const auto found = m_masks.find(key); found != m_masks.end()) {
            return found->second;
        }
        if (m_bytes >= kMostBytes) {
            m_masks.clear();
            m_bytes = 0;
        }
        KeptMask mask = MakeMask(line, toDevice);
        m_bytes += sizeof(key) + sizeof(mask) + BytesOf(mask.Coverage.get());
        return m_masks.emplace(std::move(key), std::move(mask)).first->second;
    }

private:
    static std::size_t BytesOf(cairo_surface_t* surface) {
        return surface == nullptr ? 0
                                  : static_cast<std::size_t>(cairo_image_surface_get_stride(surface)) *
                                        static_cast<std::size_t>(cairo_image_surface_get_height(surface));
    }

    std::unordered_map<MaskKey, KeptMask, MaskKeyHash> m_masks;
    std::size_t m_bytes = 0;
};

LetterMasks& ThisThread() {
    thread_local LetterMasks masks;
    return masks;
}

} // namespace

bool HasLetterMask(const SetLine& line, const Matrix& toDevice) {
    const BoxD box = InkBox(line, toDevice);
    return box.Width() * box.Height() <= kMostPixels;
}

LetterMask LetterMaskOf(const SetLine& line, std::wstring_view text, const Font& font,
                        const Matrix& toDevice) {
    const PointD pixel{std::floor(toDevice.Dx), std::floor(toDevice.Dy)};
    const Matrix inPixel = toDevice * Matrix::Translation(-pixel.X, -pixel.Y);
    const KeptMask& mask =
        ThisThread().Of(line,
                        {font.Family,
                         font.Style,
                         std::wstring(text),
                         {inPixel.M11, inPixel.M12, inPixel.M21, inPixel.M22, inPixel.Dx, inPixel.Dy}},
                        inPixel);
    return {mask.Coverage.get(), pixel.X + mask.X, pixel.Y + mask.Y};
}

} // namespace penlode
