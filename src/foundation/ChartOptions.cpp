#include "foundation/ChartOptions.h"

#include "foundation/RecordFields.h"

namespace millichart {
namespace {

constexpr EnumName kNumberNames[] = {{NumberStyle::Classical, "Classical"}, {NumberStyle::Exact, "Exact"}};
constexpr EnumName kThousandsNames[] = {{ThousandsStyle::None, "None"},
                                        {ThousandsStyle::Comma, "Comma"},
                                        {ThousandsStyle::ThinSpace, "ThinSpace"},
                                        {ThousandsStyle::Chinese, "Chinese"}};
constexpr EnumName kBarBaseNames[] = {{BarBase::AxisOrigin, "AxisOrigin"}, {BarBase::Zero, "Zero"}};
constexpr EnumName kRangeNames[] = {{RangeStyle::FromLargest, "FromLargest"},
                                    {RangeStyle::BothEnds, "BothEnds"}};
constexpr EnumName kLabelNames[] = {{LabelFit::AsPlaced, "AsPlaced"}, {LabelFit::Fitted, "Fitted"}};
constexpr EnumName kSliceLabelNames[] = {{SliceLabelFit::AsPlaced, "AsPlaced"},
                                         {SliceLabelFit::Apart, "Apart"}};
constexpr EnumName kLegendNames[] = {{LegendSeat::Classical, "Classical"}, {LegendSeat::OnPlot, "OnPlot"}};
constexpr EnumName kTimeLabelNames[] = {{TimeLabels::Spread, "Spread"}, {TimeLabels::AtTimes, "AtTimes"}};
constexpr EnumName kTimeUnitNames[] = {
    {TimeUnit::Number, "Number"}, {TimeUnit::Days, "Days"}, {TimeUnit::Seconds, "Seconds"}};
constexpr EnumName kAirNames[] = {{ChartAir::None, "None"}, {ChartAir::ThirdOfLine, "ThirdOfLine"}};
constexpr EnumName kContrastNames[] = {{ChartContrast::Classical, "Classical"},
                                       {ChartContrast::Kept, "Kept"}};
constexpr EnumName kPaletteNames[] = {
    {ChartPalette::Record, "Record"}, {ChartPalette::Safe, "Safe"}, {ChartPalette::Print, "Print"}};

} // namespace

template <class Fields> void Describe(Fields& record, ChartOptions& options) {
    const ChartOptions classical;
    record.Field("Numbers", options.Numbers, kNumberNames, classical.Numbers);
    record.Field("Thousands", options.Thousands, kThousandsNames, classical.Thousands);
    record.Field("MaxDecimals", options.MaxDecimals, classical.MaxDecimals);
    record.Field("BarBase", options.BarBase, kBarBaseNames, classical.BarBase);
    record.Field("ValueRange", options.ValueRange, kRangeNames, classical.ValueRange);
    record.Field("Labels", options.Labels, kLabelNames, classical.Labels);
    record.Field("SliceLabels", options.SliceLabels, kSliceLabelNames, classical.SliceLabels);
    record.Field("Legend", options.Legend, kLegendNames, classical.Legend);
    record.Field("TimeLabels", options.TimeLabels, kTimeLabelNames, classical.TimeLabels);
    record.Field("TimeUnit", options.TimeUnit, kTimeUnitNames, classical.TimeUnit);
    record.Field("Air", options.Air, kAirNames, classical.Air);
    record.Field("Contrast", options.Contrast, kContrastNames, classical.Contrast);
    record.Field("Palette", options.Palette, kPaletteNames, classical.Palette);
    record.Record("Title", options.Title);
    record.Record("SecondTitle", options.SecondTitle);
}

ChartOptions ChartOptions::Readable() {
    ChartOptions options;
    options.Numbers = NumberStyle::Exact;
    options.Thousands = ThousandsStyle::Comma;
    options.BarBase = BarBase::Zero;
    options.ValueRange = RangeStyle::BothEnds;
    options.Labels = LabelFit::Fitted;
    options.SliceLabels = SliceLabelFit::Apart;
    options.Legend = LegendSeat::OnPlot;
    options.TimeLabels = TimeLabels::AtTimes;
    options.Air = ChartAir::ThirdOfLine;
    options.Contrast = ChartContrast::Kept;
    options.Palette = ChartPalette::Safe;
    options.Title.ShowCaption = 1;
    options.SecondTitle.ShowCaption = 1;
    return options;
}

void CChartOptionsSerialize::SerializeChartOptions(penlode::ISerialize& stream, ChartOptions& options) {
    SerializeFields(stream, options);
}

void CChartOptionsSerialize::SerializeChartOptions(penlode::CSerializeStream& stream, ChartOptions& options,
                                                   const char* tag) {
    SerializeFields(stream, options, tag);
}

} // namespace millichart
