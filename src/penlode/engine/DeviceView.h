#pragma once

#include "penlode/engine/DeviceGeometry.h"
#include "penlode/engine/PixelGrid.h"
#include "penlode/engine/SurfaceState.h"

#include <optional>

namespace penlode {

/// What a device shows, and how.
struct DeviceSetting {
    /// Pixels: lines are at least one wide and axis-parallel ones stand on the grid. Otherwise a page, on
    /// which places are exact.
    bool HasPixels = true;
    double Dpi = 96.0; ///< device units in an inch
    BoxD Area;         ///< what can be seen, in device units
    Matrix FromState;  ///< from CSurfaceState's device coordinates to device units
    PixelGrid Grid;
};

/// A device as one drawing operation finds it: the way there, and what can be seen of it.
class DeviceView {
public:
    DeviceView(const DeviceSetting& setting, const CSurfaceState& state)
        : m_setting(&setting), m_toDevice(state.WorldToDevice() * setting.FromState),
          m_snaps(setting.HasPixels && KeepsAxesNearly(m_toDevice)) {}

    const DeviceSetting& Setting() const { return *m_setting; }

    const Matrix& ToDevice() const { return m_toDevice; }

    PointD Map(PointF point) const { return Mapped(m_toDevice, point); }

    /// On a surface of pixels, while axis-parallel lines stay so.
    bool Snaps() const { return m_snaps; }

    bool HasPixels() const { return m_setting->HasPixels; }

    const PixelGrid& Grid() const { return m_setting->Grid; }

    /// Width of the thinnest line, in device units.
    double ThinnestLine() const;

    /// The surface and a margin around it: outlines beyond this box can be cut off unseen.
    BoxD GuardBand(double margin = 0.0) const { return m_setting->Area.Grown(64.0 + margin); }

    /// Where a rectangle lies in device units: snapped on pixels; nothing under a transform that turns it.
    std::optional<BoxD> DeviceBox(const RectF& rect) const;

private:
    const DeviceSetting* m_setting;
    Matrix m_toDevice;
    bool m_snaps;
};

/// The strongest transform that drawings go through.
inline constexpr double kMaxTransform = 1e9;

/// False for a matrix that enlarges or reduces by more than `strongest`, or flattens the plane to nearly a
/// line: engines turn matrices round in numbers of their own, and a surface on which that fails is lost.
bool IsSound(const Matrix& m, double strongest);

} // namespace penlode
