#include "foundation/TextPropertyOperation.h"

#include "foundation/Container.h"
#include "foundation/NarrowText.h"
#include "penlode/engine/Finite.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

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

/// Across and down in the middle of the layout rectangle, as all chart texts stand.
constexpr penlode::StringFormat kCenteredFormat{0, 0, penlode::StringAlignment::Center,
                                                penlode::StringAlignment::Center};

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

using Corners = std::array<PointF, 4>;

/// See GetTextBound.
Corners TurnedCorners(SizeF size, std::int32_t degrees) {
    const double angle = degrees * kPi / 180.0;
    const float diagonal = std::sqrt(size.Width * size.Width + size.Height * size.Height);
    // An empty text has no diagonal and so no direction.
    const double toDiagonal = diagonal > 0.0F ? std::acos(size.Width / diagonal) : 0.0;
    const auto down = static_cast<float>(std::cos(kHalfPi - angle));
    const auto acrossDown = static_cast<float>(std::sin(kHalfPi - angle));
    return {PointF{}, Along(angle, size.Width), Along(angle - toDiagonal, diagonal),
            PointF{down * size.Height, acrossDown * size.Height}};
}

/// Before it is turned.
SizeF MeasuredSize(const std::string& text, const TextProperty& property) {
    return penlode::CStringUtil::MeasureWideString(WideText(text), property.Font.Get());
}

SizeF TurnedSize(SizeF size, std::int32_t degrees) {
    PointF least;
    PointF most;
    for (const PointF& corner : TurnedCorners(size, degrees)) {
        least = {std::min(least.X, corner.X), std::min(least.Y, corner.Y)};
        most = {std::max(most.X, corner.X), std::max(most.Y, corner.Y)};
    }
    return {most.X - least.X, most.Y - least.Y};
}

/// Where the centre of a turned text is whose bounding box is held at `point`.
PointF BoxCenter(SizeF text, std::int32_t degrees, PointF point, TextAnchor anchor) {
    switch (anchor) {
    case TextAnchor::BottomCenter:
        return {point.X, point.Y - TurnedSize(text, degrees).Height * 0.5F};
    case TextAnchor::LeftCenter:
        return {point.X + TurnedSize(text, degrees).Width * 0.5F, point.Y};
    default:
        return point;
    }
}

void DrawHeld(IGraphicsEngine* engine, const std::string& text, const TextProperty& property, PointF point,
              TextAnchor anchor) {
    if (engine != nullptr) {
        CTextPropertyOperation::Visit(CTextPropertyOperation::DrawingOn(*engine), {}, text, property, point,
                                      anchor);
    }
}

void Write(IGraphicsEngine& engine, const ChartText& text) {
    const penlode::SolidBrush brush{text.Color};
    engine.DrawString(text.Text.c_str(), -1, text.Font, text.Layout, &kCenteredFormat, &brush);
}

} // namespace

void CTextPropertyOperation::GetTextBound(const std::string& text, const TextProperty& property,
                                          std::vector<PointF>& corners) {
    const Corners turned = TurnedCorners(MeasuredSize(text, property), property.Angle);
    corners.assign(turned.begin(), turned.end());
}

SizeF CTextPropertyOperation::GetTextSize(const std::string& text, const TextProperty& property) {
    return TurnedSize(MeasuredSize(text, property), property.Angle);
}

RectF CTextPropertyOperation::GetReach(const RectF& box, std::int32_t angle) {
    const Corners turned = TurnedCorners({0.0F, kLayoutSlack * 0.5F}, angle);
    return penlode::Union(box, penlode::Translated(box, turned[3]));
}

void CTextPropertyOperation::Visit(const TextVisitor& visit, TextOwner owner, const std::string& text,
                                   const TextProperty& property, PointF point, TextAnchor anchor) {
    const penlode::Font* font = property.Font.Get();
    std::wstring wide = WideText(text);
    const SizeF size = penlode::CStringUtil::MeasureWideString(wide, font);
    const PointF center = BoxCenter(size, property.Angle, point, anchor);
    if (penlode::AreFinite(center.X, center.Y)) {
        const RectF layout{-size.Width * 0.5F, -size.Height * 0.5F, size.Width, size.Height + kLayoutSlack};
        visit({owner, std::move(wide), font, &property, center, layout, size, property.Angle,
               property.TextColor});
    }
}

void CTextPropertyOperation::Draw(IGraphicsEngine& engine, const ChartText& text) {
    if (text.Property == nullptr) {
        Write(engine, text);
        return;
    }
    const Container container(engine);
    engine.TranslateTransform(text.Origin.X, text.Origin.Y, penlode::MatrixOrder::Prepend);
    engine.RotateTransform(-static_cast<float>(text.Angle), penlode::MatrixOrder::Prepend);
    DrawBox(engine, *text.Property, {text.Layout.X, text.Layout.Y, text.Size.Width, text.Size.Height});
    Write(engine, text);
}

TextVisitor CTextPropertyOperation::DrawingOn(IGraphicsEngine& engine) {
    return [&engine](const ChartText& text) { Draw(engine, text); };
}

void CTextPropertyOperation::DrawTextAtCenter(IGraphicsEngine* engine, const std::string& text,
                                              const TextProperty& property, PointF point) {
    DrawHeld(engine, text, property, point, TextAnchor::Center);
}

void CTextPropertyOperation::DrawTextAtBottomCenter(IGraphicsEngine* engine, const std::string& text,
                                                    const TextProperty& property, PointF point) {
    DrawHeld(engine, text, property, point, TextAnchor::BottomCenter);
}

void CTextPropertyOperation::DrawTextAtLeftCenter(IGraphicsEngine* engine, const std::string& text,
                                                  const TextProperty& property, PointF point) {
    DrawHeld(engine, text, property, point, TextAnchor::LeftCenter);
}

} // namespace millichart
