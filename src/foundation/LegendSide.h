#pragma once

#include "foundation/Legend.h"

/// What a LegendProp's position means. Internal to the library.
namespace millichart {

/// Between a legend and what it stands beside, in mm.
inline constexpr float kLegendDistance = 2.0F;

enum class LegendSide { Left, Right, Top, Bottom };

inline constexpr std::int32_t kPositionsASide = 3;

constexpr bool IsNamedLegendPosition(std::int32_t position) {
    return position >= LegendPosition::LeftTop && position <= LegendPosition::BottomRight;
}

/// Of a named position.
constexpr LegendSide SideOf(std::int32_t position) {
    return static_cast<LegendSide>(position / kPositionsASide);
}

/// Whether a legend at a named position is a row, or rows, above or below.
constexpr bool IsInRows(std::int32_t position) {
    return SideOf(position) == LegendSide::Top || SideOf(position) == LegendSide::Bottom;
}

/// Where `length` begins along a side that begins at `start` and is `available` long, as a named position
/// says: at its start, in the middle or at its end.
constexpr float AlignedAlong(std::int32_t position, float start, float available, float length) {
    switch (position % kPositionsASide) {
    case 0:
        return start;
    case 1:
        return start + (available - length) * 0.5F;
    default:
        return start + available - length;
    }
}

} // namespace millichart
