#pragma once

#include "charts/parts/PartGeometry.h"
#include "foundation/ChartPart.h"
#include "foundation/ChartText.h"

#include <cstddef>
#include <span>
#include <vector>

/// Where the parts of charts are, as figures that a point can be held against.
namespace millichart {

/// What a part covers, in mm of the page.
class PartShape {
public:
    virtual ~PartShape() = default;

    /// The upright rectangle round it.
    virtual penlode::RectF Box() const = 0;

    /// How far a point is from it; 0 inside. What is farther than `reach` may be as far as it likes.
    virtual double Distance(penlode::PointD point, float reach) const = 0;

    /// What is hit by a point near it.
    virtual PlacedPart At(const ChartPart& part, penlode::PointD) const { return {part, Box()}; }
};

/// A rectangle, and what it leaves behind when it is moved by `depth`: its top, and its right side.
///
///       _____
///      /____/|      the top is joined to Y even where a negative height grows up from there
///      |    ||
///      |____|/
///
class BoxShape : public PartShape {
public:
    explicit BoxShape(const penlode::RectF& front, penlode::PointF depth = {})
        : m_front(front), m_depth(depth) {}

    penlode::RectF Box() const override;
    double Distance(penlode::PointD point, float reach) const override;

private:
    penlode::RectF m_front;
    penlode::PointF m_depth;
};

/// A text's box, turned as it is. The text must outlive it.
class TextShape : public PartShape {
public:
    explicit TextShape(const ChartText& text) : m_text(text) {}

    penlode::RectF Box() const override { return m_text.Box(); }

    double Distance(penlode::PointD point, float reach) const override;

private:
    const ChartText& m_text;
};

/// One line.
struct Segment {
    penlode::PointF From;
    penlode::PointF To;
};

/// Equal lines, one at every `Step`th place: `Line` moved there.
struct SegmentRow {
    std::span<const penlode::PointF> Places;
    Segment Line;
    std::size_t Step = 1;
};

/// Lines in one pen: `Lines`, and the rows'.
class LinesShape : public PartShape {
public:
    void Add(const Segment& line) { m_lines.push_back(line); }

    void Add(const SegmentRow& row) { m_rows.push_back(row); }

    penlode::RectF Box() const override;
    double Distance(penlode::PointD point, float reach) const override;

private:
    template <class Visit> void VisitLines(const Visit& visit) const;

    std::vector<Segment> m_lines;
    std::vector<SegmentRow> m_rows;
};

} // namespace millichart
