#pragma once

#include "penlode/engine/TrackingEngine.h"

#include <functional>
#include <string>

namespace cli {

/// An engine that draws nothing and tells of each text: what it says, its font, and the box round it in mm of
/// the page.
class TextListener final : public penlode::CTrackingEngine {
public:
    using Heard =
        std::function<void(const std::wstring& text, const penlode::Font& font, const penlode::RectF& box)>;

    explicit TextListener(Heard heard);

    using CTrackingEngine::DrawImage;
    using CTrackingEngine::DrawString;

    penlode::Status DrawString(const wchar_t* text, std::int32_t length, const penlode::Font* font,
                               const penlode::RectF& layout, const penlode::StringFormat* format,
                               const penlode::SolidBrush* brush) override;

    penlode::Status DrawRectangle(const penlode::Pen*, float, float, float, float) override { return kOk; }

    penlode::Status DrawLines(const penlode::Pen*, const penlode::PointF*, std::int32_t) override {
        return kOk;
    }

    penlode::Status DrawLine(const penlode::Pen*, float, float, float, float) override { return kOk; }

    penlode::Status DrawArc(const penlode::Pen*, float, float, float, float, float, float) override {
        return kOk;
    }

    penlode::Status DrawEllipse(const penlode::Pen*, float, float, float, float) override { return kOk; }

    penlode::Status DrawPie(const penlode::Pen*, const penlode::RectF&, float, float) override { return kOk; }

    penlode::Status DrawPolygon(const penlode::Pen*, const penlode::PointF*, std::int32_t) override {
        return kOk;
    }

    penlode::Status DrawCurve(const penlode::Pen*, const penlode::PointF*, std::int32_t) override {
        return kOk;
    }

    penlode::Status DrawImage(const penlode::Image*, const penlode::RectF&, float, float, float, float,
                              penlode::Unit, const penlode::ImageAttributes*, penlode::DrawImageAbort,
                              void*) override {
        return kOk;
    }

    penlode::Status FillRectangle(const penlode::SolidBrush*, float, float, float, float) override {
        return kOk;
    }

    penlode::Status FillEllipse(const penlode::SolidBrush*, float, float, float, float) override {
        return kOk;
    }

    penlode::Status FillPie(const penlode::SolidBrush*, const penlode::RectF&, float, float) override {
        return kOk;
    }

    penlode::Status FillPolygon(const penlode::SolidBrush*, const penlode::PointF*, std::int32_t) override {
        return kOk;
    }

    penlode::Status FillPath(const penlode::SolidBrush*, const penlode::GraphicsPath*) override {
        return kOk;
    }

    std::int32_t GradientFill(const penlode::RectL&, const penlode::PointF&, const penlode::GradientVertex*,
                              std::uint32_t, const void*, std::uint32_t, penlode::GradientMode) override {
        return 1;
    }

private:
    static constexpr penlode::Status kOk = penlode::Status::Ok;

    Heard m_heard;
};

} // namespace cli
