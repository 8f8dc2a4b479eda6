#pragma once

#include "penlode/Region.h"
#include "penlode/cairo/CairoHandles.h"
#include "penlode/engine/DeviceGeometry.h"

#include <vector>

namespace penlode {

/// Where clips stand: how the regions' coordinates become device units, whether boxes go to whole pixels, and
/// the box beyond which nothing matters.
struct ClipSetting {
    Matrix ToDevice;
    bool SnapsBoxes = false;
    BoxD Far;
};

/// Turns regions into a Cairo clip.
///
/// Whatever the steps can reduce to an intersection of even-odd areas, one or several, becomes a plain clip:
/// every chain of intersections, and exclusion, complement and xor of single shapes. The rest (unions, and
/// xor or complement of what is several areas already) is painted into a mask, through which every drawing
/// then goes. On a PDF a mask of unions stays vectors; the other masked drawings become pictures there.
class CairoClip {
public:
    /// Intersects the context's clip with the regions. The context's matrix maps device units to its own.
    void Apply(cairo_t* context, const std::vector<Region>& regions, const ClipSetting& setting);

    /// Brackets a drawing: what is drawn in between passes through the masks.
    void BeginDrawing(cairo_t* context) const;
    void EndDrawing(cairo_t* context) const;

private:
    std::vector<CairoPattern> m_masks;
};

} // namespace penlode
