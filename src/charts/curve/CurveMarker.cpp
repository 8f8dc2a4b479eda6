#include "charts/curve/CurveMarker.h"

#include <array>
#include <span>

namespace millichart {

using penlode::IGraphicsEngine;
using penlode::PointF;

namespace {

constexpr float kOutlineWidth = 0.2F;

// Corners about the point, in halves of the marker's width.
constexpr PointF kDiamond[] = {{0.0F, -1.0F}, {-1.0F, 0.0F}, {0.0F, 1.0F}, {1.0F, 0.0F}};
constexpr PointF kTriangle[] = {{0.0F, -1.0F}, {-1.0F, 1.0F}, {1.0F, 1.0F}};
constexpr PointF kInvertedTriangle[] = {{0.0F, 1.0F}, {-1.0F, -1.0F}, {1.0F, -1.0F}};

std::span<const PointF> CornersOf(std::int32_t style) {
    switch (style) {
    case CurveDotStyle::SolidDiamond:
    case CurveDotStyle::HollowDiamond:
        return kDiamond;
    case CurveDotStyle::SolidTriangle:
    case CurveDotStyle::HollowTriangle:
        return kTriangle;
    default:
        return kInvertedTriangle;
    }
}

} // namespace

CurveMarker::CurveMarker(const CurveStyle& style)
    : m_style(style.Dot), m_radius(style.DotWidth * 0.5F), m_brush{style.DotColor},
      m_pen(style.DotColor, kOutlineWidth) {}

bool CurveMarker::IsDrawn() const {
    return m_style >= CurveDotStyle::SolidSquare && m_style <= CurveDotStyle::HollowInvertedTriangle;
}

void CurveMarker::Draw(IGraphicsEngine& engine, PointF at) const {
    if (m_style <= CurveDotStyle::HollowCircle) {
        DrawBox(engine, at);
    } else {
        DrawPolygon(engine, at);
    }
}

/// A square, or the circle in it.
void CurveMarker::DrawBox(IGraphicsEngine& engine, PointF at) const {
    const PointF corner{at.X - m_radius, at.Y - m_radius};
    const float side = 2.0F * m_radius;
    switch (m_style) {
    case CurveDotStyle::SolidSquare:
        engine.FillRectangle(&m_brush, corner.X, corner.Y, side, side);
        break;
    case CurveDotStyle::HollowSquare:
        engine.DrawRectangle(&m_pen, corner.X, corner.Y, side, side);
        break;
    case CurveDotStyle::SolidCircle:
        engine.FillEllipse(&m_brush, corner.X, corner.Y, side, side);
        break;
    case CurveDotStyle::HollowCircle:
        engine.DrawEllipse(&m_pen, corner.X, corner.Y, side, side);
        break;
    default:
        break;
    }
}

void CurveMarker::DrawPolygon(IGraphicsEngine& engine, PointF at) const {
    std::array<PointF, std::size(kDiamond)> corners;
    std::int32_t count = 0;
    for (const PointF corner : CornersOf(m_style)) {
        corners[static_cast<std::size_t>(count++)] = {at.X + corner.X * m_radius, at.Y + corner.Y * m_radius};
    }
    if (IsSolidMarker(m_style)) {
        engine.FillPolygon(&m_brush, corners.data(), count);
    } else {
        engine.DrawPolygon(&m_pen, corners.data(), count);
    }
}

} // namespace millichart
