#pragma once

#include "penlode/engine/TrackingEngine.h"
#include "penlode/svg/SvgOptions.h"

#include <memory>
#include <string>

namespace penlode {

/// The surface as an SVG document: its page in millimetres, texts that can be selected and searched, the same
/// bytes for the same calls in every locale.
///
///     CSvgEngine engine({80, 60}, {.Title = "Sales"});
///     chart.Draw(&engine);
///     file << engine.Text();
///
/// A fresh surface counts in millimetres at scale 1, from its top-left corner; its device unit is the
/// millimetre. Numbers are written to a thousandth of one; of long polylines, what 600 dots per inch can
/// show. No line is thinner than 0.05 mm. A container's drawings stand in a group of their own.
///
/// A text takes up its measured width whatever face the reader has. Under a transform that is not a turn or
/// an equal scale, texts and pictures are distorted with it; a pen's width is not, and grows with the square
/// root of the area.
///
/// Smoothing is left to the viewer: the mode is kept, and changes nothing. A shape that reaches a hundred
/// metres away is written as what lies near the page.
class PENLODE_API CSvgEngine final : public CTrackingEngine {
public:
    /// A page of that many millimetres. A side that is not finite or not above 0 counts as 0, and a viewer
    /// shows nothing; one of more than a kilometre counts as a kilometre.
    explicit CSvgEngine(SizeF millimetres, const SvgOptions& options = {});
    ~CSvgEngine() override;

    /// The whole document, UTF-8, as far as it has been drawn.
    std::string Text() const;

    std::uint32_t BeginContainer() override;
    Status EndContainer(std::uint32_t container) override;

private:
    struct Drawing;

    Status StrokeOutline(const Outline& outline, const Pen& pen) override;
    Status FillOutline(const Outline& outline, const SolidBrush& brush) override;
    Status StrokeDataLine(DataRun& run, const Pen& pen) override;
    std::vector<float> DataColumns(float left, float right) const override;
    Status PaintText(const TextRun& text) override;
    Status PaintImage(const ImagePart& part) override;
    Status PaintGradient(const GradientMesh& mesh) override;

    std::unique_ptr<Drawing> m_drawing;
};

} // namespace penlode
