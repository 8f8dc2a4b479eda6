#include "penlode/engine/PixelGrid.h"

#include <cstddef>

namespace penlode {
namespace {

/// Device units by which two coordinates may differ and still count as one. Single-precision millimetres are
/// this exact on the largest and finest surfaces.
constexpr double kSame = 0.02;

constexpr double kUnequalSides = 0.01;
constexpr double kMaxMarker = 32.0;

bool IsOdd(double wholeWidth) {
    return std::fmod(wholeWidth, 2.0) != 0.0;
}

bool AlongAxis(PointD a, PointD b) {
    return std::abs(a.X - b.X) <= kSame || std::abs(a.Y - b.Y) <= kSame;
}

std::size_t AxisParallelEdges(std::span<const PointD> polygon) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        count += AlongAxis(polygon[i], polygon[(i + 1) % polygon.size()]) ? 1 : 0;
    }
    return count;
}

bool IsMarker(const BoxD& box) {
    return std::abs(box.Width() - box.Height()) <= kUnequalSides && box.Width() < kMaxMarker;
}

double FarEdge(double nearEdge, double extent, double farDevice, bool keepsSize) {
    if (extent <= 0.0) {
        return nearEdge;
    }
    return std::max(nearEdge + 1.0,
                    keepsSize ? nearEdge + PixelGrid::Edge(extent) : PixelGrid::Edge(farDevice));
}

/// Neighbouring points that stand on one axis-parallel line get exactly that line's coordinate, so that they
/// cannot be rounded apart.
std::vector<PointD> Straightened(std::span<const PointD> points) {
    std::vector<PointD> straight(points.begin(), points.end());
    const auto follow = [](double& value, double leader) {
        if (std::abs(value - leader) <= kSame) {
            value = leader;
        }
    };
    for (std::size_t i = 1; i < straight.size(); ++i) {
        follow(straight[i].X, straight[i - 1].X);
        follow(straight[i].Y, straight[i - 1].Y);
    }
    if (!straight.empty()) {
        follow(straight.back().X, straight.front().X);
        follow(straight.back().Y, straight.front().Y);
    }
    return straight;
}

std::vector<PointD> WithoutRepeats(std::span<const PointD> points) {
    std::vector<PointD> distinct;
    for (const PointD p : points) {
        if (distinct.empty() || p.X != distinct.back().X || p.Y != distinct.back().Y) {
            distinct.push_back(p);
        }
    }
    return distinct;
}

/// A line that is shorter than a pixel: the pixel in which it begins. One without length is nothing.
std::vector<PointD> OnePixel(PointD centre, PointD from, PointD to) {
    if (from.X == to.X && from.Y == to.Y) {
        return {};
    }
    if (std::abs(to.X - from.X) >= std::abs(to.Y - from.Y)) {
        return {{centre.X - 0.5, centre.Y}, {centre.X + 0.5, centre.Y}};
    }
    return {{centre.X, centre.Y - 0.5}, {centre.X, centre.Y + 0.5}};
}

/// `end` moved by half a pixel away from `neighbour`, both on one axis-parallel line.
PointD Extended(PointD end, PointD neighbour) {
    const auto away = [](double from, double to) { return to > from ? 0.5 : to < from ? -0.5 : 0.0; };
    return {end.X + away(neighbour.X, end.X), end.Y + away(neighbour.Y, end.Y)};
}

} // namespace

double PixelGrid::Edge(double device) {
    return std::floor(device + 0.5 + 1.0 / 1024.0);
}

double PixelGrid::WholeWidth(double width) {
    return std::max(1.0, std::round(width));
}

double PixelGrid::LineCentre(double device, double lineWidth, double extent) {
    const double edge = Edge(device);
    if (!IsOdd(lineWidth)) {
        return edge;
    }
    return (edge == extent ? edge - 1.0 : edge) + 0.5;
}

BoxD PixelGrid::Box(const BoxD& box) {
    const double left = Edge(box.Left);
    const double top = Edge(box.Top);
    const bool marker = IsMarker(box);
    return {left, top, FarEdge(left, box.Width(), box.Right, marker),
            FarEdge(top, box.Height(), box.Bottom, marker)};
}

BoxD PixelGrid::Outline(const BoxD& box, double lineWidth) const {
    const BoxD snapped = Box(box);
    return {LineX(snapped.Left, lineWidth), LineY(snapped.Top, lineWidth), LineX(snapped.Right, lineWidth),
            LineY(snapped.Bottom, lineWidth)};
}

bool PixelGrid::IsAxisParallel(std::span<const PointD> polyline) {
    if (polyline.size() < 2) {
        return false;
    }
    for (std::size_t i = 1; i < polyline.size(); ++i) {
        if (!AlongAxis(polyline[i - 1], polyline[i])) {
            return false;
        }
    }
    return true;
}

std::vector<PointD> PixelGrid::Polyline(std::span<const PointD> points, double lineWidth) const {
    std::vector<PointD> snapped = WithoutRepeats(FaceOutline(points, lineWidth));
    if (snapped.size() == 1) {
        return OnePixel(snapped.front(), points.front(), points.back());
    }
    if (snapped.size() > 1 && IsOdd(lineWidth)) {
        const PointD first = Extended(snapped[0], snapped[1]);
        snapped.back() = Extended(snapped.back(), snapped[snapped.size() - 2]);
        snapped.front() = first;
    }
    return snapped;
}

bool PixelGrid::IsFace(std::span<const PointD> polygon) {
    return polygon.size() == 4 && AxisParallelEdges(polygon) >= 2;
}

std::vector<PointD> PixelGrid::Face(std::span<const PointD> polygon) {
    std::vector<PointD> snapped;
    for (const PointD p : Straightened(polygon)) {
        snapped.push_back({Edge(p.X), Edge(p.Y)});
    }
    return snapped;
}

std::vector<PointD> PixelGrid::FaceOutline(std::span<const PointD> polygon, double lineWidth) const {
    std::vector<PointD> snapped;
    for (const PointD p : Straightened(polygon)) {
        snapped.push_back({LineX(p.X, lineWidth), LineY(p.Y, lineWidth)});
    }
    return snapped;
}

bool IsBox(std::span<const PointD> polygon) {
    if (polygon.size() != 4) {
        return false;
    }
    const auto sameX = [&](std::size_t a, std::size_t b) {
        return std::abs(polygon[a].X - polygon[b].X) <= kSame;
    };
    const auto sameY = [&](std::size_t a, std::size_t b) {
        return std::abs(polygon[a].Y - polygon[b].Y) <= kSame;
    };
    return (sameX(0, 1) && sameY(1, 2) && sameX(2, 3) && sameY(3, 0)) ||
           (sameY(0, 1) && sameX(1, 2) && sameY(2, 3) && sameX(3, 0));
}

} // namespace penlode
