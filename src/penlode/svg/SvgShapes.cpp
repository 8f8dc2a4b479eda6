#include "penlode/svg/SvgShapes.h"

#include "penlode/PenDrawing.h"
#include "penlode/Units.h"
#include "penlode/engine/GuardBand.h"
#include "penlode/engine/LineThinning.h"
#include "penlode/svg/SvgPath.h"
#include "penlode/svg/SvgWriter.h"
#include "penlode/text/Digits.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <string_view>
#include <utility>
#include <vector>

namespace penlode::svg {
namespace {

/// No wider pen is looked for beyond the page, in millimetres.
constexpr double kMaxMargin = 1e5;

/// ` fill="#336699"`, and ` fill-opacity` where the colour is translucent.
std::string ColorAttributes(const std::string& name, Color color) {
    std::string text = " " + name + "=\"#" + HexDigits(color.Argb, 6, kLowerDigits) + "\"";
    if (color.A() != 0xFFU) {
        text += " " + name + "-opacity=\"" + Number(color.A() / 255.0) + "\"";
    }
    return text;
}

std::string DashAttribute(std::span<const double> pattern, double width) {
    std::string lengths;
    for (const double part : pattern) {
        lengths += (lengths.empty() ? "" : " ") + Number(part * width);
    }
    return lengths.empty() ? lengths : " stroke-dasharray=\"" + lengths + "\"";
}

/// "x,y x,y" and how many points that are.
struct PointList {
    std::string Text;
    std::size_t Count = 0;
};

PointList ListOf(const std::vector<PointD>& points) {
    PointList list;
    std::string last;
    for (const PointD point : points) {
        std::string text = Number(point.X) + "," + Number(point.Y);
        if (text != last) {
            list.Text += (list.Count == 0 ? "" : " ") + text;
            ++list.Count;
            last = std::move(text);
        }
    }
    return list;
}

std::string PathOf(const std::string& data, const Paint& paint) {
    return data.empty() ? "" : SvgElement("path").Set("d", data).Raw(paint.Attributes).Empty();
}

/// The figures' lines near the page. A solid pen draws them in one stroke, so that a translucent one does not
/// show where they meet; dashes go on where the cut-off part of the line left them.
std::string StrokedFigures(std::vector<FlatFigure> figures, const BoxD& box, const Paint& pen) {
    const bool solid = pen.DashPeriod == 0.0;
    std::string data;
    std::string elements;
    for (FlatFigure& figure : figures) {
        if (figure.Closed) {
            figure.Points = ClosedPolyline(std::move(figure.Points), solid);
        }
        for (const PolylineRun& run : ClippedPolyline(std::move(figure.Points), box)) {
            if (run.Points.size() < 2) {
                continue;
            }
            const std::string line = PolylineData(run.Points);
            if (solid) {
                data += (data.empty() ? "" : " ") + line;
            } else {
                SvgElement element("path");
                element.Set("d", line).Raw(pen.Attributes);
                element.Set("stroke-dashoffset", std::fmod(run.Before, pen.DashPeriod));
                elements += (elements.empty() ? "" : "\n") + element.Empty();
            }
        }
    }
    return solid ? PathOf(data, pen) : elements;
}

std::string PointsElement(const char* name, const PageMap& map, std::vector<PointD> points,
                          const Paint& paint) {
    if (AnyFar(points) && paint.Strokes) {
        const bool closed = std::string_view(name) == "polygon";
        return StrokedFigures({{std::move(points), closed}}, map.Surroundings(paint.Margin), paint);
    }
    const PointList list = ListOf(CutIfFar(map, std::move(points)));
    return list.Count < 2 ? "" : SvgElement(name).Set("points", list.Text).Raw(paint.Attributes).Empty();
}

/// Nothing of a run that ends at a gap and may not.
std::vector<PointD> ThinnedOnPage(const PageMap& map, DataRun& run, double margin) {
    const ThinningGrid grid{kColumnWidth, -margin, map.Page.Width + margin};
    std::vector<PointD> thinned;
    ThinLine(run, map.ToPage, grid, [&](PointD point) { thinned.push_back(point); });
    return run.IsSound() ? thinned : std::vector<PointD>();
}

/// A box on the page, axes kept.
std::string BoxElement(PointD a, PointD b, const Paint& paint) {
    return SvgElement("rect")
        .Set("x", std::min(a.X, b.X))
        .Set("y", std::min(a.Y, b.Y))
        .Set("width", std::abs(a.X - b.X))
        .Set("height", std::abs(a.Y - b.Y))
        .Raw(paint.Attributes)
        .Empty();
}

bool RoundsToNothing(double length) {
    return Number(length) == "0";
}

std::string PolygonElement(const PageMap& map, std::span<const PointF> points, const Paint& paint) {
    return PointsElement("polygon", map, MapAll(map.ToPage, points), paint);
}

std::string LineElement(const PageMap& map, PointF from, PointF to, const Paint& stroke) {
    const PointD a = Mapped(map.ToPage, from);
    const PointD b = Mapped(map.ToPage, to);
    if (AnyFar(std::array{a, b})) {
        return StrokedFigures({{{a, b}, false}}, map.Surroundings(stroke.Margin), stroke);
    }
    if (RoundsToNothing(a.X - b.X) && RoundsToNothing(a.Y - b.Y)) {
        return "";
    }
    return SvgElement("line")
        .Set("x1", a.X)
        .Set("y1", a.Y)
        .Set("x2", b.X)
        .Set("y2", b.Y)
        .Raw(stroke.Attributes)
        .Empty();
}

std::string BoxOrPolygon(const PageMap& map, const RectF& rect, const Paint& paint) {
    const PointF corner{rect.Right(), rect.Bottom()};
    if (rect.Width == 0.0F || rect.Height == 0.0F) {
        return LineElement(map, rect.TopLeft(), corner, paint);
    }
    const PointD a = Mapped(map.ToPage, rect.TopLeft());
    const PointD b = Mapped(map.ToPage, corner);
    // A viewer shows no rectangle of width 0, not even its outline.
    const bool lacksSide = paint.Strokes && (RoundsToNothing(a.X - b.X) || RoundsToNothing(a.Y - b.Y));
    return !KeepsAxesNearly(map.ToPage) || AnyFar(std::array{a, b}) || lacksSide
               ? PolygonElement(map, CornersOf(rect), paint)
               : BoxElement(a, b, paint);
}

std::string PathElement(const PageMap& map, const GraphicsPath& path, const Paint& paint) {
    if (paint.Strokes && ReachesFar(path, map.ToPage)) {
        const BoxD box = map.Surroundings(paint.Margin);
        return StrokedFigures(Flattened(path, map.ToPage, box), box, paint);
    }
    return PathOf(PathData(path, map), paint);
}

std::string EllipseElement(const PageMap& map, const RectF& rect, const Paint& paint) {
    const MappedAxes axes = AxesUnder(map.ToPage);
    const double rx = rect.Width * 0.5 * axes.X;
    const double ry = rect.Height * 0.5 * axes.Y;
    const PointD center = OnPage(map.ToPage, rect.Center());
    const bool circle = KeepsRightAngles(map.ToPage) && Number(rx) == Number(ry);
    if ((!circle && !KeepsAxesNearly(map.ToPage)) || AnyFar(MapAll(map.ToPage, CornersOf(rect)))) {
        return PathElement(map, PathOf(Outline::Ellipse{rect}), paint);
    }
    SvgElement element(circle ? "circle" : "ellipse");
    element.Set("cx", center.X).Set("cy", center.Y);
    if (circle) {
        return element.Set("r", rx).Raw(paint.Attributes).Empty();
    }
    const bool quarterTurn = std::abs(map.ToPage.M12) > std::abs(map.ToPage.M11);
    return element.Set("rx", quarterTurn ? ry : rx)
        .Set("ry", quarterTurn ? rx : ry)
        .Raw(paint.Attributes)
        .Empty();
}

/// Writes an outline as an element; nothing where a brush finds no area.
struct ElementWriter {
    const PageMap& Map;
    const Paint& Look;

