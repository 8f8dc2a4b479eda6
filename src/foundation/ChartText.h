#pragma once

#include "foundation/Export.h"
#include "foundation/TextProperty.h"
#include "penlode/Geometry.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace millichart {

/// What kind of thing a text names or measures.
enum class TextRole {
    SliceLabel,
    VerAxisLabel,
    VerCaption,
    HorAxisLabel,
    GroupName,
    HorCaption,
    BarLabel,
    Caption,
    LegendName
};

/// What a text belongs to.
struct TextOwner {
    TextRole Role = TextRole::Caption;
    std::size_t Index = 0;     ///< of its slice, tick, label, group or name; 0 for a caption
    std::size_t Component = 0; ///< of a bar label: the bar of group `Index`
    std::size_t Part = 0;      ///< of a composite chart: 0 for what is drawn first, 1 for the other

    friend bool operator==(const TextOwner&, const TextOwner&) = default;
};

/// A text as a chart draws it now, in mm of the page. Its pointers lead into the chart and are good until
/// that changes or moves.
struct ChartText {
    TextOwner Owner;
    std::wstring Text;                      ///< may be empty
    const penlode::Font* Font = nullptr;    ///< null: nothing can be seen
    const TextProperty* Property = nullptr; ///< what box it has; null for a legend's name, which has none
    /// The text stands in the middle of `Layout`, whose coordinates begin at `Origin` and are turned about it
    /// by `Angle`. Moving the origin moves the text.
    penlode::PointF Origin;
    penlode::RectF Layout;
    penlode::SizeF Size;    ///< of the text before it is turned; (0, 0) without a font
    std::int32_t Angle = 0; ///< degrees, counter-clockwise on screen
    penlode::Color Color = penlode::kBlack;

    /// The upright rectangle round the text where it stands.
    MILLICHART_API penlode::RectF Box() const;
};

/// Gets a chart's texts one at a time, in the order in which they are drawn.
using TextVisitor = std::function<void(ChartText&&)>;

/// A visitor that says of each text in which part of a composite chart it stands and hands it on to `visit`,
/// which must outlive it.
MILLICHART_API TextVisitor InPart(std::size_t part, const TextVisitor& visit);

/// All texts of a chart, in the order in which they are drawn.
template <class Chart> std::vector<ChartText> TextsOf(const Chart& chart) {
    std::vector<ChartText> texts;
    chart.VisitTexts([&texts](ChartText&& text) { texts.push_back(std::move(text)); });
    return texts;
}

/// `extent` united with a text's box, if that reaches more than 1 mm out of `whole`. A bar's label that is 10
/// mm or more away from it does not count, as values far out of an axis's range have labels far away; nor
/// does a text that cannot be seen.
MILLICHART_API penlode::RectF WithText(const penlode::RectF& extent, const ChartText& text,
                                       const penlode::RectF& whole);

/// A chart's rectangle with the texts that reach out of it.
template <class Chart> penlode::RectF InkExtentOf(const Chart& chart) {
    const penlode::RectF whole = chart.GetPositionAll();
    penlode::RectF extent = whole;
    chart.VisitTexts([&](ChartText&& text) { extent = WithText(extent, text, whole); });
    return extent;
}

} // namespace millichart
