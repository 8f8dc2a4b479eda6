#include "charts/histogram/HistogramPropSerialize.h"
#include "charts/pie/HalfPiePropSerialize.h"
#include "documents/Bars.h"
#include "documents/ChartLayouts.h"
#include "documents/Fields.h"
#include "documents/Slices.h"
#include "documents/ValueRange.h"

namespace millichart::documents {
namespace {

constexpr const char* kPlot = "property/HistogramPlotProp";
constexpr const char* kPlotOfTwo = "property/Histogram/HistogramPlotProp";
constexpr const char* kGroupsCsv = "groupsCsv";
constexpr const char* kLabelOffsets = "labelOffsets";

const SlicesPlace kSlices{"property/HalfPie/HalfPieBasicProp", "data"};

/// One table cannot replace both the slices and the bars.
DataSource WithoutTable(const DataSource& source) {
    if (source.Table != nullptr) {
        source.Diagnostics->push_back(
            penlode::Error("", "this kind of chart needs two files; name them in the document, under "
                               "data/csv and data/groupsCsv"));
        source.Diagnostics->back().File = source.Table->Name;
    }
    return {source.Folder, nullptr, source.Diagnostics, source.Files};
}

} // namespace

void LoadContent(ChartStream& stream, const DataSource& source, HistogramDocument& document) {
    CHistogramPropSerialize::SerializeHistogramProp(stream, document.Prop, "property");
    document.Data = LoadBars(stream, source);
    document.Range = LoadValueRange(stream, document.Prop.Plot.LogarithmScale != 0, *source.Diagnostics);
}

void LoadContent(ChartStream& stream, const DataSource& source, HalfPieHistogramDocument& document) {
    const DataSource two = WithoutTable(source);
    CHalfPieHistogramPropSerialize::SerializeHalfPieHistogramProp(stream, document.Prop, "property");
    document.Slices = LoadSlices(stream, two);
    CheckSliceNames(kSlices, document.Prop.HalfPie.Basic.ComponentName, *source.Diagnostics);
    document.Bars = LoadBars(stream, two, kGroupsCsv);
    document.Largest = LoadLargestValue(stream, *source.Diagnostics);
}

void SerOffsets(penlode::CSerializeStream& stream, HalfPieHistogramDocument& document) {
    SerPoints(stream, kLabelOffsets, document.LabelOffsets);
}

void SaveContent(SavingStream& stream, HistogramDocument& document) {
    CHistogramPropSerialize::SerializeHistogramProp(stream, document.Prop, "property");
    SaveBars(stream, document.Data);
    SaveValueRange(stream, document.Range);
}

void SaveContent(SavingStream& stream, HalfPieHistogramDocument& document) {
    CHalfPieHistogramPropSerialize::SerializeHalfPieHistogramProp(stream, document.Prop, "property");
    stream.Push("data", -1);
    SaveSlices(stream, kSlices, document.Slices, document.Prop.HalfPie.Basic.ComponentName);
    stream.Pop();
    SaveBars(stream, document.Bars, kGroupsCsv);
    SaveValueRange(stream, {document.Largest, {}, {}});
}

void TakeTableNames(HistogramDocument& document, bool inPlaceOfOwn) {
    TakeNames(document.Prop.Plot.ComponentName, document.Data.ComponentNames, inPlaceOfOwn);
}

void TakeTableNames(HalfPieHistogramDocument& document, bool inPlaceOfOwn) {
    TakeNames(document.Prop.HalfPie.Basic.ComponentName, document.Slices.Names, inPlaceOfOwn);
    TakeNames(document.Prop.Histogram.Plot.ComponentName, document.Bars.ComponentNames, inPlaceOfOwn);
}

CBasicHistogram LayOutContent(HistogramDocument& document, LayoutTask& task) {
    ForgetOrigin(document.Data.Origin, task);
    const Bars bars(kPlot, document.Data, document.Prop.Plot, task.Open);
    CBasicHistogram chart;
    chart.SetHistogramProp(document.Prop);
    SetValueRange(chart, document.Range, bars.Largest());
    chart.SetComponentValue(document.Data.Values);
    chart.SetGroupName(document.Data.GroupNames);
    chart.SetLocation(task.Location);
    chart.Layout();
    bars.Doubt(chart, task.Diagnostics);
    bars.DoubtVisibility(chart, task.Diagnostics);
    task.Emptiness = bars.Emptiness();
    return chart;
}

CBasicHalfPieHistogram LayOutContent(HalfPieHistogramDocument& document, LayoutTask& task) {
    ForgetOrigin(document.Bars.Origin, task);
    HalfPieProp& halfPie = document.Prop.HalfPie;
    Slices slices(kSlices, document.Slices, halfPie.Basic, task.Open);
    const Bars bars(kPlotOfTwo, document.Bars, document.Prop.Histogram.Plot, task.Open);
    slices.DoubtOffsets(document.LabelOffsets.size(), kLabelOffsets);

    CBasicHalfPieHistogram chart;
    chart.SetHalfPieHistogramProp(document.Prop);
    chart.SetComponentValue(document.Slices.Values, document.Bars.Values,
                            document.Largest.value_or(bars.Largest()));
    chart.SetLocation(task.Location);
    chart.SetChildOffset(document.LabelOffsets, {});
    chart.Layout();
    slices.Doubt(chart.GetHalfPie().GetLayout().Pie.Width, task.Diagnostics);
    if (halfPie.Basic.WhichPart == HalfPiePart::Upper) {
        task.Diagnostics.push_back(penlode::Warning(
            kSlices.Record + "/WhichPart", "the upper half lies behind the bars; \"Lower\" lies below them"));
    }
    bars.Doubt(chart.GetHistogram(), task.Diagnostics);
    task.Emptiness = slices.Emptiness();
    return chart;
}

} // namespace millichart::documents