    std::string operator()(const Outline::Nothing&) const { return ""; }

    std::string operator()(const Outline::Line& line) const {
        return Look.Strokes ? LineElement(Map, line.From, line.To, Look) : "";
    }

    std::string operator()(const Outline::Rectangle& rectangle) const {
        return BoxOrPolygon(Map, rectangle.Box, Look);
    }

    std::string operator()(const Outline::Ellipse& ellipse) const {
        return EllipseElement(Map, ellipse.Box, Look);
    }

    std::string operator()(const Outline::Polygon& polygon) const {
        return PolygonElement(Map, polygon.Points, Look);
    }

    std::string operator()(const Outline::Polyline& line) const {
        return Look.Strokes ? PointsElement("polyline", Map, MapAll(Map.ToPage, line.Points), Look) : "";
    }

    template <class Curved> std::string operator()(const Curved& shape) const {
        return PathElement(Map, PathOf(shape), Look);
    }
};

} // namespace

std::string FillAttributes(Color color) {
    return ColorAttributes("fill", color);
}

Paint StrokePaint(const Pen& pen, double lengthFactor) {
    const double width = std::max(std::abs(static_cast<double>(pen.GetWidth())) * lengthFactor, kMinPageLine);
    const std::span<const double> pattern = DashPattern(pen.GetDashStyle());
    return {ColorAttributes("stroke", pen.GetColor()) + " stroke-width=\"" + Number(width) + "\"" +
                DashAttribute(pattern, width),
            true, std::min(width * kMiterLimit, kMaxMargin),
            std::accumulate(pattern.begin(), pattern.end(), 0.0) * width};
}

std::string ShapeElement(const PageMap& map, const Outline& outline, const Paint& paint) {
    return std::visit(ElementWriter{map, paint}, outline.Shape);
}

std::string DataLineElement(const PageMap& map, DataRun& run, const Paint& stroke) {
    return PointsElement("polyline", map, ThinnedOnPage(map, run, stroke.Margin), stroke);
}

} // namespace penlode::svg
