#pragma once

#include "penlode/engine/DevicePen.h"
#include "penlode/engine/Outline.h"

#include <span>
#include <vector>

namespace penlode {

/// Draws outlines on a device. On a surface of pixels boxes, faces of 3D bars and axis-parallel lines are
/// snapped to the grid; what is drawn as a path never is.
class ShapePainter : public DeviceView {
public:
    using DeviceView::DeviceView;

    /// In world coordinates.
    Status Stroke(const Outline& outline, const Pen& pen) const;
    Status Fill(const Outline& outline, Color color) const;

    /// What a device adds. Corners and points are in device units and finite; paths are in world coordinates,
    /// and answer ValueOverflow where they are not finite on the device.
    virtual void FillPolygon(std::span<const PointD> corners, Color color) const = 0;
    virtual Status FillPath(const GraphicsPath& path, Color color) const = 0;
    /// However many points; far parts are cut off.
    virtual void StrokePolyline(const DevicePen& pen, std::vector<PointD> points, bool closed) const = 0;
    /// A path that lies near, as it is; false if it is better stroked as straight lines.
    virtual bool StrokeNear(const GraphicsPath& path, const DevicePen& pen) const = 0;

    /// In world coordinates; never snapped.
    Status StrokePath(const GraphicsPath& path, const Pen& pen) const;

protected:
    ~ShapePainter() = default;
};

} // namespace penlode
