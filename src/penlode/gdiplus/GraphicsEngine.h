#pragma once

#include "penlode/engine/TrackingEngine.h"

#include <memory>
#include <string>

struct HDC__;

namespace penlode {

/// The surface on GDI+: a window, a printer's page, a picture, or an enhanced metafile.
///
///     PAINTSTRUCT paint;
///     auto engine = CGraphicsEngine::ForDeviceContext(BeginPaint(window, &paint));
///     chart.Draw(engine.get());
///     engine.reset();
///     EndPaint(window, &paint);
///
/// A fresh surface counts in millimetres at scale 1, from its top-left corner.
///
/// On pixels (a window, a picture), no line is thinner than one pixel; rectangles, axis-parallel lines and
/// the faces of 3D bars stand on whole pixels, so that what meets on the page meets in the picture, and
/// axis-parallel lines are whole pixels wide. Curves, slanted lines, paths and small markers keep their
/// shapes. On a page (a printer's, a metafile's), places and widths are exact, and no line is thinner than
/// 0.05 mm.
///
/// A polyline may have any number of points: what it shows is drawn, as fine as half a pixel or, on a page, a
/// 600th of an inch. An opaque shape that lies where the last one was drawn, as markers of dense data do, is
/// not drawn again.
///
/// GDI+ is started by the first engine or measured text, never while a library is loaded, and stays until the
/// process ends. One thread at a time may use an engine; different engines may live on different threads.
class PENLODE_API CGraphicsEngine final : public CTrackingEngine {
public:
    /// A picture of that many millimetres (rounded to whole pixels, at least one) at `dpi` dots per inch,
    /// from 1 to 9600. Null for a size that is not above 0, more than 32767 pixels along a side or 500
    /// million in all, or when memory runs out.
    static std::unique_ptr<CGraphicsEngine> ForRaster(SizeF millimetres, double dpi, Color background);

    /// Draws on a device context of the host's (an HDC), in whose pixels it counts from the origin of its
    /// viewport, at `dpi` dots per inch; 0 stands for the device's
    /// own, which is for a window the system's and not its monitor's (GetDpiForWindow). The mapping mode must
    /// be MM_TEXT. The context must outlive the engine; when the engine goes, it is as it was found. A
    /// printer's context and a metafile's are pages. Null for a null context or one that GDI+ cannot draw on,
    /// and for a `dpi` that is neither 0 nor from 1 to 9600.
    static std::unique_ptr<CGraphicsEngine> ForDeviceContext(HDC__* context, double dpi = 0.0);

    /// An enhanced metafile of that many millimetres, up to 5080 (200 inches) along a side, for which the
    /// screen is the reference. It holds the records of GDI+ beside those of GDI where the system writes
    /// both, else GDI's alone, which count in the screen's pixels. Null for any other size.
    static std::unique_ptr<CGraphicsEngine> ForMetafile(SizeF millimetres);

    ~CGraphicsEngine() override;

    /// The picture as a PNG file that knows its resolution, RGB if it is opaque all over, else RGBA. Empty if
    /// the engine draws no picture.
    std::string EncodePng() const;

    /// The picture so far, with its resolution. Without pixels if the engine draws none.
    Image Pixels() const;

    /// The bytes of the metafile (.emf), which SetEnhMetaFileBits makes a handle of. Ends it: later drawings
    /// fail with WrongState, later calls give the same file. Empty if the engine draws no metafile.
    std::string FinishMetafile();

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
