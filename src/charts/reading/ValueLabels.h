#pragma once

#include "foundation/Export.h"
#include "penlode/Geometry.h"

#include <cstddef>
#include <vector>

namespace millichart {

/// A bar and the label of its value, in mm of the page.
struct ValueToPlace {
    penlode::RectF Front;   ///< its height not negative
    penlode::SizeF Label;   ///< (0, 0) for none
    double Value = 0.0;     ///< labels of greater values, whatever their sign, come first
    bool Hangs = false;     ///< the bar is below what it stands on
    bool IsBeside = false;  ///< the label stands at the bar's right, not at its end
    bool IsHatched = false; ///< nothing can be read on the front
};

/// Where a value's label stands.
struct PlacedValue {
    bool IsShown = false;
    bool IsInside = false; ///< on the bar's front
    penlode::PointF Center;
};

/// Each label stands at its bar's end, where that is in `room`, touches no other bar and is half a blank off
/// the labels of greater values: in the middle, or else ending or beginning where the bar does. If it cannot,
/// it stands inside the bar, if that is large enough; else it is left out. Labels beside bars rather stand
/// inside. `depth` leads from the fronts to the backs.
///
/// Takes n log n steps for n bars whose labels are shown.
MILLICHART_API std::vector<PlacedValue> PlaceValues(const std::vector<ValueToPlace>& values,
                                                    const penlode::RectF& room, penlode::PointF depth);

} // namespace millichart
