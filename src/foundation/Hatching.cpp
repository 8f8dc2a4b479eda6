#include "foundation/Hatching.h"

#include "foundation/Container.h"
#include "penlode/engine/Finite.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace millichart {

using penlode::IGraphicsEngine;
using penlode::PointF;
using penlode::RectF;

namespace {

constexpr float kSpacing = 1.5F; ///< mm between neighbouring lines
constexpr float kDenseSpacing = 0.75F;
/// Each way from the middle; on anything larger lines are farther apart.
constexpr float kMostLines = 500.0F;
constexpr float kHalfRoot = std::numbers::sqrt2_v<float> / 2.0F;

constexpr penlode::Pen kPen{penlode::Color{0xFF303030U}, 0.15F};

/// Lines along a direction of length 1, so that they cover a rectangle.
void DrawAlong(IGraphicsEngine& engine, const RectF& bounds, PointF along, float spacing = kSpacing) {
    const PointF middle = bounds.Center();
    const float wide = bounds.Width * 0.5F;
    const float high = bounds.Height * 0.5F;
    const float reach = std::abs(along.X) * wide + std::abs(along.Y) * high;
    const float across = std::abs(along.Y) * wide + std::abs(along.X) * high;
    const float step = std::max(spacing, across / kMostLines);
    const auto lines = static_cast<int>(across / step);
    for (int i = -lines; i <= lines; ++i) {
        const float off = static_cast<float>(i) * step;
        const PointF at{middle.X - along.Y * off, middle.Y + along.X * off};
        engine.DrawLine(&kPen, at.X - along.X * reach, at.Y - along.Y * reach, at.X + along.X * reach,
                        at.Y + along.Y * reach);
    }
}

void DrawHatch(IGraphicsEngine& engine, const RectF& bounds, Hatch hatch) {
    constexpr PointF kRight{1.0F, 0.0F};
    constexpr PointF kDown{0.0F, 1.0F};
    constexpr PointF kUpwards{kHalfRoot, -kHalfRoot};
    constexpr PointF kDownwards{kHalfRoot, kHalfRoot};
    if (hatch == Hatch::Horizontal || hatch == Hatch::Crossed) {
        DrawAlong(engine, bounds, kRight);
    }
    if (hatch == Hatch::Vertical || hatch == Hatch::Crossed) {
        DrawAlong(engine, bounds, kDown);
    }
    if (hatch == Hatch::Rising || hatch == Hatch::DiagonalCrossed) {
        DrawAlong(engine, bounds, kUpwards);
    }
    if (hatch == Hatch::Falling || hatch == Hatch::DiagonalCrossed) {
        DrawAlong(engine, bounds, kDownwards);
    }
    if (hatch == Hatch::Dense) {
        DrawAlong(engine, bounds, kUpwards, kDenseSpacing);
    }
}

/// `clip` is a rectangle or a path.
template <class Clip>
void DrawClipped(IGraphicsEngine& engine, const Clip& clip, const RectF& bounds, Hatch hatch) {
    const Container container(engine);
    engine.SetClip(clip, penlode::CombineMode::Intersect);
    DrawHatch(engine, bounds, hatch);
}

bool HasExtent(const RectF& rect) {
    return penlode::IsFinite(rect) && rect.Width > 0.0F && rect.Height > 0.0F;
}

} // namespace

void HatchRectangle(IGraphicsEngine& engine, const RectF& rect, Hatch hatch) {
    if (hatch == Hatch::None || !HasExtent(rect)) {
        return;
    }
    DrawClipped(engine, rect, rect, hatch);
    engine.DrawRectangle(&kPen, rect.X, rect.Y, rect.Width, rect.Height);
}

void HatchPie(IGraphicsEngine& engine, const RectF& ellipse, float startAngle, float sweepAngle,
              Hatch hatch) {
    if (hatch == Hatch::None || !HasExtent(ellipse) || !penlode::AreFinite(startAngle, sweepAngle)) {
        return;
    }
    penlode::GraphicsPath path;
    path.AddPie(ellipse, startAngle, sweepAngle);
    DrawClipped(engine, &path, ellipse, hatch);
    engine.DrawPie(&kPen, ellipse, startAngle, sweepAngle);
}

} // namespace millichart
