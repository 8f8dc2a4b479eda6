#include "penlode/cairo/LineCoverage.h"

#include "penlode/cairo/CairoHandles.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

namespace penlode {
namespace {

/// Heights are counted in 1/256 of a pixel.
constexpr std::int32_t kPixel = 256;

/// Points nearer than this are one: the direction from one to the other would mean nothing.
constexpr double kMinStep = 1.0 / 512.0;

/// Where a line turns back sharply, a wedge closes its tip. Wedges of fewer square pixels are left out: dense
/// lines are full of them, and nobody sees them.
constexpr double kMinTip = 1.0 / 64.0;

/// Pixels side by side that are painted at once: what they take stays in the processor's cache.
constexpr std::size_t kStripe = 64;

std::int32_t Ceiling(double value) {
    const auto whole = static_cast<std::int32_t>(value);
    return whole + (value > whole ? 1 : 0);
}

PointD Plus(PointD a, PointD b, double factor) {
    return {a.X + b.X * factor, a.Y + b.Y * factor};
}

/// A quarter turn of a direction.
PointD Across(PointD direction) {
    return {-direction.Y, direction.X};
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

LineCoverage::LineCoverage(const BoxD& area, const Stroke& stroke, int sectionsPerPixel)
    : m_area(area), m_radius(stroke.Width / 2.0), m_miterLimit(stroke.MiterLimit),
      m_sectionsPerPixel(sectionsPerPixel),
      m_spans(static_cast<std::size_t>(area.Width()) * static_cast<std::size_t>(sectionsPerPixel)),
      m_tops(m_spans.Size()), m_bottoms(m_spans.Size()) {}

void LineCoverage::Add(std::span<const PointD> points) {
    std::optional<Segment> before;
    PointD from = points.front();
    for (const PointD to : points.subspan(1)) {
        const PointD step{to.X - from.X, to.Y - from.Y};
        const double length = std::sqrt(step.X * step.X + step.Y * step.Y);
        if (length < kMinStep) {
            continue;
        }
        const Segment segment{from, to, {step.X / length, step.Y / length}};
        AddSegment(segment);
        if (before) {
            AddJoin(*before, segment);
        }
        before = segment;
        from = to;
    }
}

void LineCoverage::AddSegment(const Segment& s) {
    const PointD across = Across(s.Direction);
    const std::array corners{Plus(s.From, across, m_radius), Plus(s.To, across, m_radius),
                             Plus(s.To, across, -m_radius), Plus(s.From, across, -m_radius)};
    if (!m_spans.KnowsCovered()) {
        AddConvex(corners);
        return;
    }
    // Of a scribble most lies on what is covered already.
    const auto [left, right] = std::minmax({corners[0].X, corners[1].X, corners[2].X, corners[3].X});
    constexpr auto kTile = static_cast<std::int32_t>(SectionSpans::kTileSections);
    const std::int32_t first = CornerAt({left, m_area.Top}).Section / kTile * kTile;
    const std::int32_t end = CornerAt({right, m_area.Top}).Section;
    std::int32_t begin = first;
    for (std::int32_t i = first; i < end; i += kTile) {
        const auto tile = static_cast<std::size_t>(i / kTile);
        const SectionSpans::Span reach = ReachInTile(s, tile);
        if (reach.IsEmpty() || m_spans.IsCovered(tile, reach)) {
            AddConvex(corners, begin, i);
            begin = i + kTile;
        }
    }
    AddConvex(corners, begin, end);
}

SectionSpans::Span LineCoverage::ReachInTile(const Segment& s, std::size_t tile) const {
    const double width = static_cast<double>(SectionSpans::kTileSections) / m_sectionsPerPixel;
    const double left = m_area.Left + static_cast<double>(tile) * width;
    double top = std::min(s.From.Y, s.To.Y) - m_radius;
    double bottom = std::max(s.From.Y, s.To.Y) + m_radius;
    constexpr double kUpright = 1e-3;
    if (std::abs(s.Direction.X) > kUpright) {
        const double slope = s.Direction.Y / s.Direction.X;
        const double a = s.From.Y + (left - s.From.X) * slope;
        const double b = a + width * slope;
        const double reach = m_radius / std::abs(s.Direction.X);
        top = std::max(top, std::min(a, b) - reach);
        bottom = std::min(bottom, std::max(a, b) + reach);
    }
    const auto height = [&](double y) { return std::clamp(y - m_area.Top, 0.0, m_area.Height()) * kPixel; };
    return {static_cast<std::int32_t>(height(top)), Ceiling(height(bottom))};
}

/// The wedge on the outer side of a corner, up to the miter's tip or cut off.
void LineCoverage::AddJoin(const Segment& before, const Segment& after) {
    const PointD a = before.Direction;
    const PointD b = after.Direction;
    const double turn = a.X * b.Y - a.Y * b.X;
    const double along = a.X * b.X + a.Y * b.Y;
    const bool isPointed = m_miterLimit * m_miterLimit * (1.0 + along) >= 2.0;
    if (!isPointed && m_radius * m_radius * std::abs(turn) / 2.0 < kMinTip) {
        return;
    }
    const double outwards = turn > 0.0 ? -m_radius : m_radius;
    const PointD corner = after.From;
    PointD first = Plus(corner, Across(a), outwards);
    PointD second = Plus(corner, Across(b), outwards);
    if (turn > 0.0) {
        std::swap(first, second);
    }
    if (isPointed) {
        const PointD both{Across(a).X + Across(b).X, Across(a).Y + Across(b).Y};
        AddConvex(std::array{corner, first, Plus(corner, both, outwards / (1.0 + along)), second});
    } else {
        AddConvex(std::array{corner, first, second});
    }
}

LineCoverage::Corner LineCoverage::CornerAt(PointD point) const {
    const double x = (point.X - m_area.Left) * m_sectionsPerPixel - 0.5;
    return {x, point.Y - m_area.Top, Ceiling(std::clamp(x, 0.0, static_cast<double>(m_spans.Size())))};
}

/// The edges that lead to the right are the shape's bottom, and those that lead back its top: each section
/// that it has a part in is crossed by one of both.
void LineCoverage::AddConvex(std::span<const PointD> corners, std::int32_t begin, std::int32_t stop) {
    if (begin >= stop) {
        return;
    }
    m_begin = begin;
    m_end = stop;
    const Corner last = CornerAt(corners.back());
    Corner from = last;
    std::int32_t first = last.Section;
    std::int32_t end = last.Section;
    const auto lead = [&](const Corner& to) {
        if (from.Section < to.Section) {
            PutEdge(from, to, m_bottoms);
        } else if (to.Section < from.Section) {
            PutEdge(to, from, m_tops);
        }
        first = std::min(first, to.Section);
        end = std::max(end, to.Section);
        from = to;
    };
    for (const PointD corner : corners.first(corners.size() - 1)) {
        lead(CornerAt(corner));
    }
    lead(last);
    first = std::max(first, begin);
    if (first < std::min(end, stop)) {
        const auto place = static_cast<std::size_t>(first);
        const auto count = static_cast<std::size_t>(std::min(end, stop) - first);
        m_spans.Add(place, std::span(m_tops).subspan(place, count),
                    std::span(m_bottoms).subspan(place, count));
    }
}

void LineCoverage::PutEdge(const Corner& left, const Corner& right,
                           std::vector<std::int32_t>& heights) const {
    const double slope = (right.Y - left.Y) / (right.X - left.X);
    const double lowest = m_area.Height();
    std::int32_t* const out = heights.data();
    const std::int32_t end = std::min(right.Section, m_end);
    for (std::int32_t i = std::max(left.Section, m_begin); i < end; ++i) {
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
