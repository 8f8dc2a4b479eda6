#pragma once

#include "penlode/Geometry.h"
#include "penlode/GraphicsPath.h"
#include "penlode/Matrix.h"
#include "penlode/engine/DeviceGeometry.h"

#include <span>
#include <vector>

/// Maps from world coordinates to millimetres of the page, and what they keep.
namespace penlode::svg {

/// Viewers count in floats. What lies a kilometre away is moved no farther.
inline constexpr double kMaxDistance = 1e6;

/// The point on the page, within a kilometre of it.
PointD OnPage(const Matrix& transform, PointF point);
PointD OnPage(const Matrix& transform, PointD point);

/// The way from world coordinates to a page, in millimetres.
struct PageMap {
    Matrix ToPage;
    SizeF Page;

    /// The page and a metre around it: marks that keep within `margin` of a shape show nothing of what lies
    /// beyond.
    BoxD Surroundings(double margin = 0.0) const {
        return BoxD{0.0, 0.0, Page.Width, Page.Height}.Grown(1000.0 + margin);
    }
};

/// The point on the page, however far away.
PointD Placed(const Matrix& transform, PointD point);
std::vector<PointD> MapAll(const Matrix& transform, std::span<const PointF> points);

/// More than a hundred metres from the page's corner. A shape that reaches so far is cut to the page's
/// surroundings: to move its points would turn its edges.
bool IsFar(PointD point);
bool AnyFar(std::span<const PointD> points);

/// A polygon's area on the page; cut to the surroundings if it reaches far, and then perhaps empty.
std::vector<PointD> AreaOnPage(const PageMap& map, std::span<const PointF> polygon);
std::vector<PointD> CutIfFar(const PageMap& map, std::vector<PointD> polygon);

/// Invertible, and so far from the limits of double that no float it maps overflows.
bool CanMap(const Matrix& transform);

/// The lengths of the mapped unit axes and the turn of the first, in degrees clockwise.
struct MappedAxes {
    double X;
    double Y;
    double Degrees;
    bool Mirrored;
};

MappedAxes AxesUnder(const Matrix& transform);

/// Right angles between the axes stay right angles, so that an ellipse keeps its axes.
bool KeepsRightAngles(const Matrix& transform);
/// Shapes are turned and scaled, but neither mirrored nor distorted.
bool KeepsShapes(const Matrix& transform);

} // namespace penlode::svg
