#pragma once

#include "foundation/ChartText.h"
#include "penlode/Geometry.h"

#include <array>
#include <string>
#include <vector>

/// A chart's texts as far as they can be seen, and what they are called in diagnostics.
namespace millichart::documents {

/// Where a part of a chart has its record, "property/Histogram" say, and how the record's groups begin:
/// "Histogram", "Curve" or "Pie".
struct PartRecord {
    std::string Place;
    std::string Kind;
};

using PartRecords = std::vector<PartRecord>; ///< one a part of the chart

/// A text with the corners of what its letters cover, in mm of the page: the box without what is kept free
/// above and below them.
struct SeenText {
    ChartText Text;
    std::array<penlode::PointF, 4> Corners;
    penlode::RectF Box; ///< the upright rectangle round them

    /// A point of it: (0, 0) is where it begins at the top, (1, 1) where it ends at the bottom.
    penlode::PointF At(float across, float down) const;
};

/// Those that show anything.
std::vector<SeenText> SeenTexts(std::vector<ChartText> texts);

/// What must be free beside a text in one line, in mm, or it runs together with another.
float GapOf(const SeenText& text);

/// Do two cover one another by more than what nobody would notice, or run together in one line?
bool AreOverlapping(const SeenText& a, const SeenText& b);
bool IsOver(const penlode::RectF& box, const SeenText& text);

/// "group name"
const char* NounOf(TextRole role);

/// The place of the group of keys that a text's look stands in.
std::string PlaceOf(const PartRecords& records, const TextOwner& owner);

} // namespace millichart::documents
