#pragma once

#include "penlode/Geometry.h"

#include <vector>

namespace millichart {

/// The boxes round a plot. Each finds its place as near to the plot as those before it let it, and is then
/// added, so that none lies over another. Finding takes as many steps as there are boxes.
class Surroundings {
public:
    /// One without a finite place is not there.
    void Add(const penlode::RectF& box);
    /// Their union, so that nothing finds a place between them.
    void AddAsOne(const std::vector<penlode::RectF>& boxes);

    /// Above all boxes that it would be over or under, `gap` off them.
    penlode::RectF PlaceAbove(penlode::SizeF size, float centerX, float gap) const;
    /// Below all boxes, wherever they are: what names several does not stand between two.
    penlode::RectF PlaceBelow(penlode::SizeF size, float centerX, float gap) const;
    /// At the left of all boxes that it would be beside.
    penlode::RectF PlaceLeft(penlode::SizeF size, float centerY, float gap) const;

    /// The union of all boxes.
    penlode::RectF All() const;

private:
    std::vector<penlode::RectF> m_boxes;
};

} // namespace millichart
