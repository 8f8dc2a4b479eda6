#pragma once

#include "penlode/Pen.h"
#include "penlode/engine/DeviceView.h"
#include "penlode/engine/Outline.h"

#include <array>
#include <optional>
#include <span>

namespace penlode {

enum class MarkShape { FilledBox, FilledEllipse, FilledPolygon, Box, Ellipse, Polygon };

/// A small shape as it lies on the surface: data denser than pixels draw the same one many times over. To
/// paint an opaque one again where it was painted last changes nothing but the softness of its edge.
class Mark {
public:
    static constexpr std::size_t kMaxCorners = 4;

    /// Up to kMaxCorners in world coordinates. What is filled has a pen of its colour.
    Mark(MarkShape shape, const Pen& look, std::span<const PointF> corners, const DeviceSetting& setting,
         const CSurfaceState& state);

    /// Whether `next` would be painted over this one, to within an eighth of a pixel. Snapped boxes are to
    /// cover the same pixels.
    bool Hides(const Mark& next) const;

private:
    MarkShape m_shape;
    Pen m_look;
    std::size_t m_count;
    std::array<PointD, kMaxCorners> m_corners{}; ///< device units
    double m_reach;                              ///< of one place, in device units
    Matrix m_turn;                               ///< the way to the device without its offset
    SmoothingMode m_smoothing;
    std::uint64_t m_clip;
};

/// Nothing for what is no such shape.
std::optional<Mark> MarkOf(const Outline& outline, const Pen& look, bool fills, const DeviceSetting& setting,
                           const CSurfaceState& state);

} // namespace penlode
