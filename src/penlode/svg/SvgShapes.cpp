#include "penlode/svg/SvgShapes.h"

#include "penlode/svg/SvgGeometry.h"
#include "penlode/svg/SvgPath.h"
#include "penlode/svg/SvgWriter.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace penlode::svg {
namespace {

std::string Hex(Color color) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text = "#";
    for (std::uint32_t shift = 24; shift > 0; shift -= 4) {
        text += kDigits[(color.Argb >> (shift - 4)) & 0xFU];
    }
    return text;
}

/// ` fill="#336699"`, and ` fill-opacity` where the colour is translucent.
std::string ColorAttributes(const std::string& name, Color color) {
    std::string text = " " + name + "=\"" + Hex(color) + "\"";
    if (color.A() != 0xFFU) {
        text += " " + name + "-opacity=\"" + Number(color.A() / 255.0) + "\"";
    }
    return text;
}

/// Dash and gap lengths in widths of the pen.
std::vector<double> DashPattern(DashStyle style) {
    switch (style) {
    case DashStyle::Dash:
        return {3, 1};
    case DashStyle::Dot:
        return {1, 1};
    case DashStyle::DashDot:
        return {3, 1, 1, 1};
    case DashStyle::DashDotDot:
        return {3, 1, 1, 1, 1, 1};
    default:
        return {};
    }
}

std::string DashAttribute(DashStyle style, double width) {
    std::string lengths;
    for (const double part : DashPattern(style)) {
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

std::string PointsElement(const char* name, const Matrix& toPage, std::span<const PointF> points,
                          const std::string& paint) {
    const PointList list = ListOf(MapAll(toPage, points));
    return list.Count < 2 ? "" : SvgElement(name).Set("points", list.Text).Raw(paint).Empty();
}

/// A box on the page, axes kept.
std::string BoxElement(PointD a, PointD b, const std::string& paint) {
    return SvgElement("rect")
        .Set("x", std::min(a.X, b.X))
        .Set("y", std::min(a.Y, b.Y))
        .Set("width", std::abs(a.X - b.X))
        .Set("height", std::abs(a.Y - b.Y))
        .Raw(paint)
        .Empty();
}

bool RoundsToNothing(double length) {
    return Number(length) == "0";
}

} // namespace

std::string FillAttributes(Color color) {
    return ColorAttributes("fill", color);
}

std::string StrokeAttributes(const Pen& pen, double lengthFactor) {
    const double width =
        std::max(std::abs(static_cast<double>(pen.GetWidth())) * lengthFactor, kThinnestLine);
    return ColorAttributes("stroke", pen.GetColor()) + " stroke-width=\"" + Number(width) + "\"" +
           DashAttribute(pen.GetDashStyle(), width);
}

std::string StrokedBox(const Matrix& toPage, const RectF& rect, const std::string& stroke) {
    if (rect.Width < 0.0F || rect.Height < 0.0F) {
        return "";
    }
    const PointF corner{rect.Right(), rect.Bottom()};
    const PointD a = OnPage(toPage, rect.TopLeft());
    const PointD b = OnPage(toPage, corner);
    if (rect.Width == 0.0F || rect.Height == 0.0F) {
        return LineElement(toPage, rect.TopLeft(), corner, stroke);
    }
    // A viewer shows no rectangle of width 0, not even its outline.
    if (!KeepsAxesNearly(toPage) || RoundsToNothing(a.X - b.X) || RoundsToNothing(a.Y - b.Y)) {
        return PolygonElement(toPage, CornersOf(rect), stroke);
    }
    return BoxElement(a, b, stroke);
}

std::string FilledBox(const Matrix& toPage, const RectF& rect, const std::string& fill) {
    if (rect.Width <= 0.0F || rect.Height <= 0.0F) {
        return "";
    }
    if (!KeepsAxesNearly(toPage)) {
        return PolygonElement(toPage, CornersOf(rect), fill);
    }
    return BoxElement(OnPage(toPage, rect.TopLeft()), OnPage(toPage, PointF{rect.Right(), rect.Bottom()}),
                      fill);
}

std::string LineElement(const Matrix& toPage, PointF from, PointF to, const std::string& stroke) {
    const PointD a = OnPage(toPage, from);
    const PointD b = OnPage(toPage, to);
    if (RoundsToNothing(a.X - b.X) && RoundsToNothing(a.Y - b.Y)) {
        return "";
    }
    return SvgElement("line").Set("x1", a.X).Set("y1", a.Y).Set("x2", b.X).Set("y2", b.Y).Raw(stroke).Empty();
}

std::string PolylineElement(const Matrix& toPage, std::span<const PointF> points, const std::string& stroke) {
    return PointsElement("polyline", toPage, points, stroke);
}

std::string PolygonElement(const Matrix& toPage, std::span<const PointF> points, const std::string& paint) {
    return PointsElement("polygon", toPage, points, paint);
}

std::string EllipseElement(const Matrix& toPage, const RectF& rect, const std::string& paint) {
    const MappedAxes axes = AxesUnder(toPage);
    const double rx = rect.Width * 0.5 * axes.X;
    const double ry = rect.Height * 0.5 * axes.Y;
    const PointD center = OnPage(toPage, rect.Center());
    const bool circle = KeepsRightAngles(toPage) && Number(rx) == Number(ry);
    if (!circle && !KeepsAxesNearly(toPage)) {
        GraphicsPath path;
        path.AddEllipse(rect);
        return PathElement(toPage, path, paint);
    }
    SvgElement element(circle ? "circle" : "ellipse");
    element.Set("cx", center.X).Set("cy", center.Y);
    if (circle) {
        return element.Set("r", rx).Raw(paint).Empty();
    }
    const bool quarterTurn = std::abs(toPage.M12) > std::abs(toPage.M11);
    return element.Set("rx", quarterTurn ? ry : rx).Set("ry", quarterTurn ? rx : ry).Raw(paint).Empty();
}

std::string PathElement(const Matrix& toPage, const GraphicsPath& path, const std::string& paint) {
    const std::string data = PathData(path, toPage);
    return data.empty() ? "" : SvgElement("path").Set("d", data).Raw(paint).Empty();
}

} // namespace penlode::svg
