#pragma once

#include "documents/ChartDocument.h"
#include "foundation/ChartPart.h"

#include <cstdint>
#include <optional>
#include <string>

/// What a person does to a part of a chart with the mouse, as changes of its document. The chart is the
/// document's own layout.
namespace designer {

/// How a part can be moved.
enum class Mobility {
    None,
    Free,  ///< by any distance: labels and legend of the pie family
    Docked ///< to one of the legend's places: the legend of bars and lines
};

Mobility MobilityOf(const millichart::LaidOutChart& chart, const millichart::ChartPart& part);

/// A label or legend by mm; a docked legend to the place that is nearest to where it would then stand. A part
/// that cannot be moved stays. The legend's samples and names stand for the legend.
void MovePart(millichart::ChartDocument& document, const millichart::LaidOutChart& chart,
              const millichart::ChartPart& part, penlode::PointF by);

/// To which of the legend's places such a move would bring it; nothing for what is not docked. Costs no
/// layout.
std::optional<std::int32_t> DockedPlace(const millichart::LaidOutChart& chart,
                                        const millichart::ChartPart& part, penlode::PointF by);

/// Where the part would stand after such a move, in mm.
std::optional<penlode::RectF> MovedPlace(const millichart::ChartDocument& document,
                                         const millichart::LaidOutChart& chart,
                                         const millichart::ChartPart& part, penlode::PointF by);

/// Back to where the chart itself puts it.
void ResetPart(millichart::ChartDocument& document, const millichart::LaidOutChart& chart,
               const millichart::ChartPart& part);

/// The text that a user may edit in place, UTF-8, without prefix and postfix; nothing where it is made of
/// numbers. A slice's label edits the slice's name.
std::optional<std::string> EditableText(const millichart::ChartDocument& document,
                                        const millichart::LaidOutChart& chart,
                                        const millichart::ChartPart& part);
/// Names that stand in the data's table change there too: see Editor.
void SetText(millichart::ChartDocument& document, const millichart::LaidOutChart& chart,
             const millichart::ChartPart& part, const std::string& utf8);

/// The colour of a slice, component or curve: the part itself, its label, sample or name.
std::optional<penlode::Color> ColorOf(const millichart::ChartDocument& document,
                                      const millichart::LaidOutChart& chart,
                                      const millichart::ChartPart& part);
/// Colours of a palette become those of the record first, so that the others stay.
void SetColor(millichart::ChartDocument& document, const millichart::LaidOutChart& chart,
              const millichart::ChartPart& part, penlode::Color color);

/// What is under the mouse, for a tip and for who cannot see it. UTF-8; empty where there is nothing to say.
struct PartFacts {
    std::string Name;  ///< "一月 · 出口", a caption's text
    std::string Value; ///< "12.5", with the data's own decimals
    std::string Share; ///< "25.0%" of a slice
};

PartFacts FactsOf(const millichart::ChartDocument& document, const millichart::LaidOutChart& chart,
                  const millichart::ChartPart& part);

} // namespace designer
