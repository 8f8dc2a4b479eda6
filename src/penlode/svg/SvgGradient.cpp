#include "penlode/svg/SvgGradient.h"

#include "penlode/engine/GradientColors.h"
#include "penlode/svg/SvgClip.h"
#include "penlode/svg/SvgGeometry.h"
#include "penlode/svg/SvgPath.h"
#include "penlode/svg/SvgShapes.h"
#include "penlode/svg/SvgWriter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

namespace penlode::svg {
namespace {

constexpr int kMaxCuts = 16;
/// Flat parts need not differ by less than this, in steps of 1/255, nor be smaller than this, in millimetres.
constexpr double kColorStep = 4.0;
constexpr double kMinPart = 0.25;

using Triangle = std::array<ColoredPoint, 3>;

Color ColorOf(const Rgb& rgb) {
    const auto byte = [](double channel) { return static_cast<std::uint32_t>(std::lround(channel)); };
    return Color::FromArgb(0xFFU, byte(rgb[0]), byte(rgb[1]), byte(rgb[2]));
}

std::string OpaqueAttribute(const char* name, const Rgb& rgb) {
    const std::string fill = FillAttributes(ColorOf(rgb));
    return std::string(" ") + name + fill.substr(fill.find('='));
}

BoxD BoxAround(std::span<const PointD> points) {
    BoxD box = BoxBetween(points.front(), points.front());
    for (const PointD p : points) {
        box = Union(box, BoxBetween(p, p));
    }
    return box;
}

std::vector<PointD> BoundsOnPage(const Matrix& toPage, const RectL& bounds) {
    std::vector<PointD> corners;
    for (const PointD p : CornersOf(BoxOf(bounds))) {
        corners.push_back(Placed(toPage, p));
    }
    return corners;
}

/// The elements, in a group that cuts them to the bounds if any of their corners lies outside.
class GradientParts {
public:
    GradientParts(const PageMap& map, const RectL& bounds)
        : m_map(map), m_bounds(bounds), m_shown(BoxAround(BoundsOnPage(map.ToPage, bounds))) {
        m_shown = Common(m_shown, {0.0, 0.0, map.Page.Width, map.Page.Height});
    }

    const PageMap& Map() const { return m_map; }

    /// Nothing of an area on the page can be seen that lies outside.
    bool IsSeen(std::span<const PointD> area) const {
        const BoxD box = BoxAround(area);
        return box.Left < m_shown.Right && box.Right > m_shown.Left && box.Top < m_shown.Bottom &&
               box.Bottom > m_shown.Top;
    }

    void Include(PointD corner) { m_fits = m_fits && BoxOf(m_bounds).Contains(corner); }

    void Add(const std::string& element) { m_elements += (m_elements.empty() ? "" : "\n") + element; }

