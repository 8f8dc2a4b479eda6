#pragma once

#include "foundation/CaptionProp.h"
#include "foundation/Export.h"
#include "penlode/streams/ISerialize.h"
#include "penlode/streams/SerializeStream.h"

#include <cstdint>

namespace millichart {

/// How numbers are written at axes, bars and slices.
namespace NumberStyle {
inline constexpr std::int32_t Classical = 0; ///< whole numbers and two decimals by fixed rules
inline constexpr std::int32_t Exact = 1;     ///< with the decimals that the step, or the value, needs
} // namespace NumberStyle

/// What stands between the thousands of an exact number.
namespace ThousandsStyle {
inline constexpr std::int32_t None = 0;
inline constexpr std::int32_t Comma = 1;     ///< 12,500
inline constexpr std::int32_t ThinSpace = 2; ///< 12 500
inline constexpr std::int32_t Chinese = 3;   ///< 1.25万, 3.1亿
} // namespace ThousandsStyle

/// Where bars stand.
namespace BarBase {
inline constexpr std::int32_t AxisOrigin =
    0;                                  ///< on the plot's lower edge; a negative value is a negative height
inline constexpr std::int32_t Zero = 1; ///< on the value 0, or on the axis's end that is nearest to it
} // namespace BarBase

/// How InitializeValueRange finds a range.
namespace RangeStyle {
inline constexpr std::int32_t FromLargest = 0; ///< from 0, or two decades, up to a round number
inline constexpr std::int32_t BothEnds = 1;    ///< five to nine round steps that the values fill
} // namespace RangeStyle

/// What becomes of names, labels and values that have too little room.
namespace LabelFit {
inline constexpr std::int32_t AsPlaced = 0; ///< they stand where they stand, over each other too
inline constexpr std::int32_t Fitted =
    1; ///< names are wrapped, turned or thinned; values set inside or dropped
} // namespace LabelFit

/// Where the labels of slices stand.
namespace SliceLabelFit {
inline constexpr std::int32_t AsPlaced = 0; ///< each at its slice
/// Moved along the rim until none touches another, with lead lines. Where a side has more than one and a
/// half times the pie's height and four labels hold, those of the smallest slices are left out.
inline constexpr std::int32_t Apart = 1;
} // namespace SliceLabelFit

/// How a legend stands.
namespace LegendSeat {
inline constexpr std::int32_t Classical = 0; ///< one row or column, along the whole chart
inline constexpr std::int32_t OnPlot = 1;    ///< along the plot, in as many rows or columns as fit
} // namespace LegendSeat

/// Where the labels below a line chart stand.
namespace TimeLabels {
inline constexpr std::int32_t Spread = 0;  ///< evenly, whatever the times are
inline constexpr std::int32_t AtTimes = 1; ///< at the times that the host gave, if it gave any
} // namespace TimeLabels

/// What the times of a line chart are. Dates have labels of their own, in the place of the host's.
namespace TimeUnit {
inline constexpr std::int32_t Number = 0;
inline constexpr std::int32_t Days = 1;    ///< since 1 January 1970
inline constexpr std::int32_t Seconds = 2; ///< since the beginning of 1 January 1970
} // namespace TimeUnit

/// What lies between the parts of a chart.
namespace ChartAir {
inline constexpr std::int32_t None = 0;
inline constexpr std::int32_t ThirdOfLine = 1; ///< also half a marker at both ends of a plot
} // namespace ChartAir

/// How light and dark meet.
namespace ChartContrast {
inline constexpr std::int32_t Classical = 0;
inline constexpr std::int32_t Kept =
    1; ///< values that can be read on any plot, walls of their face's hue, light grids behind all
} // namespace ChartContrast

/// Where the colours of slices, bars and lines come from.
namespace ChartPalette {
inline constexpr std::int32_t Record = 0; ///< the record
inline constexpr std::int32_t Safe = 1;   ///< hues that people who confuse red and green tell apart
inline constexpr std::int32_t Print = 2;  ///< greys and hatches, for a black-and-white printer
} // namespace ChartPalette

/// What a chart does beyond what its record says, so that it reads well. As constructed it does nothing:
/// the chart draws to the last decimal what it has always drawn. Any number without a name counts as 0.
///
///     chart.SetOptions(ChartOptions::Readable());
struct ChartOptions {
    std::int32_t Numbers = NumberStyle::Classical;
    std::int32_t Thousands = ThousandsStyle::None; ///< of exact numbers
    std::int32_t MaxDecimals = 3;                  ///< of exact values at bars and slices; 0 to 15
    std::int32_t BarBase = millichart::BarBase::AxisOrigin;
    std::int32_t ValueRange = RangeStyle::FromLargest; ///< speaks at the next InitializeValueRange
    std::int32_t Labels = LabelFit::AsPlaced;
    std::int32_t SliceLabels = SliceLabelFit::AsPlaced;
    std::int32_t Legend = LegendSeat::Classical;
    std::int32_t TimeLabels = millichart::TimeLabels::Spread;
    std::int32_t TimeUnit = millichart::TimeUnit::Number;
    std::int32_t Air = ChartAir::None;
    std::int32_t Contrast = ChartContrast::Classical;
    std::int32_t Palette = ChartPalette::Record;
    CaptionProp Title;       ///< above a pie or an upper half, below a lower one; other charts have captions
    CaptionProp SecondTitle; ///< of the second of two half pies

    /// Everything that makes a chart read well: exact numbers with commas, the safe palette, titles that are
    /// shown where they have a text. Times stay numbers, since only the host knows whether they are dates.
    MILLICHART_API static ChartOptions Readable();

    friend bool operator==(const ChartOptions&, const ChartOptions&) = default;
};

/// Saves and loads the options of a chart. What a keyed load does not find is as constructed, but for the
/// looks of the titles, which load as every text's look does.
class MILLICHART_API CChartOptionsSerialize {
public:
    static void SerializeChartOptions(penlode::ISerialize& stream, ChartOptions& options);
    /// In a group named `tag`.
    static void SerializeChartOptions(penlode::CSerializeStream& stream, ChartOptions& options,
                                      const char* tag);
};

} // namespace millichart
