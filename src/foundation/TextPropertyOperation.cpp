#include "foundation/TextPropertyOperation.h"

#include "penlode/engine/EngineArguments.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <cmath>

namespace millichart {

using penlode::IGraphicsEngine;
using penlode::PointF;
using penlode::RectF;
using penlode::SizeF;

namespace {

// The constants' digits are part of the result.
constexpr double kPi = 3.14159265;
constexpr double kHalfPi = 1.570796325;

constexpr float kFrameWidth = 0.1F;
/// The layout rectangle is a little taller than the box, so that rounding never costs a text its last line.
constexpr float kLayoutSlack = 0.5F;

/// (cos angle, sin angle) × length on a surface whose y grows downwards, each factor in single precision.
PointF Along(double angle, float length) {
    return {static_cast<float>(std::cos(angle)) * length, -static_cast<float>(std::sin(angle)) * length};
}

/// The fill and, on top of it, the frame of a text's box.
void DrawBox(IGraphicsEngine& engine, const TextProperty& property, const RectF& box) {
    if (property.DrawBackGround != 0) {
        const penlode::SolidBrush brush{property.BkColor};
        engine.FillRectangle(&brush, box.X, box.Y, box.Width, box.Height);
    }
    if (property.DrawEdge != 0) {
        const penlode::Pen pen(property.EdgeColor, kFrameWidth);
        engine.DrawRectangle(&pen, box.X, box.Y, box.Width, box.Height);
    }
}

} // namespace

ScopedContainer::ScopedContainer(IGraphicsEngine& engine) : m_engine(engine) {
    const float scale = engine.GetPageScale();
    const penlode::Unit unit = engine.GetPageUnit();
    m_container = engine.BeginContainer();
    engine.SetPageScale(scale);
    engine.SetPageUnit(unit);
}

ScopedContainer::~ScopedContainer() {
    m_engine.EndContainer(m_container);
}

void CTextPropertyOperation::GetTextBound(const std::string& text, const TextProperty& property,
                                          std::vector<PointF>& corners) {
    const SizeF size = penlode::CStringUtil::MeasureString(text, property.Font.Get());
    const double angle = property.Angle * kPi / 180.0;
    const float diagonal = std::sqrt(size.Width * size.Width + size.Height * size.Height);
    // An empty text has no diagonal and so no direction.
    const double toDiagonal = diagonal > 0.0F ? std::acos(size.Width / diagonal) : 0.0;
    const auto down = static_cast<float>(std::cos(kHalfPi - angle));
    const auto acrossDown = static_cast<float>(std::sin(kHalfPi - angle));
    corners = {PointF{}, Along(angle, size.Width), Along(angle - toDiagonal, diagonal),
               PointF{down * size.Height, acrossDown * size.Height}};
}

SizeF CTextPropertyOperation::GetTextSize(const std::string& text, const TextProperty& property) {
    std::vector<PointF> corners;
    GetTextBound(text, property, corners);
    PointF least = corners.front();
    PointF most = corners.front();
    for (const PointF& corner : corners) {
        least = {std::min(least.X, corner.X), std::min(least.Y, corner.Y)};
        most = {std::max(most.X, corner.X), std::max(most.Y, corner.Y)};
    }
    return {most.X - least.X, most.Y - least.Y};
}

void CTextPropertyOperation::DrawTextAtCenter(IGraphicsEngine* engine, const std::string& text,
                                              const TextProperty& property, PointF point) {
    if (engine == nullptr || !penlode::AreFinite(point.X, point.Y)) {
        return;
    }
    const penlode::SolidBrush brush{property.TextColor};
    const std::wstring wide = penlode::CStringUtil::AnsiToWideString(text);

    const ScopedContainer container(*engine);
    engine->TranslateTransform(point.X, point.Y, penlode::MatrixOrder::Prepend);
    engine->RotateTransform(-static_cast<float>(property.Angle), penlode::MatrixOrder::Prepend);

    const SizeF size = penlode::CStringUtil::MeasureString(text, property.Font.Get());
    const RectF box{-size.Width * 0.5F, -size.Height * 0.5F, size.Width, size.Height};
    DrawBox(*engine, property, box);
    engine->DrawString(wide.c_str(), -1, property.Font.Get(),
                       RectF{box.X, box.Y, box.Width, box.Height + kLayoutSlack}, &kCenteredFormat, &brush);
}

void CTextPropertyOperation::DrawTextAtBottomCenter(IGraphicsEngine* engine, const std::string& text,
                                                    const TextProperty& property, PointF point) {
    const SizeF size = GetTextSize(text, property);
    DrawTextAtCenter(engine, text, property, {point.X, point.Y - size.Height * 0.5F});
}

void CTextPropertyOperation::DrawTextAtLeftCenter(IGraphicsEngine* engine, const std::string& text,
                                                  const TextProperty& property, PointF point) {
    const SizeF size = GetTextSize(text, property);
    DrawTextAtCenter(engine, text, property, {point.X + size.Width * 0.5F, point.Y});
}

} // namespace millichart
