#pragma once

#include "documents/ChartDocument.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace host {

/// What a user may move in a chart: a label or the legend of the pie family. Bar and line charts have none.
struct MovablePart {
    enum class Kind { Label, Legend };

    Kind What = Kind::Label;
    std::size_t Index = 0; ///< in the list that the chart gives of its kind
    penlode::RectF Place;  ///< mm
    penlode::PointF Moved; ///< from where the chart itself would put it, mm

    friend bool operator==(const MovablePart&, const MovablePart&) = default;
};

/// In the order in which they are drawn; those that show nothing are left out.
std::vector<MovablePart> MovablePartsOf(const millichart::LaidOutChart& chart);

/// The one at a point, or hardly beside it; of several, the one that is drawn last.
std::optional<std::size_t> PartAt(const std::vector<MovablePart>& parts, penlode::PointF point);

/// Moves a part of `chart` in the document that it was laid out from; shows in the document's next layout.
void MovePart(millichart::ChartDocument& document, millichart::LaidOutChart chart, const MovablePart& part,
              penlode::PointF by);

} // namespace host
