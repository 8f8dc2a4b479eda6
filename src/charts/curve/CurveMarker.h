#pragma once

#include "charts/curve/CurveStyle.h"
#include "penlode/IGraphicsEngine.h"

namespace millichart {

/// The marker of one curve: a shape about a point, filled or outlined in one colour.
class CurveMarker {
public:
    explicit CurveMarker(const CurveStyle& style);

    /// False for a style that draws nothing.
    bool IsDrawn() const;
    void Draw(penlode::IGraphicsEngine& engine, penlode::PointF at) const;

private:
    void DrawBox(penlode::IGraphicsEngine& engine, penlode::PointF at) const;
    void DrawPolygon(penlode::IGraphicsEngine& engine, penlode::PointF at) const;

    std::int32_t m_style;
    float m_radius; ///< half the marker's width
    penlode::SolidBrush m_brush;
    penlode::Pen m_pen;
};

} // namespace millichart
