#pragma once

#include "foundation/ChartText.h"
#include "foundation/Export.h"
#include "foundation/Palette.h"
#include "penlode/Color.h"
#include "penlode/Equality.h"
#include "penlode/Font.h"
#include "penlode/Geometry.h"
#include "penlode/IGraphicsEngine.h"
#include "penlode/Owned.h"
#include "penlode/Pen.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace millichart {

/// Where a legend stands: the side of the plot, then where along it. Any other number places nothing.
///
///                 TopLeft   TopCenter   TopRight
///     LeftTop     +----------------------------+  RightTop
///     LeftCenter  |            plot            |  RightCenter
///     LeftBottom  +----------------------------+  RightBottom
///               BottomLeft BottomCenter BottomRight
namespace LegendPosition {
inline constexpr std::int32_t LeftTop = 0;
inline constexpr std::int32_t LeftCenter = 1;
inline constexpr std::int32_t LeftBottom = 2;
inline constexpr std::int32_t RightTop = 3;
inline constexpr std::int32_t RightCenter = 4;
inline constexpr std::int32_t RightBottom = 5;
inline constexpr std::int32_t TopLeft = 6;
inline constexpr std::int32_t TopCenter = 7;
inline constexpr std::int32_t TopRight = 8;
inline constexpr std::int32_t BottomLeft = 9;
inline constexpr std::int32_t BottomCenter = 10;
inline constexpr std::int32_t BottomRight = 11;
} // namespace LegendPosition

/// The legend that every chart shows: a column of items beside the plot or a row above or below it, each a
/// colour square and a name.
struct LegendProp {
    std::int32_t ShowLegend = 0; ///< non-zero: laid out and drawn
    std::int32_t LegendPos = LegendPosition::RightCenter;
    std::int32_t ShowEdge = 1; ///< non-zero: the box is framed with PenEdge
    penlode::Owned<penlode::Pen> PenEdge = penlode::Pen(penlode::kBlack, 0.1F);
    std::int32_t ShowBackground = 0; ///< non-zero: the box is filled
    penlode::Color BackgroundColor = penlode::kWhite;
    float ItemDist = 0.0F; ///< mm between neighbouring items
    penlode::Owned<penlode::Font> Font = penlode::Font{};

    friend bool operator==(const LegendProp& a, const LegendProp& b) {
        return penlode::HaveEqualMembers<8>(a, b);
    }
};

/// What a legend that sits on its plot has beside its items, in mm of the page.
struct LegendFrame {
    penlode::RectF Box;      ///< round everything, the room at its edges included
    penlode::RectF Rest;     ///< where the count of the names left out stands; empty without
    std::string RestText;    ///< "… 12"; narrow, empty without
    std::size_t LeftOut = 0; ///< names at the list's end that the legend does not show
    float NameGap = 0.0F;    ///< between what stands before a name and the name

    bool IsSeated() const { return NameGap > 0.0F; }
};

/// A legend that sits on its plot.
struct SeatedLegend : LegendFrame {
    std::vector<penlode::RectF> Items; ///< one for each name that is shown, from the first
};

/// A colour square is as wide as its item is high.
inline constexpr float kLegendSquareFactor = 1.0F;

/// Draws what stands before the name of item `index`.
using LegendSwatch = std::function<void(std::size_t index, const penlode::RectF& item)>;

/// Places and draws the legend. Names are narrow (GBK; CStringUtil::Utf8ToAnsi).
class MILLICHART_API CLegendOperation {
public:
    /// One rectangle for each name, 2 mm off the plot. An item is as high as its text and as wide as its text
    /// and a square of `swatchFactor` times that height. A position that is not named gives empty rectangles.
    static std::vector<penlode::RectF> PlaceItems(const LegendProp& prop,
                                                  const std::vector<std::string>& names,
                                                  const penlode::RectF& plot, float swatchFactor);

    /// Draws the box, squares and names. Nothing when the legend is off or there are no rectangles; a missing
    /// colour leaves its square unfilled, a missing name is not written.
    static void Draw(penlode::IGraphicsEngine* engine, const LegendProp& prop,
                     const std::vector<std::string>& names, const std::vector<penlode::Color>& colors,
                     const std::vector<penlode::RectF>& items);

    /// The same with squares that may be hatched. A legend that sits on its plot has its frame's box, names
    /// off the squares and, as the last name, the count of those that are left out.
    static void Draw(penlode::IGraphicsEngine& engine, const LegendProp& prop,
                     const std::vector<std::string>& names, const std::vector<Fill>& fills,
                     const std::vector<penlode::RectF>& items, const LegendFrame& frame);

    /// Draws a legend whose items begin with swatches of another kind, `swatchFactor` times as wide as high.
    static void Draw(penlode::IGraphicsEngine& engine, const LegendProp& prop,
                     const std::vector<std::string>& names, const std::vector<penlode::RectF>& items,
                     float swatchFactor, const LegendSwatch& drawSwatch, const LegendFrame& frame = {});

    /// The names that a legend shows, each in the middle of what its swatch leaves of its item. The index of
    /// the count of those left out is that of the first of them.
    static void VisitNames(const TextVisitor& visit, const LegendProp& prop,
                           const std::vector<std::string>& names, const std::vector<penlode::RectF>& items,
                           float swatchFactor, const LegendFrame& frame = {});
};

/// A legend's rectangle: its frame's if it sits on its plot, else that round its items.
MILLICHART_API penlode::RectF LegendBoxOf(const std::vector<penlode::RectF>& items, const LegendFrame& frame);

/// The union of all rectangles; (0, 0, 0, 0) for none.
MILLICHART_API penlode::RectF UnionOf(const std::vector<penlode::RectF>& rects);

} // namespace millichart
