#include "canvas/PartOutline.h"

#include <algorithm>
#include <cmath>

namespace designer {
namespace {

using namespace millichart;

QRectF Upright(const penlode::RectF& rect) {
    return QRectF(rect.X, rect.Y, rect.Width, rect.Height).normalized();
}

QPainterPath SlicePath(const PieShapes& shapes, std::size_t index) {
    QPainterPath path;
    if (index >= shapes.Slices.size()) {
        return path;
    }
    const PieSlice& slice = shapes.Slices[index];
    const QRectF face = Upright(shapes.Face);
    // Qt's angles, other than ours, run counter-clockwise.
    path.moveTo(face.center());
    path.arcTo(face, -slice.StartAngle, -slice.SweepAngle);
    path.closeSubpath();
    for (const PieWall& wall : slice.FrontWalls()) {
        QPainterPath front;
        front.arcMoveTo(face, -wall.From);
        front.arcTo(face, -wall.From, wall.From - wall.To);
        front.arcTo(face.translated(0.0, shapes.Depth), -wall.To, wall.To - wall.From);
        front.closeSubpath();
        path = path.united(front);
    }
    return path;
}

QPainterPath BarPath(const BarShapes& shapes, const ChartPart& part) {
    QPainterPath path;
    const auto bar = std::find_if(shapes.Bars.begin(), shapes.Bars.end(), [&part](const BarShape& shape) {
        return shape.Group == part.Index && shape.Component == part.Component;
    });
    if (bar == shapes.Bars.end()) {
        return path;
    }
    const QRectF front = Upright(bar->Front);
    const QPointF depth(shapes.Depth.X, shapes.Depth.Y);
    if (depth.isNull()) {
        path.addRect(front);
        return path;
    }
    path.addPolygon(QPolygonF({front.bottomLeft(), front.topLeft(), front.topLeft() + depth,
                               front.topRight() + depth, front.bottomRight() + depth, front.bottomRight()}));
    path.closeSubpath();
    return path;
}

/// Of a long curve, points enough to tell which one it is.
QPainterPath CurvePath(const std::vector<CurveShape>& shapes, std::size_t index) {
    constexpr std::size_t kMostPoints = 4000;
    QPainterPath path;
    if (index >= shapes.size()) {
        return path;
    }
    for (const auto& line : shapes[index].Lines) {
        const std::size_t step = line.size() / kMostPoints + 1;
        bool isBegun = false;
        for (std::size_t i = 0; i < line.size(); i += step) {
            if (!std::isfinite(line[i].X) || !std::isfinite(line[i].Y)) {
                isBegun = false;
                continue;
            }
            isBegun ? path.lineTo(line[i].X, line[i].Y) : path.moveTo(line[i].X, line[i].Y);
            isBegun = true;
        }
    }
    return path;
}

/// Each kind of chart has shapes of its own; what it does not have has no path.
struct ShapeFinder {
    const ChartPart& Part;

    QPainterPath operator()(const std::monostate&) const { return {}; }

    QPainterPath operator()(const CBasicPie& chart) const { return Slice(chart.GetShapes()); }

    QPainterPath operator()(const CBasicHalfPie& chart) const { return Slice(chart.GetShapes()); }

    QPainterPath operator()(const CBasicHalfPieHalfPie& chart) const {
        const auto shapes = chart.GetShapes();
        return Slice(Part.Part == 0 ? shapes.First : shapes.Second);
    }

    QPainterPath operator()(const CBasicHalfPieHistogram& chart) const {
        const auto shapes = chart.GetShapes();
        return Part.Kind == PartKind::Bar ? BarPath(shapes.Histogram, Part) : Slice(shapes.HalfPie);
    }

    QPainterPath operator()(const CBasicHistogram& chart) const {
        return Part.Kind == PartKind::Bar ? BarPath(chart.GetShapes(), Part) : QPainterPath();
    }

    QPainterPath operator()(const CBasicCurve& chart) const {
        return Part.Kind == PartKind::Curve ? CurvePath(chart.GetShapes(), Part.Index) : QPainterPath();
    }

    QPainterPath Slice(const PieShapes& shapes) const {
        return Part.Kind == PartKind::Slice ? SlicePath(shapes, Part.Index) : QPainterPath();
    }
};

bool HasShape(PartKind kind) {
    return kind == PartKind::Slice || kind == PartKind::Bar || kind == PartKind::Curve;
}

} // namespace

PartOutline OutlineOf(const LaidOutChart& chart, const PlacedPart& part) {
    PartOutline outline;
    if (HasShape(part.Part.Kind)) {
        outline.Path = std::visit(ShapeFinder{part.Part}, chart.Chart);
    }
    if (outline.Path.isEmpty()) {
        outline.Path.addRect(Upright(part.Box));
    } else {
        outline.IsLine = part.Part.Kind == PartKind::Curve;
    }
    return outline;
}

} // namespace designer
