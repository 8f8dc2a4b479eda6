#include "penlode/cairo/LineCoverage.h"

#include "penlode/cairo/CairoHandles.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace penlode {
namespace {

/// Heights are counted in 1/256 of a pixel.
constexpr std::int32_t kPixel = 256;

/// Pixels side by side that are painted at once: what they take stays in the processor's cache.
constexpr std::size_t kStripe = 64;

std::int32_t Ceiling(double value) {
    const auto whole = static_cast<std::int32_t>(value);
    return whole + (value > whole ? 1 : 0);
}

/// Gathers the spans of a few columns of pixels and lays them on the surface.
class Stripe {
public:
    Stripe(cairo_t* context, const BoxD& area, int sectionsPerPixel)
        : m_context(context), m_area(area), m_sectionsPerPixel(static_cast<std::size_t>(sectionsPerPixel)) {}

    /// Sections come in ascending order.
    void Add(std::size_t section, SectionSpans::Span span) {
        const std::size_t column = section / m_sectionsPerPixel;
        if (column >= m_firstColumn + kStripe) {
            Paint();
            m_firstColumn = column;
        }
        m_top = std::min(m_top, span.Top / kPixel);
        m_bottom = std::max(m_bottom, (span.Bottom + kPixel - 1) / kPixel);
        m_parts.push_back({column - m_firstColumn, span});
    }

    void Paint() {
        if (m_parts.empty()) {
            return;
        }
        const CairoSurface mask(
            cairo_image_surface_create(CAIRO_FORMAT_A8, static_cast<int>(kStripe), m_bottom - m_top));
        if (unsigned char* pixels = cairo_image_surface_get_data(mask.get())) {
            Write(pixels, static_cast<std::size_t>(cairo_image_surface_get_stride(mask.get())));
            cairo_surface_mark_dirty(mask.get());
        }
        cairo_mask_surface(m_context, mask.get(), m_area.Left + static_cast<double>(m_firstColumn),
                           m_area.Top + m_top);
        m_parts.clear();
        m_top = std::numeric_limits<std::int32_t>::max();
        m_bottom = 0;
    }

private:
    struct Part {
        std::size_t Column;
        SectionSpans::Span Covered;
    };

    /// Notes how the coverage of a column changes at a height.
    void Change(std::size_t column, std::int32_t height, std::int32_t sign) {
        height -= m_top * kPixel;
        const std::int32_t part = height % kPixel;
        std::int16_t* change = &m_changes[static_cast<std::size_t>(height / kPixel) * kStripe + column];
        change[0] = static_cast<std::int16_t>(change[0] + sign * (kPixel - part));
        change[kStripe] = static_cast<std::int16_t>(change[kStripe] + sign * part);
    }

    /// Sums the changes up from row to row.
    void Write(unsigned char* pixels, std::size_t stride) {
        const auto rows = static_cast<std::size_t>(m_bottom - m_top);
        m_changes.assign((rows + 2) * kStripe, 0);
        for (const Part& part : m_parts) {
            Change(part.Column, part.Covered.Top, 1);
            Change(part.Column, part.Covered.Bottom, -1);
        }
        const auto full = static_cast<float>(m_sectionsPerPixel * kPixel);
        std::array<std::int16_t, kStripe> now{};
        for (std::size_t row = 0; row < rows; ++row) {
            for (std::size_t i = 0; i < kStripe; ++i) {
                now[i] = static_cast<std::int16_t>(now[i] + m_changes[row * kStripe + i]);
                pixels[row * stride + i] =
                    static_cast<unsigned char>(static_cast<float>(now[i]) * (255.0F / full) + 0.5F);
            }
        }
    }

    cairo_t* m_context;
    BoxD m_area;
    std::size_t m_sectionsPerPixel;
    std::size_t m_firstColumn = 0;
    std::vector<Part> m_parts;
    std::int32_t m_top = std::numeric_limits<std::int32_t>::max(); ///< rows of pixels
    std::int32_t m_bottom = 0;
    std::vector<std::int16_t> m_changes;
};

} // namespace

LineCoverage::LineCoverage(const BoxD& area, const StrokeShapes& shapes, int sectionsPerPixel)
    : m_area(area), m_shapes(shapes), m_sectionsPerPixel(sectionsPerPixel),
      m_spans(static_cast<std::size_t>(area.Width()) * static_cast<std::size_t>(sectionsPerPixel)),
      m_tops(m_spans.Size()), m_bottoms(m_spans.Size()) {}

void LineCoverage::Add(std::span<const PointD> points) {
    m_shapes.ForEach(points, [this](std::span<const PointD> corners) { AddConvex(corners); });
}

LineCoverage::Corner LineCoverage::CornerAt(PointD point) const {
    const double x = (point.X - m_area.Left) * m_sectionsPerPixel - 0.5;
    return {x, point.Y - m_area.Top, Ceiling(std::clamp(x, 0.0, static_cast<double>(m_spans.Size())))};
}

/// The edges that lead to the right are the shape's bottom, and those that lead back its top: each section
/// that it has a part in is crossed by one of both.
void LineCoverage::AddConvex(std::span<const PointD> corners) {
    Corner from = CornerAt(corners.back());
    std::int32_t first = from.Section;
    std::int32_t end = from.Section;
    for (const PointD corner : corners) {
        const Corner to = CornerAt(corner);
        if (from.Section < to.Section) {
            PutEdge(from, to, m_bottoms);
        } else if (to.Section < from.Section) {
            PutEdge(to, from, m_tops);
        }
        first = std::min(first, to.Section);
        end = std::max(end, to.Section);
        from = to;
    }
    const auto place = static_cast<std::size_t>(first);
    const auto count = static_cast<std::size_t>(end - first);
    m_spans.Add(place, std::span(m_tops).subspan(place, count), std::span(m_bottoms).subspan(place, count));
}

void LineCoverage::PutEdge(const Corner& left, const Corner& right,
                           std::vector<std::int32_t>& heights) const {
    const double slope = (right.Y - left.Y) / (right.X - left.X);
    const double lowest = m_area.Height();
    std::int32_t* const out = heights.data();
    for (std::int32_t i = left.Section; i < right.Section; ++i) {
        const double y = left.Y + (i - left.X) * slope;
        out[i] = static_cast<std::int32_t>(std::min(std::max(y, 0.0), lowest) * kPixel + 0.5);
    }
}

void LineCoverage::Paint(cairo_t* context) {
    Stripe stripe(context, m_area, m_sectionsPerPixel);
    m_spans.ForEach([&](std::size_t section, SectionSpans::Span span) { stripe.Add(section, span); });
    stripe.Paint();
}

} // namespace penlode
