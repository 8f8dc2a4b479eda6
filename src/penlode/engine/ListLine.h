#pragma once

#include "penlode/DataLine.h"

#include <algorithm>

namespace penlode {

/// A line of points that stand in a list, which must outlive it.
class ListLine final : public DataLine {
public:
    explicit ListLine(std::span<const PointF> points) : m_points(points) {}

    std::size_t Size() const override { return m_points.size(); }

    void Place(std::size_t first, std::span<PointF> points) const override {
        std::copy_n(m_points.begin() + static_cast<std::ptrdiff_t>(first), points.size(), points.begin());
    }

    bool Bound(std::size_t first, std::size_t count, PointBounds& bounds) const override {
        return BoundsOf(m_points.subspan(first, count), bounds);
    }

private:
    std::span<const PointF> m_points;
};

} // namespace penlode
