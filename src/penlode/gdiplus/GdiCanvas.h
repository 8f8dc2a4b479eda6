#pragma once

#include "penlode/engine/DataRun.h"
#include "penlode/engine/DeviceShapes.h"
#include "penlode/engine/Drawings.h"
#include "penlode/gdiplus/GdiPlus.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace penlode {

/// A GDI+ surface on which drawings are bracketed and clipped, all in device units.
class GdiCanvas {
public:
    GdiCanvas(GdipGraphics graphics, const DeviceSetting& setting);

    Gdiplus::GpGraphics* Graphics() const { return m_graphics.get(); }

    const DeviceSetting& Setting() const { return m_setting; }

    /// Brings clip, transform and smoothing up to date.
    void Begin(const CSurfaceState& state);

    /// Where nothing but whole numbers move, to the edges of pixels: GDI+ has them in the middle. Its own
    /// setting for that is not obeyed by all that draws.
    void GoHome();
    /// Until the canvas goes home: a map in device units, on top of that move.
    void SetTransform(const Matrix& m);
    /// The same without it: for texts, which GDI+ places by their edges, and for images, of which it can be
    /// told.
    void SetPlainTransform(const Matrix& m);

    /// A brush and a pen that are kept for the next drawing, which often has the same. Dashes are as they are
    /// `offset` device units along the line. Null if memory runs out; GDI+ then draws nothing.
    Gdiplus::GpBrush* BrushFor(Color color);
    Gdiplus::GpPen* PenFor(const DevicePen& pen, double offset, bool dashed);

private:
    struct PenKey {
        Color Ink;
        double Width = 0.0;
        DashStyle Dashes = DashStyle::Solid;

        friend bool operator==(const PenKey&, const PenKey&) = default;
    };

    void UpdateClip(const CSurfaceState& state);

    GdipGraphics m_graphics;
    DeviceSetting m_setting;
    bool m_isHome = false;
    GdipBrush m_brush;
    std::optional<Color> m_brushColor;
    GdipPen m_pen;
    std::optional<PenKey> m_penKey;
    std::optional<std::uint64_t> m_clipGeneration;
};

/// One drawing operation.
class GdiPainter final : public ShapePainter {
public:
    GdiPainter(GdiCanvas& canvas, const CSurfaceState& state);

    /// False when nothing can be drawn: the transform folds the plane.
    bool IsReady() const { return m_ready; }

    GdiCanvas& Canvas() const { return m_canvas; }

    Gdiplus::GpGraphics* Graphics() const { return m_canvas.Graphics(); }

    void FillPolygon(std::span<const PointD> corners, Color color) const override;
    Status FillPath(const GraphicsPath& path, Color color) const override;
    void StrokePolyline(const DevicePen& pen, std::vector<PointD> points, bool closed) const override;
    bool StrokeNear(const GraphicsPath& path, const DevicePen& pen) const override;

private:
    void StrokeRun(const DevicePen& pen, std::span<const PointD> points, bool closed, double before,
                   bool dashed) const;
    void StrokeAsShaped(Gdiplus::GpPath* outline, const DevicePen& pen, double before, bool dashed) const;

    GdiCanvas& m_canvas;
    bool m_ready;
};

/// The same in GDI+'s terms. Null if memory runs out.
GdipMatrix MatrixOf(const Matrix& m);

/// The area inside all of the regions, which are in CSurfaceState's device coordinates. Null when it cannot
/// be made.
GdipRegion ClipRegion(const std::vector<Region>& regions, const DeviceSetting& setting);

/// A path's area in device units, cut to `box` where it reaches beyond. Null when a point of it is not
/// finite, or when memory runs out.
GdipPath AreaOf(const GraphicsPath& path, const Matrix& toDevice, const BoxD& box);

/// A polygon, cut likewise.
GdipPath AreaOf(std::span<const PointD> corners, const BoxD& box);

/// However long the line, thinned to what the surface can show; never snapped. InvalidParameter, and nothing
/// drawn, when a point is not finite.
Status StrokeDataLine(const GdiPainter& painter, DataRun& run, const Pen& pen);
Status PaintText(const GdiPainter& painter, const TextRun& text);
Status PaintImage(const GdiPainter& painter, const ImagePart& part);
Status PaintGradient(const GdiPainter& painter, const GradientMesh& mesh);

} // namespace penlode
