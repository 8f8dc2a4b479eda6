#include "documents/DocumentDefaults.h"

#include <algorithm>
#include <iterator>

namespace millichart::documents {
namespace {

struct Default {
    std::string_view Kind;  ///< empty: of every one
    std::string_view Place; ///< how the group's place ends
    std::string_view Key;
    const char* Text;
};

constexpr const char* kGrey = "#FFD0D0D0 0.1 solid";

/// The first that fits stands.
constexpr Default kDefaults[] = {
    // Texts are black on nothing.
    {"", "/CaptionTextProperty", "字体", "Arial 4.5"},
    {"histogram", "/ComponentInfoTextProperty", "字体", "Arial 2.8"},
    {"", "TextProperty", "字体", "Arial 3.4"},
    {"", "TextProperty", "BkColor", "#FFFFFFFF"},
    {"", "TextProperty", "DrawEdge", "0"},
    {"", "TextProperty", "DrawBackGround", "0"},
    {"", "/VerCaptionTextProperty", "Angle", "90"},
    // Names stand in a legend, or where there is none, beside what they name.
    {"half-pie-histogram", "/HistogramLegendProp", "ShowLegend", "0"},
    {"", "LegendProp", "ShowLegend", "1"},
    {"", "LegendProp", "ShowEdge", "0"},
    {"", "LegendProp", "ItemDist", "1"},
    {"", "LegendProp", "Font", "Arial 3.4"},
    {"pie", "/PieLabelProp", "ShowNameLabel", "0"},
    {"pie", "/PieLabelProp", "LabelSeparator", ";"},
    {"", "/PieLabelProp", "ShowNameLabel", "1"},
    {"", "/PieLabelProp", "LabelSeparator", " "},
    {"", "/PieLabelProp", "ShowPercentLabel", "1"},
    {"", "/PieLabelProp", "DistBetweenLabelCenterAndPieCenter", "1.5"},
    {"half-pie-histogram", "/HistogramPlotProp", "ConponentInfoSeparator", ": "},
    {"histogram", "/HistogramPlotProp", "ShowComponentName", "0"},
    {"histogram", "/HistogramPlotProp", "ShowComponentValue", "0"},
    // Pies are flat, of one size whatever their total is, and their slices are told apart by white lines.
    {"", "/PieBasicProp", "PieStyle", "2D"},
    {"", "PieBasicProp", "FixedSize", "1"},
    {"", "PieBasicProp", "FixedWidth", "60"},
    {"", "PieBasicProp", "PenSepLine", "#FFFFFFFF 0.3 solid"},
    {"", "/LowerHalf/HalfPieBasicProp", "WhichPart", "Lower"},
    {"half-pie-histogram", "/HalfPieBasicProp", "WhichPart", "Lower"},
    // Axes are there, with ticks inside, and light grid lines at the values that are written.
    {"", "VerAxisProp", "ShowVerAxis", "1"},
    {"", "VerAxisProp", "MajorScaleStyle", "inner"},
    {"", "VerAxisProp", "MinorScaleStyle", "none"},
    {"", "VerAxisProp", "HorMajorGridPen", kGrey},
    {"", "VerAxisProp", "ShowHorMinorGrid", "0"},
    {"", "VerAxisProp", "HorMinorGridPen", kGrey},
    {"", "HorAxisProp", "ScaleStyle", "inner"},
    {"", "HorAxisProp", "ShowVerGrid", "0"},
    {"", "HorAxisProp", "VerGridPen", kGrey},
    {"half-pie-histogram", "/HistogramPlotProp", "ShowBackground", "0"},
    {"half-pie-histogram", "/HistogramPlotProp", "ShowEdge", "0"},
    {"curve", "/CurvePlotProp", "ShowEdge", "0"}, // it would stand over the axes
    {"", "PlotProp", "EdgePen", kGrey},
    {"half-pie-histogram", "/HistogramPlotProp", "PlotWidth", "60"},
    {"half-pie-histogram", "/HistogramPlotProp", "PlotHeight", "30"},
    {"", "PlotProp", "PlotWidth", "110"},
    {"", "PlotProp", "PlotHeight", "60"},
};

} // namespace

const char* DocumentDefault(std::string_view kind, std::string_view place, std::string_view key) {
    const auto* const found =
        std::find_if(std::begin(kDefaults), std::end(kDefaults), [&](const Default& row) {
            return row.Key == key && place.ends_with(row.Place) && (row.Kind.empty() || row.Kind == kind);
        });
    return found == std::end(kDefaults) ? nullptr : found->Text;
}

} // namespace millichart::documents
