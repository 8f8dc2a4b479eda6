#include "penlode/engine/Mark.h"

#include "penlode/engine/DevicePen.h"

#include <algorithm>

namespace penlode {

Mark::Mark(MarkShape shape, const Pen& look, std::span<const PointF> corners, const DeviceSetting& setting,
           const CSurfaceState& state)
    : m_shape(shape), m_look(look), m_count(corners.size()),
      m_reach(setting.HasPixels ? kMinStepInPixels : kMinStepOnPages), m_smoothing(state.GetSmoothingMode()),
      m_clip(state.ClipGeneration()) {
    const Matrix toDevice = state.WorldToDevice() * setting.FromState;
    m_turn = {toDevice.M11, toDevice.M12, toDevice.M21, toDevice.M22, 0.0, 0.0};
    for (std::size_t i = 0; i < m_count; ++i) {
        m_corners[i] = Mapped(toDevice, corners[i]);
    }
    if (shape == MarkShape::FilledBox && setting.HasPixels && KeepsAxesNearly(toDevice)) {
        const BoxD box = PixelGrid::Box(BoxBetween(m_corners[0], m_corners[1]));
        m_corners[0] = {box.Left, box.Top};
        m_corners[1] = {box.Right, box.Bottom};
    }
}

bool Mark::Hides(const Mark& next) const {
    const auto isSamePlace = [this](PointD a, PointD b) {
        return std::abs(a.X - b.X) <= m_reach && std::abs(a.Y - b.Y) <= m_reach;
    };
    return m_shape == next.m_shape && m_look == next.m_look && m_look.GetColor().A() == 0xFFU &&
           m_count == next.m_count && m_turn == next.m_turn && m_smoothing == next.m_smoothing &&
           m_clip == next.m_clip &&
           std::equal(m_corners.begin(), m_corners.end(), next.m_corners.begin(), isSamePlace);
}

std::optional<Mark> MarkOf(const Outline& outline, const Pen& look, bool fills, const DeviceSetting& setting,
                           const CSurfaceState& state) {
    const auto mark = [&](MarkShape shape, std::span<const PointF> corners) {
        return Mark(shape, look, corners, setting, state);
    };
    const auto within = [](const RectF& box) {
        return std::array<PointF, 2>{box.TopLeft(), {box.Right(), box.Bottom()}};
    };
    if (const auto* rectangle = std::get_if<Outline::Rectangle>(&outline.Shape)) {
        return mark(fills ? MarkShape::FilledBox : MarkShape::Box, within(rectangle->Box));
    }
    if (const auto* ellipse = std::get_if<Outline::Ellipse>(&outline.Shape)) {
        return mark(fills ? MarkShape::FilledEllipse : MarkShape::Ellipse, within(ellipse->Box));
    }
    const auto* polygon = std::get_if<Outline::Polygon>(&outline.Shape);
    if (polygon == nullptr || polygon->Points.size() > Mark::kMaxCorners) {
        return std::nullopt;
    }
    return mark(fills ? MarkShape::FilledPolygon : MarkShape::Polygon, polygon->Points);
}

} // namespace penlode