    /// `attributes` are the group's; without any and without a need to cut there is no group.
    std::string Grouped(const std::string& attributes, SvgDefinitions& definitions) const {
        SvgElement group("g");
        group.Raw(attributes);
        if (!m_fits) {
            const std::string data = PolygonData(CutIfFar(m_map, BoundsOnPage(m_map.ToPage, m_bounds)));
            group.Raw(ClipAttribute(data, definitions));
        } else if (attributes.empty()) {
            return m_elements;
        }
        return m_elements.empty() ? m_elements : group.Around("\n" + m_elements + "\n");
    }

private:
    const PageMap& m_map;
    RectL m_bounds;
    BoxD m_shown; ///< on the page, round the bounds
    bool m_fits = true;
    std::string m_elements;
};

double Dot(PointD a, PointD b) {
    return a.X * b.X + a.Y * b.Y;
}

/// Where the first and the last colour are reached on the page: straight across the lines of equal colour,
/// which a skewed transform does not leave at right angles to the blend's axis. Any point of the line on
/// which the first one lies will do: of a far line it is the one next to the page's corner, as viewers count
/// in floats.
std::array<PointD, 2> BlendEnds(const Matrix& m, PointD from, double extent, bool vertical) {
    const PointD along = vertical ? PointD{m.M21, m.M22} : PointD{m.M11, m.M12};
    const PointD normal = vertical ? PointD{-m.M12, m.M11} : PointD{-m.M22, m.M21};
    const auto onNormal = [&](PointD p) {
        const double share = Dot(p, normal) / Dot(normal, normal);
        return PointD{normal.X * share, normal.Y * share};
    };
    const PointD start = IsFar(from) ? onNormal(from) : from;
    const PointD step = onNormal({along.X * extent, along.Y * extent});
    return {start, {start.X + step.X, start.Y + step.Y}};
}

std::string AxisBlend(const Matrix& toPage, const ColoredPoint& from, const ColoredPoint& to, bool vertical,
                      SvgDefinitions& definitions) {
    const double extent = vertical ? to.Place.Y - from.Place.Y : to.Place.X - from.Place.X;
    const auto [start, end] = BlendEnds(toPage, Placed(toPage, from.Place), extent, vertical);
    const std::string attributes = " gradientUnits=\"userSpaceOnUse\" x1=\"" + Number(start.X) + "\" y1=\"" +
                                   Number(start.Y) + "\" x2=\"" + Number(end.X) + "\" y2=\"" + Number(end.Y) +
                                   "\"";
    const auto stop = [](const char* offset, const Rgb& rgb) {
        return SvgElement("stop").Set("offset", offset).Raw(OpaqueAttribute("stop-color", rgb)).Empty();
    };
    return definitions.LinearGradient(attributes, stop("0", from.Colour) + stop("1", to.Colour));
}

/// So many cuts along each side.
int CutsOf(const Triangle& t) {
    double colours = 0.0;
    for (std::size_t channel = 0; channel < 3; ++channel) {
        const auto [low, high] =
            std::minmax({t[0].Colour[channel], t[1].Colour[channel], t[2].Colour[channel]});
        colours = std::max(colours, high - low);
    }
    double longest = 0.0;
    for (std::size_t i = 0; i < 3; ++i) {
        const PointD a = t[i].Place;
        const PointD b = t[(i + 1) % 3].Place;
        longest = std::max(longest, std::hypot(b.X - a.X, b.Y - a.Y));
    }
    const double wanted = std::ceil(std::min(colours / kColorStep, longest / kMinPart));
    return static_cast<int>(std::clamp(wanted, 1.0, static_cast<double>(kMaxCuts)));
}

/// The point with these weights towards the second and third corner.
ColoredPoint Within(const Triangle& t, double second, double third) {
    const auto mix = [&](double a, double b, double c) { return a + second * (b - a) + third * (c - a); };
    ColoredPoint point;
    point.Place = {mix(t[0].Place.X, t[1].Place.X, t[2].Place.X),
                   mix(t[0].Place.Y, t[1].Place.Y, t[2].Place.Y)};
    for (std::size_t channel = 0; channel < 3; ++channel) {
        point.Colour[channel] = mix(t[0].Colour[channel], t[1].Colour[channel], t[2].Colour[channel]);
    }
    return point;
}

/// A part by its corners' steps along the two sides, filled with the colour of its middle.
void AddPart(const Triangle& t, int cuts, const std::array<std::array<int, 2>, 3>& corners,
             GradientParts& parts) {
    std::vector<PointD> places;
    double second = 0.0;
    double third = 0.0;
    for (const auto& [i, j] : corners) {
        places.push_back(Within(t, static_cast<double>(i) / cuts, static_cast<double>(j) / cuts).Place);
        second += static_cast<double>(i) / cuts / 3.0;
        third += static_cast<double>(j) / cuts / 3.0;
    }
    if (!parts.IsSeen(places)) {
        return;
    }
    const std::string fill = OpaqueAttribute("fill", Within(t, second, third).Colour);
    parts.Add(
        SvgElement("path").Set("d", PolygonData(CutIfFar(parts.Map(), std::move(places)))).Raw(fill).Empty());
}

/// Rows of triangles that stand on their base, and of those between them that stand on their tip.
void AddTriangle(const Triangle& t, GradientParts& parts) {
    const int cuts = CutsOf(t);
    for (int i = 0; i < cuts; ++i) {
        for (int j = 0; i + j < cuts; ++j) {
            AddPart(t, cuts, {{{i, j}, {i + 1, j}, {i, j + 1}}}, parts);
            if (i + j + 1 < cuts) {
                AddPart(t, cuts, {{{i + 1, j}, {i + 1, j + 1}, {i, j + 1}}}, parts);
            }
        }
    }
}

/// A triangle in world coordinates, unless it cannot be seen.
void AddWhole(Triangle t, GradientParts& parts) {
    std::vector<PointD> places;
    for (const ColoredPoint& corner : t) {
        places.push_back(Placed(parts.Map().ToPage, corner.Place));
    }
    if (!parts.IsSeen(places)) {
        return;
    }
    for (std::size_t i = 0; i < t.size(); ++i) {
        parts.Include(t[i].Place);
        t[i].Place = places[i];
    }
    AddTriangle(t, parts);
}

void AddRect(const ColoredPoint& from, const ColoredPoint& to, bool vertical, SvgDefinitions& definitions,
             GradientParts& parts) {
    const RectF box = Narrowed(BoxBetween(from.Place, to.Place));
    if (box.Width > 0.0F && box.Height > 0.0F) {
        parts.Include(from.Place);
        parts.Include(to.Place);
        const std::string id = AxisBlend(parts.Map().ToPage, from, to, vertical, definitions);
        parts.Add(ShapeElement(parts.Map(), {Outline::Rectangle{box}}, {" fill=\"" + Reference(id) + "\""}));
    }
}

} // namespace

std::string GradientElements(const PageMap& map, const GradientMesh& mesh, SvgDefinitions& definitions) {
    GradientParts parts(map, mesh.Bounds);
    for (const GradientRect& entry : mesh.Rects) {
        AddRect(Moved(mesh, entry.UpperLeft), Moved(mesh, entry.LowerRight), mesh.Mode == GradientMode::RectV,
                definitions, parts);
    }
    for (const GradientTriangle& entry : mesh.Triangles) {
        AddWhole({Moved(mesh, entry.Vertex1), Moved(mesh, entry.Vertex2), Moved(mesh, entry.Vertex3)}, parts);
    }
    const bool flat = mesh.Mode == GradientMode::Triangle;
    return parts.Grouped(flat ? " shape-rendering=\"crispEdges\"" : "", definitions);
}

} // namespace penlode::svg
