#pragma once

#include "penlode/engine/TrackingEngine.h"

#include <memory>
#include <string>

struct _cairo; // NOLINT(bugprone-reserved-identifier): Cairo's name

namespace penlode {

/// What a PDF says of itself, in UTF-8; a text that is empty is left out.
struct PdfTexts {
    std::string Title;
    std::string Subject;
};

/// The surface on Cairo and Pango: a picture, a PDF page, or a Cairo context of the host's.
///
///     auto engine = CGraphicsEngine::ForRaster({80, 60}, 300, kWhite);
///     chart.Draw(engine.get());
///     file << engine->EncodePng();
///
/// A fresh surface counts in millimetres at scale 1, from its top-left corner.
///
/// On pixels, no line is thinner than one pixel; rectangles, axis-parallel lines and the faces of 3D bars
/// stand on whole pixels, so that what meets on the page meets in the picture, and axis-parallel lines are
/// whole pixels wide. A one-pixel outline of a filled rectangle covers its first pixels and the pixels just
/// past its right and bottom edges; on the surface's own far edges it moves in by one pixel. Curves, slanted
/// lines, paths and small markers keep their shapes. On a page, places and widths are exact, and no line is
/// thinner than 0.05 mm.
///
/// A polyline may have any number of points: what it shows is drawn, as fine as half a pixel or, on a page,
/// a 600th of an inch, and the rest costs next to nothing. An opaque shape that lies where the last one was
/// drawn, as markers of dense data do, is not drawn again.
///
/// One thread at a time may use an engine; different engines may live on different threads.
class PENLODE_API CGraphicsEngine final : public CTrackingEngine {
public:
    /// A picture of that many millimetres (rounded to whole pixels, at least one) at `dpi` dots per inch,
    /// from 1 to 9600. Null for a size that is not above 0, more than 32767 pixels along a side or 500
    /// million in all, or when memory runs out.
    static std::unique_ptr<CGraphicsEngine> ForRaster(SizeF millimetres, double dpi, Color background);

    /// One PDF page, up to 5080 mm (200 inches) along a side. Null for any other size.
    static std::unique_ptr<CGraphicsEngine> ForPdf(SizeF millimetres, const PdfTexts& texts = {});

    /// Draws on a context of the host's, which is kept until the engine goes: at its clip and with its
    /// transform as they are now, `dpi` units of its user space to the inch (96 in a widget, 72 in Cairo's
    /// own PDF). Its saved states must be balanced between calls. While the engine lives, it sets the
    /// context's transform, clip, source, operator and line settings as it needs them; when it goes, all are
    /// as they were. The path is lost. Device coordinates are those of that user space. Null for a null or
    /// failed context.
    static std::unique_ptr<CGraphicsEngine> ForCairo(_cairo* context, double dpi);

    ~CGraphicsEngine() override;

    /// The picture as a PNG file that knows its resolution, RGB if it is opaque all over, else RGBA. Empty if
    /// the engine draws no picture.
    std::string EncodePng() const;

    /// The picture so far, with its resolution. Without pixels if the engine draws none.
    Image Pixels() const;

    /// The PDF file, with its fonts in it and without the time of its making: the same drawing gives the same
    /// bytes. Ends the page: later drawings fail with WrongState, later calls give the same file. Empty if
    /// the engine draws no PDF.
    std::string FinishPdf();

private:
    struct Target;

    explicit CGraphicsEngine(std::unique_ptr<Target> target);

    Status StrokeOutline(const Outline& outline, const Pen& pen) override;
    Status FillOutline(const Outline& outline, const SolidBrush& brush) override;
    Status StrokeDataLine(DataRun& run, const Pen& pen) override;
    std::vector<float> DataColumns(float left, float right) const override;
    Status PaintText(const TextRun& text) override;
    Status PaintImage(const ImagePart& part) override;
    Status PaintGradient(const GradientMesh& mesh) override;

    std::unique_ptr<Target> m_target;
};

} // namespace penlode
