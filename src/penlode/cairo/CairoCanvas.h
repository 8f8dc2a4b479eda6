#pragma once

#include "penlode/Color.h"
#include "penlode/cairo/CairoClip.h"
#include "penlode/cairo/CairoHandles.h"
#include "penlode/cairo/PixelGrid.h"
#include "penlode/engine/DeviceGeometry.h"
#include "penlode/engine/SurfaceState.h"

#include <optional>

namespace penlode {

/// What a canvas is made of.
struct CanvasSetting {
    /// Pixels: lines are at least one wide and axis-parallel ones stand on the grid. Otherwise a page, on
    /// which places are exact.
    bool HasPixels = true;
    double Dpi = 96.0;  ///< device units in an inch
    BoxD Area;          ///< what can be seen, in device units
    Matrix FromState;   ///< from CSurfaceState's device coordinates to device units
    Matrix ToUserSpace; ///< from device units to what Cairo calls its user space
    PixelGrid Grid;
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

    /// Width of the thinnest line, in device units.
    double ThinnestLine() const;

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
class Painter {
public:
    Painter(CairoCanvas& canvas, const CSurfaceState& state);
    ~Painter();

    Painter(const Painter&) = delete;
    Painter& operator=(const Painter&) = delete;

    /// False when nothing can be drawn: the transform folds the plane, or the surface has failed.
    bool IsReady() const { return m_ready; }

    cairo_t* Context() const { return m_canvas.Context(); }

    const Matrix& ToDevice() const { return m_toDevice; }

    PointD Map(PointF point) const { return Mapped(m_toDevice, point); }

    /// On a surface of pixels, while axis-parallel lines stay so.
    bool Snaps() const { return m_snaps; }

    bool HasPixels() const { return m_canvas.Setting().HasPixels; }

    const CanvasSetting& Setting() const { return m_canvas.Setting(); }

    double ThinnestLine() const { return m_canvas.ThinnestLine(); }

    const PixelGrid& Grid() const { return Setting().Grid; }

    /// The surface and a margin around it: outlines beyond this box can be cut off unseen.
    BoxD GuardBand(double margin = 0.0) const { return Setting().Area.Grown(64.0 + margin); }

    void SetColor(Color color) const;
    /// The context's matrix, as a map to device units.
    void SetMatrix(const Matrix& toDevice) const;

private:
    CairoCanvas& m_canvas;
    Matrix m_toDevice;
    bool m_snaps;
    bool m_ready;
};

/// False for a matrix that enlarges or reduces by more than `strongest`, or flattens the plane to nearly a
/// line: Cairo turns matrices round in fixed point, and a surface on which that fails is lost.
bool IsSound(const Matrix& m, double strongest);

/// The same in Cairo's terms.
cairo_matrix_t ToCairo(const Matrix& m);

} // namespace penlode
