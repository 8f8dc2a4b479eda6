#pragma once

#include "penlode/Pen.h"
#include "penlode/cairo/CairoCanvas.h"
#include "penlode/engine/GuardBand.h"

namespace penlode {

/// Shorter steps, in device units, nobody sees.
inline constexpr double kMinStepInPixels = 1.0 / 8.0;
inline constexpr double kMinStepOnPages = 1.0 / 32.0;

/// A pen as it is drawn under a painter's transform: its width in device units, not thinner than the
/// surface's thinnest line and, where it is snapped, in whole pixels.
class DevicePen {
public:
    DevicePen(const Pen& pen, const Painter& painter, bool snapped);

    double Width() const { return m_width; }

    bool IsSolid() const { return m_dashStyle == DashStyle::Solid || m_dashStyle == DashStyle::Custom; }

    Color GetColor() const { return m_color; }

    /// Dash and gap lengths in device units; none for a solid pen.
    std::vector<double> Dashes() const;

    /// How far its lines reach beyond their points, mitred corners included.
    double Margin() const;

private:
    Color m_color;
    DashStyle m_dashStyle;
    double m_width;
};

/// Whether the transform leaves a pen's width the same in all directions.
bool HasRoundPen(const Painter& painter);

/// Strokes a polyline in device units. Far parts are cut off; long polylines go to Cairo piece by piece,
/// since its cost grows with what crosses a scanline inside one path.
void StrokePolyline(const Painter& painter, const DevicePen& pen, std::vector<PointD> points, bool closed);

/// Strokes the context's path, which lies within the guard band.
void StrokeCurrentPath(const Painter& painter, const DevicePen& pen);

} // namespace penlode
