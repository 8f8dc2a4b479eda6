#pragma once

#include "penlode/Color.h"
#include "penlode/cairo/CairoClip.h"
#include "penlode/cairo/CairoHandles.h"
#include "penlode/engine/DeviceShapes.h"

#include <optional>

namespace penlode {

/// What a canvas is made of.
struct CanvasSetting {
    DeviceSetting Device;
    Matrix ToUserSpace;      ///< from device units to what Cairo calls its user space
    bool OwnsSurface = true; ///< a failed context may be replaced by a new one on the same surface
};

/// A Cairo context on which drawings are bracketed and clipped.
class CairoCanvas {
public:
    CairoCanvas(CairoContext context, const CanvasSetting& setting);
    ~CairoCanvas();

    CairoCanvas(const CairoCanvas&) = delete;
    CairoCanvas& operator=(const CairoCanvas&) = delete;

    cairo_t* Context() const { return m_context.get(); }

    /// What the context draws on, whatever has become of the context.
    cairo_surface_t* Surface() const { return m_surface.get(); }

    const CanvasSetting& Setting() const { return m_setting; }

    /// Brings clip, matrix and smoothing up to date and opens the masks. False when the surface takes no
    /// drawings any more.
    bool Begin(const CSurfaceState& state);
    void End();

    /// What has become of the drawings since the last call. A context that has failed refuses everything from
    /// then on: on a surface of our own a new one takes its place, so that one drawing that was too much for
    /// Cairo does not silence the ones that follow.
    Status Recover();

private:
    void UpdateClip(const CSurfaceState& state);

    CairoSurface m_surface;
    CairoContext m_context;
    CanvasSetting m_setting;
    CairoClip m_clip;
    std::vector<Region> m_clippedTo;
    std::optional<std::uint64_t> m_clipGeneration; ///< of m_clippedTo
};

/// One drawing operation: open from construction to destruction.
class Painter final : public ShapePainter {
public:
    Painter(CairoCanvas& canvas, const CSurfaceState& state);
    ~Painter();

    Painter(const Painter&) = delete;
    Painter& operator=(const Painter&) = delete;

    /// False when nothing can be drawn: the transform folds the plane, or the surface has failed.
    bool IsReady() const { return m_ready; }

    cairo_t* Context() const { return m_canvas.Context(); }

    void FillPolygon(std::span<const PointD> corners, Color color) const override;
    Status FillPath(const GraphicsPath& path, Color color) const override;
    /// Long polylines go to Cairo piece by piece, since its cost grows with what crosses a scanline inside
    /// one path.
    void StrokePolyline(const DevicePen& pen, std::vector<PointD> points, bool closed) const override;
    bool StrokeNear(const GraphicsPath& path, const DevicePen& pen) const override;

    void SetColor(Color color) const;
    /// The context's matrix, as a map to device units.
    void SetMatrix(const Matrix& toDevice) const;

private:
    CairoCanvas& m_canvas;
    bool m_ready;
};

/// A matrix in Cairo's terms.
cairo_matrix_t ToCairo(const Matrix& m);

} // namespace penlode
