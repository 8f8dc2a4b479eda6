#pragma once

#include "penlode/Pen.h"
#include "penlode/engine/DeviceView.h"
#include "penlode/engine/GuardBand.h"

#include <vector>

namespace penlode {

/// Shorter steps, in device units, nobody sees.
inline constexpr double kMinStepInPixels = 1.0 / 8.0;
inline constexpr double kMinStepOnPages = 1.0 / 32.0;

/// A pen as it is drawn under a view's transform: its width in device units, not thinner than the surface's
/// thinnest line and, where it is snapped, in whole pixels.
class DevicePen {
public:
    DevicePen(const Pen& pen, const DeviceView& view, bool snapped);

    double Width() const { return m_width; }

    bool IsSolid() const { return m_dashStyle == DashStyle::Solid || m_dashStyle == DashStyle::Custom; }

    DashStyle GetDashStyle() const { return m_dashStyle; }

    Color GetColor() const { return m_color; }

    /// Dash and gap lengths in device units; none for a solid pen.
    std::vector<double> Dashes() const;

    /// In half widths.
    double MiterLimit() const { return m_miterLimit; }

    /// The pen for a line of which points are left out: its corners are not quite those of the full one, and
    /// a tip that reaches more than a pixel beyond the line's edge might stand alone.
    DevicePen ForThinned(bool isThinned) const;

    /// How far its lines reach beyond their points, mitred corners included.
    double Margin() const;

private:
    Color m_color;
    DashStyle m_dashStyle;
    double m_width;
    double m_miterLimit = kMiterLimit;
};

/// The transform without its scale, in which the pen's width counts: a circle but where axes are scaled
/// differently.
Matrix PenShape(const Matrix& toDevice);

/// Whether the transform leaves a pen's width the same in all directions.
bool HasRoundPen(const DeviceView& view);

double LengthOf(std::span<const PointD> points);

/// The runs of a polyline that can be seen, without steps that nobody sees.
std::vector<PolylineRun> RunsOf(const DeviceView& view, std::vector<PointD> points, bool closed,
                                const DevicePen& pen);

/// A line with more dashes than any eye can tell apart is drawn solid: then there are none.
std::vector<double> DashesFor(const std::vector<PolylineRun>& runs, const DevicePen& pen);

/// A polyline of so many points goes to its surface in runs, each as it is.
inline constexpr std::size_t kMaxPathPoints = 64;

/// Few points that lie near: one path, closed by the surface itself.
bool IsPlain(const std::vector<PointD>& points, const BoxD& box);

} // namespace penlode
