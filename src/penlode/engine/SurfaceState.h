#pragma once

#include "penlode/GraphicsTypes.h"
#include "penlode/Matrix.h"
#include "penlode/Region.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace penlode {

/// What every engine tracks in the same way: transform, page unit and scale, clip, smoothing, and the
/// containers that save and restore them.
///
/// A point passes through the world transform, the page transform (unit and scale), and the base of its
/// container, which holds the outer containers' world transforms:
///
///     world --transform--> page --unit, scale--> pixels --container base--> device
///
/// The clip is kept in device coordinates. A container's own clip is combined inside the one that it began
/// with.
class CSurfaceState {
public:
    /// A fresh surface: no transform, millimetres at scale 1, nothing clipped.
    CSurfaceState(double dpiX, double dpiY);

    Status SetTransform(const Matrix* matrix);
    Status GetTransform(Matrix* matrix) const;
    Status Transform(const Matrix& step, MatrixOrder order);

    void ResetTransform() { m_now.World = {}; }

    float GetPageScale() const { return m_now.PageScale; }

    Unit GetPageUnit() const { return m_now.PageUnit; }

    /// Refuses what is not finite or not above 0.
    Status SetPageScale(float scale);
    /// Refuses World and unknown units.
    Status SetPageUnit(Unit unit);

    Matrix PageToDevice() const;

    Matrix WorldToDevice() const { return m_now.World * PageToDevice(); }

    Status TransformPoints(CoordinateSpace destination, CoordinateSpace source, PointF* points,
                           std::int32_t count) const;

    void ResetClip();

    /// The shape is in world coordinates. Refused as Region::Combine refuses.
    Status CombineClip(const Region::Shape& shape, CombineMode mode);
    Status CombineClip(const Region& region, CombineMode mode);
    /// The current container's clip in world coordinates.
    Region WorldClip() const;
    /// The clips in force, outermost container first, in device coordinates: what is drawn lies inside all of
    /// them.
    std::vector<Region> DeviceClips() const;
    /// How many clips DeviceClips gives.
    std::size_t ClipCount() const;

    /// Another number after every call that may have changed the clips in force.
    std::uint64_t ClipGeneration() const { return m_clipGeneration; }

    SmoothingMode GetSmoothingMode() const { return m_now.Smoothing; }

    void SetSmoothingMode(SmoothingMode mode) { m_now.Smoothing = mode; }

    /// A handle that no open container has.
    std::uint32_t BeginContainer();
    /// InvalidParameter for a handle that is not open.
    Status EndContainer(std::uint32_t container);

private:
    struct State {
        Matrix World;
        Matrix ContainerBase;
        float PageScale = 1.0F;
        Unit PageUnit = Unit::Millimeter;
        Region Clip;
        SmoothingMode Smoothing = SmoothingMode::AntiAlias;
    };

    struct Container {
        std::uint32_t Handle;
        State Saved;
        std::size_t ClipsOutside; ///< of m_outerClips, its own not among them
    };

    Matrix PageScaling() const;

    double m_dpiX;
    double m_dpiY;
    State m_now;
    std::vector<Container> m_containers;
    std::vector<Region> m_outerClips; ///< of the open containers, but for those that clip nothing
    std::uint32_t m_lastHandle = 0;
    std::uint64_t m_clipGeneration = 0;
};

} // namespace penlode
