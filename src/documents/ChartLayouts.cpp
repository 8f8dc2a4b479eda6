#include "documents/ChartLayouts.h"

#include "charts/curve/CurvePropSerialize.h"
#include "charts/histogram/HistogramPropSerialize.h"
#include "charts/pie/HalfPiePropSerialize.h"
#include "charts/pie/PiePropSerialize.h"
#include "documents/Bars.h"
#include "documents/Curves.h"
#include "documents/Fields.h"
#include "documents/OptionsGroup.h"
#include "documents/Slices.h"
#include "documents/ValueRange.h"
#include "documents/doubts/Doubts.h"

#include <cmath>
#include <tuple>
#include <utility>

namespace millichart::documents {
namespace {

using penlode::CSerializeStream;
using penlode::PointF;

constexpr float kFullTurn = 360.0F;
/// After these a number of single precision no longer tells the slices apart.
constexpr float kManyTurns = 1e5F;

constexpr const char* kProperty = "property";

/// What each kind's data are shown by.
auto PartsOf(PieDocument& document) {
    return std::tuple(Slices("property/PieBasicProp", document.Data, document.Prop.Basic));
}

auto PartsOf(HalfPieDocument& document) {
    return std::tuple(Slices("property/HalfPieBasicProp", document.Data, document.Prop.Basic));
}

auto PartsOf(HalfPieHalfPieDocument& document) {
    HalfPieHalfPieProp& prop = document.Prop;
    return std::tuple(
        Slices("property/TopHalf/HalfPieBasicProp", document.First, prop.First.Basic, "first"),
        Slices("property/LowerHalf/HalfPieBasicProp", document.Second, prop.Second.Basic, "second"));
}

auto PartsOf(HalfPieHistogramDocument& document) {
    HalfPieHistogramProp& prop = document.Prop;
    return std::tuple(
        Slices("property/HalfPie/HalfPieBasicProp", document.Slices, prop.HalfPie.Basic),
        Bars("property/Histogram/HistogramPlotProp", document.Bars, prop.Histogram.Plot, "groupsCsv"));
}

auto PartsOf(HistogramDocument& document) {
    return std::tuple(Bars("property/HistogramPlotProp", document.Data, document.Prop.Plot));
}

auto PartsOf(CurveDocument& document) {
    return std::tuple(Curves(document.Data, document.Prop, document.Large));
}

template <class Document, class Work> void ForEachPart(Document& document, const Work& work) {
    auto parts = PartsOf(document);
    std::apply([&work](auto&... part) { (work(part), ...); }, parts);
}

void SerProp(CSerializeStream& stream, PieProp& prop) {
    CPiePropSerialize::SerializePieProp(stream, prop, kProperty);
}

void SerProp(CSerializeStream& stream, HalfPieProp& prop) {
    CHalfPiePropSerialize::SerializeHalfPieProp(stream, prop, kProperty);
}

void SerProp(CSerializeStream& stream, HalfPieHalfPieProp& prop) {
    CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp(stream, prop, kProperty);
}

void SerProp(CSerializeStream& stream, HalfPieHistogramProp& prop) {
    CHalfPieHistogramPropSerialize::SerializeHalfPieHistogramProp(stream, prop, kProperty);
}

void SerProp(CSerializeStream& stream, HistogramProp& prop) {
    CHistogramPropSerialize::SerializeHistogramProp(stream, prop, kProperty);
}

void SerProp(CSerializeStream& stream, CurveProp& prop) {
    CCurvePropSerialize::SerializeCurveProp(stream, prop, kProperty);
}

/// How far the parts that a document may move were moved.
template <class Document> void SerOffsets(CSerializeStream& stream, Document& document) {
    if constexpr (requires { document.LabelOffsets; }) {
        SerPoints(stream, kLabelOffsets, document.LabelOffsets);
    }
    if constexpr (requires { document.LegendOffset; }) {
        SerPoint(stream, "legendOffset", document.LegendOffset);
    }
    if constexpr (requires { document.FirstLabelOffsets; }) {
        stream.Push(kLabelOffsets, -1);
        SerPoints(stream, "first", document.FirstLabelOffsets);
        SerPoints(stream, "second", document.SecondLabelOffsets);
        stream.Pop();
    }
}

/// One table cannot replace both the slices and the bars.
DataSource WithoutTable(DataSource source) {
    if (source.Table != nullptr) {
        source.Diagnostics->push_back(
            penlode::Error("", "this kind of chart needs two files; name them in the document, under "
                               "data/csv and data/groupsCsv"));
        source.Diagnostics->back().File = source.Table->Input.Name;
    }
    source.Table = nullptr;
    return source;
}

template <class Document> void LoadData(ChartStream& stream, const DataSource& source, Document& document) {
    ForEachPart(document, [&](auto& part) { part.Load(stream, source); });
    if constexpr (requires { document.Range; }) {
        const bool isLogarithmic = document.Prop.Plot.LogarithmScale != 0;
        document.Range = LoadValueRange(stream, isLogarithmic, *source.Diagnostics);
    }
}

void LoadData(ChartStream& stream, const DataSource& source, HalfPieHalfPieDocument& document) {
    auto [first, second] = PartsOf(document);
    LoadHalves(stream, source, first, second);
}

void LoadData(ChartStream& stream, const DataSource& source, HalfPieHistogramDocument& document) {
    const DataSource two = WithoutTable(source);
    ForEachPart(document, [&](auto& part) { part.Load(stream, two); });
    const ValueRange range = LoadLargestValue(stream, *source.Diagnostics);
    document.IsFitted = range.IsFitted;
    document.Largest = range.Largest;
}

/// With one for each label, so that a user may move it, whether or not the document has one.
std::vector<PointF> ForEachLabel(std::vector<PointF> offsets, const SliceData& data) {
    offsets.resize(std::max(offsets.size(), data.Values.size()));
    return offsets;
}

/// Of those charts that have parts to be moved.
template <class Chart>
void LayOutAt(PointF location, Chart& chart, const std::vector<PointF>& labelOffsets,
              const std::vector<PointF>& legendOffset = {}) {
    chart.SetLocation(location);
    chart.SetChildOffset(labelOffsets, legendOffset);
    chart.Layout();
}

CBasicPie LayOut(PieDocument& document, LayoutTask& task, const Slices& slices) {
    CompleteLegend(document.Prop.Legend, document.Prop.Basic.ComponentName,
                   task.Open.contains(std::string("property/PieLegendProp") + kShowLegend));
    CBasicPie chart;
    chart.SetOptions(task.Options);
    chart.SetPieProp(document.Prop);
    chart.SetComponentValue(document.Data.Values);
    LayOutAt(task.Location, chart, ForEachLabel(document.LabelOffsets, document.Data),
             {document.LegendOffset});
    slices.Check(chart, task.Diagnostics);
    if (const float start = document.Prop.Basic.StartAngle; start < 0.0F || start >= kFullTurn) {
        task.Diagnostics.push_back(penlode::Warning("property/PieBasicProp/StartAngle", NumberText(start),
                                                    "an angle from 0 to below 360"));
        if (!(std::abs(start) < kManyTurns)) {
            task.Diagnostics.back().Severity = penlode::Severity::Error;
        }
    }
    return chart;
}

CBasicHalfPie LayOut(const HalfPieDocument& document, LayoutTask& task, const Slices& slices) {
    CBasicHalfPie chart;
    chart.SetOptions(task.Options);
    chart.SetHalfPieProp(document.Prop);
    chart.SetComponentValue(document.Data.Values);
    LayOutAt(task.Location, chart, ForEachLabel(document.LabelOffsets, document.Data));
    slices.Check(chart, task.Diagnostics);
    return chart;
}

bool IsUpper(const HalfPieProp& prop) {
    return prop.Basic.WhichPart == HalfPiePart::Upper;
}

CBasicHalfPieHalfPie LayOut(const HalfPieHalfPieDocument& document, LayoutTask& task, const Slices& first,
                            const Slices& second) {
    const std::vector<PointF> ofSecond = ForEachLabel(document.SecondLabelOffsets, document.Second);
    std::vector<PointF> offsets = ForEachLabel(document.FirstLabelOffsets, document.First);
    offsets.push_back(kHalvesSeparator);
    offsets.insert(offsets.end(), ofSecond.begin(), ofSecond.end());

    CBasicHalfPieHalfPie chart;
    chart.SetOptions(task.Options);
    chart.SetHalfPieHalfPieProp(document.Prop);
    chart.SetComponentValue(document.First.Values, document.Second.Values);
    LayOutAt(task.Location, chart, offsets);
    first.Check(chart.GetFirstHalf(), task.Diagnostics, document.FirstLabelOffsets.size());
    second.Check(chart.GetSecondHalf(), task.Diagnostics, document.SecondLabelOffsets.size());
    if (IsUpper(document.Prop.First) == IsUpper(document.Prop.Second)) {
        task.Diagnostics.push_back(
            penlode::Warning("property/LowerHalf/HalfPieBasicProp/WhichPart",
                             "fills the same half of the circle as TopHalf and covers it"));
    }
    return chart;
}

CBasicHalfPieHistogram LayOut(const HalfPieHistogramDocument& document, LayoutTask& task,
                              const Slices& slices, const Bars& bars) {
    CBasicHalfPieHistogram chart;
    chart.SetOptions(task.Options);
    chart.SetHalfPieHistogramProp(document.Prop);
    chart.SetComponentValue(document.Slices.Values, document.Bars.Values,
                            document.Largest.value_or(bars.Largest()));
    LayOutAt(task.Location, chart, ForEachLabel(document.LabelOffsets, document.Slices));
    if (document.IsFitted) {
        CBasicHistogram sharer = chart.GetHistogram(); // of the axis, which exists since the layout
        SetValueRange(sharer, bars.FittedRange(chart.GetOptions()), 0.0);
        chart.Layout();
    }
    slices.Check(chart.GetHalfPie(), task.Diagnostics, document.LabelOffsets.size());
    if (IsUpper(document.Prop.HalfPie) && task.Options.SliceLabels != SliceLabelFit::Apart) {
        task.Diagnostics.push_back(
            penlode::Warning("property/HalfPie/HalfPieBasicProp/WhichPart",
                             "the upper half lies behind the bars; \"Lower\" lies below them"));
    }
    bars.Check(chart.GetHistogram(), false, task.Diagnostics);
    return chart;
}

CBasicHistogram LayOut(HistogramDocument& document, LayoutTask& task, const Bars& bars) {
    CompleteLegend(document.Prop.Legend, document.Prop.Plot.ComponentName,
                   task.Open.contains(std::string("property/HistogramLegendProp") + kShowLegend));
    CBasicHistogram chart;
    chart.SetOptions(task.Options);
    chart.SetHistogramProp(document.Prop);
    SetValueRange(chart,
                  IsFitted(document.Range, chart.GetOptions()) ? bars.FittedRange(chart.GetOptions())
                                                               : document.Range,
                  bars.Largest());
    chart.SetComponentValue(document.Data.Values);
    chart.SetGroupName(document.Data.GroupNames);
    chart.SetLocation(task.Location);
    chart.Layout();
    bars.Check(chart, true, task.Diagnostics);
    return chart;
}

/// Of a chart of what is too large to be held, so that its rows can be asked for.
LargeRows RowsOf(const CurveDocument& document, const Curves& curves) {
    return {document.Large, curves.Counted()};
}

CBasicCurve LayOut(CurveDocument& document, LayoutTask& task, Curves& curves) {
    CBasicCurve chart;
    if (task.Options.TimeUnit == TimeUnit::Number && task.Options.TimeLabels == TimeLabels::AtTimes) {
        task.Options.TimeUnit = curves.CountSince1970();
    }
    chart.SetOptions(task.Options);
    chart.SetCurveProp(document.Prop);
    SetValueRange(chart,
                  IsFitted(document.Range, chart.GetOptions()) ? curves.FittedRange(chart.GetOptions())
                                                               : document.Range,
                  curves.Largest());
    curves.Check(chart, task.Diagnostics);
    chart.SetCurveData(std::move(document.Data.Values), std::move(document.Data.Times));
    chart.SetHorAxisLabel(std::move(document.Data.Labels));
    chart.SetLocation(task.Location);
    chart.Layout();
    return chart;
}

} // namespace

void LoadContent(ChartStream& stream, const DataSource& source, ChartDocument& whole) {
    WithContent(whole.Content, [&](auto& document) {
        SerProp(stream, document.Prop);
        LoadData(stream, source, document);
        SerPoint(stream, "location", whole.Location);
        SerOffsets(stream, document);
        whole.Options = LoadOptions(stream);
    });
}

void SaveContent(SavingStream& stream, ChartDocument& whole) {
    WithContent(whole.Content, [&](auto& document) {
        SerProp(stream, document.Prop);
        ForEachPart(document, [&](const auto& part) { part.Save(stream); });
        if constexpr (requires { document.Range; }) {
            SaveValueRange(stream, document.Range);
        } else if constexpr (requires { document.Largest; }) {
            SaveValueRange(stream, {document.IsFitted, document.Largest, {}, {}});
        }
        SerPoint(stream, "location", whole.Location);
        SerOffsets(stream, document);
        SaveOptions(stream, whole.Options);
    });
}

void TakeTableNames(ChartContent& content, bool inPlaceOfOwn) {
    WithContent(content, [inPlaceOfOwn](auto& document) {
        ForEachPart(document, [inPlaceOfOwn](auto& part) { part.TakeTableNames(inPlaceOfOwn); });
    });
}

void LayOutContent(ChartContent& content, LayoutTask& task, LaidOutChart& laidOut) {
    WithContent(content, [&](auto& document) {
        auto parts = PartsOf(document);
        const auto layOut = [&](auto&... part) {
            (part.Complete(task), ...);
            return LayOut(document, task, part...);
        };
        auto chart = std::apply(layOut, parts);
        if (!HasErrors(task.Diagnostics)) {
            AddDoubts(document, chart, task.Diagnostics);
        }
        if constexpr (requires { document.Large; }) {
            laidOut.Rows = RowsOf(document, std::get<0>(parts));
        }
        laidOut.Chart = std::move(chart);
        task.Emptiness = std::get<0>(parts).Emptiness();
    });
}

} // namespace millichart::documents
