#pragma once

#include "foundation/ChartPart.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace designer {

/// What a node without a part of its own gathers.
enum class PartGroup { Chart, Data, BarGroup, Texts, Axes };

/// A chart's parts as a tree, for those who go through it by its structure:
///
///     chart -> data -> slices | groups of bars -> bars | curves
///           -> texts, axes
///           -> legend -> entries
struct PartNode {
    PartGroup Group = PartGroup::Chart;        ///< of a node without a part
    std::optional<millichart::ChartPart> Part; ///< for a group of bars: one of its bars
    penlode::RectF Box;                        ///< with what it gathers, in mm
    std::size_t Parent = 0;
    std::vector<std::size_t> Children;

    bool IsPart() const { return Part && Group != PartGroup::BarGroup; }
};

/// `parts` are in reading order. The first node is the chart, and parents stand before their children. Points
/// of curves are not in it.
std::vector<PartNode> TreeOf(const std::vector<millichart::PlacedPart>& parts);

/// Is it the same tree, whatever stands where?
bool AreAlike(const std::vector<PartNode>& a, const std::vector<PartNode>& b);

} // namespace designer
