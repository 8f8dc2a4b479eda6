#include "documents/doubts/RecordDoubts.h"

#include "documents/Fields.h"

#include <algorithm>
#include <set>
#include <utility>

namespace millichart::documents {
namespace {

/// In mm. Who means points or pixels comes by it; a chart for a wall is composed at a smaller size.
constexpr float kHuge = 500.0F;

/// Nothing of it is hidden by the chart's making.
bool HasWords(const std::string& text) {
    return text.find_first_not_of(" \t\r\n") != std::string::npos;
}

void AddUnshown(const std::string& text, const std::string& group, const char* key, bool isShown,
                const char* flag, Diagnostics& diagnostics) {
    if (!isShown && HasWords(text)) {
        diagnostics.push_back(
            penlode::Warning(group + "/" + key, Quoted(text) + " is not shown, as " + flag +
                                                    " is 0; set it to 1, or leave out the text"));
    }
}

template <class Prop>
void AddUnshownTexts(const Prop& prop, const PartRecord& record, Diagnostics& diagnostics) {
    const auto& ver = prop.VerAxis;
    const auto& hor = prop.HorAxis;
    const std::string axes = record.Place + "/" + record.Kind;
    AddUnshown(prop.Caption.Caption, record.Place + "/CaptionProp", "Caption", prop.Caption.ShowCaption != 0,
               "ShowCaption", diagnostics);
    AddUnshown(ver.VerCaption, axes + "VerAxisProp", "VerCaption",
               ver.ShowVerAxis != 0 && ver.ShowVerCaption != 0,
               ver.ShowVerAxis == 0 ? "ShowVerAxis" : "ShowVerCaption", diagnostics);
    AddUnshown(hor.HorCaption, axes + "HorAxisProp", "HorCaption",
               hor.ShowHorAxis != 0 && hor.ShowHorCaption != 0,
               hor.ShowHorAxis == 0 ? "ShowHorAxis" : "ShowHorCaption", diagnostics);
}

void AddNameless(const LegendProp& legend, const std::vector<std::string>& names, const std::string& place,
                 const char* key, Diagnostics& diagnostics) {
    if (legend.ShowLegend != 0 && std::none_of(names.begin(), names.end(), HasWords)) {
        diagnostics.push_back(penlode::Warning(place + "/ShowLegend",
                                               std::string("the legend has no names to show; give ") + key +
                                                   ", or names with the data, or set ShowLegend to 0"));
    }
}

void AddHuge(const std::string& place, float size, Diagnostics& diagnostics) {
    if (size >= kHuge) {
        diagnostics.push_back(penlode::Warning(place, NumberText(size) + " mm", "millimetres, below 500"));
    }
}

void AddHuge(const std::string& place, const penlode::Owned<penlode::Pen>& pen, Diagnostics& diagnostics) {
    if (pen.Get() != nullptr) {
        AddHuge(place, pen.Get()->GetWidth(), diagnostics);
    }
}

template <class Plot>
void AddPlotSizes(const Plot& plot, const std::string& place, Diagnostics& diagnostics) {
    AddHuge(place + "/PlotWidth", plot.PlotWidth, diagnostics);
    AddHuge(place + "/PlotHeight", plot.PlotHeight, diagnostics);
    AddHuge(place + "/EdgePen", plot.EdgePen, diagnostics);
}

template <class Prop> void AddAxisPens(const Prop& prop, const std::string& kind, Diagnostics& diagnostics) {
    AddHuge(kind + "VerAxisProp/VerAxisPen", prop.VerAxis.VerAxisPen, diagnostics);
    AddHuge(kind + "VerAxisProp/HorMajorGridPen", prop.VerAxis.HorMajorGridPen, diagnostics);
    AddHuge(kind + "VerAxisProp/HorMinorGridPen", prop.VerAxis.HorMinorGridPen, diagnostics);
    AddHuge(kind + "HorAxisProp/HorAxisPen", prop.HorAxis.HorAxisPen, diagnostics);
    AddHuge(kind + "HorAxisProp/VerGridPen", prop.HorAxis.VerGridPen, diagnostics);
    AddHuge(kind + "LegendProp/PenEdge", prop.Legend.PenEdge, diagnostics);
}

/// Lines and markers; a marker of no width is drawn nowhere, a line of none is the thinnest.
void AddCurveSizes(const CurvePlotProp& plot, const std::string& place, Diagnostics& diagnostics) {
    for (std::size_t i = 0; i < plot.CurveWidth.size(); ++i) {
        AddHuge(place + "/CurveWidth/" + std::to_string(i), plot.CurveWidth[i], diagnostics);
    }
    for (std::size_t i = 0; i < plot.CurveDotWidth.size(); ++i) {
        const std::string marker = place + "/CurveDotWidth/" + std::to_string(i);
        const bool isMeant = i < plot.CurveDotStyle.size() && plot.CurveDotStyle[i] != CurveDotStyle::None;
        AddHuge(marker, plot.CurveDotWidth[i], diagnostics);
        if (isMeant && !(plot.CurveDotWidth[i] > 0.0F)) {
            diagnostics.push_back(penlode::Warning(
                marker, NumberText(plot.CurveDotWidth[i]) + " mm, at which no marker is seen",
                "millimetres, above 0"));
        }
    }
}

template <class Basic>
void AddPieSizes(const Basic& basic, const std::string& place, Diagnostics& diagnostics) {
    if (basic.FixedSize != 0) {
        AddHuge(place + "/FixedWidth", basic.FixedWidth, diagnostics);
    }
    AddHuge(place + "/PenSepLine", basic.PenSepLine, diagnostics);
}

} // namespace

void AddBarRecordDoubts(const HistogramProp& prop, const std::string& place, Diagnostics& diagnostics) {
    const std::string kind = place + "/Histogram";
    AddNameless(prop.Legend, prop.Plot.ComponentName, kind + "LegendProp", "ComponentName", diagnostics);
    AddPlotSizes(prop.Plot, kind + "PlotProp", diagnostics);
    AddAxisPens(prop, kind, diagnostics);
}

void AddRecordDoubts(const HistogramProp& prop, const std::string& place, Diagnostics& diagnostics) {
    AddUnshownTexts(prop, {place, "Histogram"}, diagnostics);
    AddBarRecordDoubts(prop, place, diagnostics);
}

void AddRecordDoubts(const CurveProp& prop, const std::string& place, Diagnostics& diagnostics) {
    const std::string kind = place + "/Curve";
    AddUnshownTexts(prop, {place, "Curve"}, diagnostics);
    AddNameless(prop.Legend, prop.Plot.CurveName, kind + "LegendProp", "CurveName", diagnostics);
    AddPlotSizes(prop.Plot, kind + "PlotProp", diagnostics);
    AddAxisPens(prop, kind, diagnostics);
    AddCurveSizes(prop.Plot, kind + "PlotProp", diagnostics);
}

void AddRecordDoubts(const PieProp& prop, const std::string& place, Diagnostics& diagnostics) {
    AddNameless(prop.Legend, prop.Basic.ComponentName, place + "/PieLegendProp", "ComponentName",
                diagnostics);
    AddPieSizes(prop.Basic, place + "/PieBasicProp", diagnostics);
    AddHuge(place + "/PieLegendProp/PenEdge", prop.Legend.PenEdge, diagnostics);
}

void AddRecordDoubts(const HalfPieProp& prop, const std::string& place, Diagnostics& diagnostics) {
    AddPieSizes(prop.Basic, place + "/HalfPieBasicProp", diagnostics);
}

void AddFontDoubts(const std::vector<ChartText>& texts, const PartRecords& records,
                   Diagnostics& diagnostics) {
    std::set<std::pair<std::size_t, TextRole>> told;
    for (const ChartText& text : texts) {
        const float size = text.Font == nullptr || text.Text.empty() ? 1.0F : text.Font->Size;
        if ((size > 0.0F && size < kHuge) || !told.insert({text.Owner.Part, text.Owner.Role}).second) {
            continue;
        }
        diagnostics.push_back(
            penlode::Warning(PlaceOf(records, text.Owner),
                             "a font of " + NumberText(size) + " mm for each " + NounOf(text.Owner.Role),
                             "millimetres, above 0 and below 500"));
    }
}

} // namespace millichart::documents
