#pragma once

#include "penlode/Color.h"
#include "penlode/Equality.h"
#include "penlode/GraphicsTypes.h"

namespace penlode {

/// Dash patterns in multiples of the pen's width: dash 3-1, dot 1-1, dash-dot 3-1-1-1, dash-dot-dot
/// 3-1-1-1-1-1. Custom carries no pattern here and is drawn solid.
enum class DashStyle : std::int32_t { Solid = 0, Dash = 1, Dot = 2, DashDot = 3, DashDotDot = 4, Custom = 5 };

/// Joins are mitred; a miter longer than this many half widths is cut off, so that steep data grows no
/// spikes.
inline constexpr double kMiterLimit = 4.0;

/// What fills a line. Every engine draws the pen's colour; that a pen was made of something else is a fact
/// for those who would edit it.
enum class PenFillType : std::int32_t {
    Unknown = -1,
    SolidColor = 0,
    HatchFill = 1,
    TextureFill = 2,
    PathGradient = 3,
    LinearGradient = 4,
};

/// A line's look: colour, width in page units (0 is the thinnest line that the surface draws) and dash style,
/// with flat caps. A plain value; an engine makes its platform's pen of it when it draws.
class Pen {
public:
    constexpr explicit Pen(penlode::Color color = kBlack, float width = 0.1F,
                           DashStyle dashStyle = DashStyle::Solid)
        : m_color(color), m_width(width) {
        SetDashStyle(dashStyle);
    }

    penlode::Color GetColor() const { return m_color; }

    float GetWidth() const { return m_width; }

    DashStyle GetDashStyle() const { return m_dashStyle; }

    PenFillType GetFillType() const { return m_fillType; }

    void SetFillType(PenFillType fillType) { m_fillType = fillType; }

    /// The fill becomes that plain colour.
    void SetColor(penlode::Color color) {
        m_color = color;
        m_fillType = PenFillType::SolidColor;
    }

    void SetWidth(float width) { m_width = width; }

    /// A number outside the named ones is refused with InvalidParameter, and the style stays.
    constexpr Status SetDashStyle(DashStyle style) {
        if (style < DashStyle::Solid || style > DashStyle::Custom) {
            return RecordFailure(Status::InvalidParameter);
        }
        m_dashStyle = style;
        return Status::Ok;
    }

    constexpr Status RecordFailure(Status status) { return m_lastStatus = status; }

    /// The last failure that was recorded, Ok if there was none.
    Status GetLastStatus() const { return m_lastStatus; }

    /// Compares what is drawn; the fill type and the last status take no part.
    friend bool operator==(const Pen& a, const Pen& b) {
        return a.m_color == b.m_color && AreEqual(a.m_width, b.m_width) && a.m_dashStyle == b.m_dashStyle;
    }

private:
    penlode::Color m_color;
    float m_width;
    DashStyle m_dashStyle = DashStyle::Solid;
    PenFillType m_fillType = PenFillType::SolidColor;
    Status m_lastStatus = Status::Ok;
};

} // namespace penlode
