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

private:
    static constexpr penlode::Status kOk = penlode::Status::Ok;

    penlode::Status StrokeOutline(const penlode::Outline&, const penlode::Pen&) override { return kOk; }

    penlode::Status FillOutline(const penlode::Outline&, const penlode::SolidBrush&) override { return kOk; }

    penlode::Status StrokeDataLine(std::span<const penlode::PointF>, const penlode::Pen&) override {
        return kOk;
    }

    penlode::Status PaintText(const penlode::TextRun& text) override;

    penlode::Status PaintImage(const penlode::ImagePart&) override { return kOk; }

    penlode::Status PaintGradient(const penlode::GradientMesh&) override { return kOk; }

    Heard m_heard;
};

} // namespace cli
