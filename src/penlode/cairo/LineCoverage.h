#pragma once

#include "penlode/cairo/SectionSpans.h"
#include "penlode/engine/DeviceGeometry.h"

#include <cairo.h>
#include <span>

namespace penlode {

/// How much of each pixel a stroked line covers, for lines of many points. Where the line crosses itself it
/// covers no more than once, so that a translucent line is as even as an opaque one. What it costs is the
/// area near each segment; Cairo's cost grows with all segments that cross a row of pixels.
class LineCoverage {
public:
    struct Stroke {
        double Width;
        double MiterLimit; ///< in half widths
    };

    /// `area` is what can be seen, on whole pixels, 32767 a side at most.
    LineCoverage(const BoxD& area, const Stroke& stroke, int sectionsPerPixel);

    /// A polyline in device units, near the area. Its caps are flat.
    void Add(std::span<const PointD> points);

    /// Lays the context's source on the surface, as thick as the line covers each pixel. The context's matrix
    /// maps from device units.
    void Paint(cairo_t* context);

private:
    struct Segment {
        PointD From;
        PointD To;
        PointD Direction;
    };

    /// A corner of a shape, its x counted in sections.
    struct Corner {
        double X;
        double Y;
        std::int32_t Section; ///< the first whose middle lies right of the corner
    };

    void AddSegment(const Segment& segment);
    void AddJoin(const Segment& before, const Segment& after);
    /// What a segment may reach, edges included, in the sections of a tile.
    SectionSpans::Span ReachInTile(const Segment& segment, std::size_t tile) const;
    /// A shape whose corners lead along its bottom to the right and along its top to the left; of it, what
    /// lies in the sections.
    void AddConvex(std::span<const PointD> corners, std::int32_t begin, std::int32_t end);

    void AddConvex(std::span<const PointD> corners) {
        AddConvex(corners, 0, static_cast<std::int32_t>(m_spans.Size()));
    }

    void PutEdge(const Corner& left, const Corner& right, std::vector<std::int32_t>& heights) const;
    Corner CornerAt(PointD point) const;

    BoxD m_area;
    double m_radius;
    double m_miterLimit;
    int m_sectionsPerPixel;
    SectionSpans m_spans;
    std::vector<std::int32_t> m_tops; ///< of the shape at hand, by sections
    std::vector<std::int32_t> m_bottoms;
    std::int32_t m_begin = 0; ///< the sections in which edges are put
    std::int32_t m_end = 0;
};

} // namespace penlode
