#pragma once

#include "penlode/cairo/SectionSpans.h"
#include "penlode/cairo/StrokeShapes.h"

#include <cairo.h>

namespace penlode {

/// How much of each pixel a stroked line covers, for lines of many points. Where the line crosses itself it
/// covers no more than once, so that a translucent line is as even as an opaque one. What it costs is the
/// area near each segment; Cairo's cost grows with all segments that cross a row of pixels.
class LineCoverage {
public:
    /// `area` is what can be seen, on whole pixels, 32767 a side at most.
    LineCoverage(const BoxD& area, const StrokeShapes& shapes, int sectionsPerPixel);

    /// A polyline in device units, near the area. Its caps are flat.
    void Add(std::span<const PointD> points);

    /// Lays the context's source on the surface, as thick as the line covers each pixel. The context's matrix
    /// maps from device units.
    void Paint(cairo_t* context);

private:
    /// A corner of a shape, its x counted in sections.
    struct Corner {
        double X;
        double Y;
        std::int32_t Section; ///< the first whose middle lies right of the corner
    };

    void AddConvex(std::span<const PointD> corners);
    void PutEdge(const Corner& left, const Corner& right, std::vector<std::int32_t>& heights) const;
    Corner CornerAt(PointD point) const;

    BoxD m_area;
    StrokeShapes m_shapes;
    int m_sectionsPerPixel;
    SectionSpans m_spans;
    std::vector<std::int32_t> m_tops; ///< of the shape at hand, by sections
    std::vector<std::int32_t> m_bottoms;
};

} // namespace penlode
