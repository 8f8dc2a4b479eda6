#include "documents/doubts/Doubts.h"

#include "documents/Fields.h"
#include "documents/doubts/BarHeights.h"
#include "documents/doubts/CurveSight.h"
#include "documents/doubts/Ground.h"
#include "documents/doubts/NumberTexts.h"
#include "documents/doubts/RecordDoubts.h"
#include "documents/doubts/TextContrast.h"
#include "documents/doubts/TextOverlaps.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace millichart::documents {
namespace {

using penlode::RectF;

constexpr const char* kRecord = "property";

/// What the checks of a chart's texts look at.
struct Scene {
    PartRecords Records;
    Ground Paints;
    std::vector<LegendBox> Legends;
};

template <class Layout>
void AddLegend(const LegendProp& prop, const Layout& layout, std::size_t part, Scene& scene) {
    if (prop.ShowLegend == 0 || layout.LegendItemRects.empty()) {
        return;
    }
    const RectF box = LegendBoxOf(layout.LegendItemRects, layout.Legend);
    scene.Legends.push_back({box, part});
    if (prop.ShowBackground != 0) {
        scene.Paints.push_back(PaintOf(box, prop.BackgroundColor));
    }
}

template <class Chart> void AddTextDoubts(const Chart& chart, const Scene& scene, Diagnostics& diagnostics) {
    std::vector<ChartText> texts = TextsOf(chart);
    AddFontDoubts(texts, scene.Records, diagnostics);
    const RectF whole = chart.GetPositionAll();
    RectF page = whole;
    for (const ChartText& text : texts) { // measured once
        page = WithText(page, text, whole);
    }
    const std::vector<SeenText> seen = SeenTexts(std::move(texts));
    AddOverlapDoubts(seen, scene.Records, diagnostics);
    AddLegendDoubts(seen, scene.Legends, scene.Records, diagnostics);
    AddOutsideDoubts(seen, page, scene.Records, diagnostics);
    AddContrastDoubts(seen, scene.Paints, scene.Records, diagnostics);
}

void AddHalf(const HalfPieProp& prop, const CBasicHalfPie& half, const std::string& place,
             const std::string& data, Scene& scene, Diagnostics& diagnostics) {
    AddRecordDoubts(prop, place, diagnostics);
    AddSliceValueDoubts(half, prop.Label, prop.Basic.ComponentName, data, diagnostics);
    scene.Records.push_back({place, "Pie"});
    scene.Paints.push_back(PaintOf(half.GetShapes()));
}

void AddBars(const CBasicHistogram& chart, const BarData& data, const std::string& place, Scene& scene,
             Diagnostics& diagnostics) {
    AddAxisLabelDoubts(chart, diagnostics);
    AddBarValueDoubts(chart, data.Origin, diagnostics);
    AddBarHeightDoubts(chart, data.Origin, diagnostics);
    scene.Paints.push_back(PaintOf(chart));
    AddLegend(chart.GetHistogramProp().Legend, chart.GetLayout(), scene.Records.size(), scene);
    scene.Records.push_back({place, "Histogram"});
}

/// The bars stand in the middle of the half pie's line; a legend below or beside them takes them off it.
void AddShiftDoubts(const CBasicHalfPieHistogram& chart, Diagnostics& diagnostics) {
    constexpr float kUnnoticed = 0.1F;
    const CBasicHistogram& bars = chart.GetHistogram();
    const RectF& plot = bars.GetLayout().Plot;
    const float middle = plot.Center().X + bars.GetShapes().Depth.X * 0.5F;
    const float moved =
        std::max(std::abs(chart.GetLocation().Y - plot.Bottom()), std::abs(middle - chart.GetLocation().X));
    if (!bars.GetLayout().LegendItemRects.empty() && moved > kUnnoticed) {
        diagnostics.push_back(penlode::Warning("property/Histogram/HistogramLegendProp/LegendPos",
                                               "the legend takes the bars off the middle of the half pie's "
                                               "line; \"TopCenter\" leaves them there if "
                                               "it is no wider than they are"));
    }
}

} // namespace

void AddDoubts(const PieDocument& document, const CBasicPie& chart, Diagnostics& diagnostics) {
    Scene scene{{{kRecord, "Pie"}}, {PaintOf(chart.GetShapes())}, {}};
    AddRecordDoubts(document.Prop, kRecord, diagnostics);
    AddSliceValueDoubts(chart, document.Prop.Label, document.Prop.Basic.ComponentName, "data", diagnostics);
    AddLegend(document.Prop.Legend, chart.GetLayout(), 0, scene);
    AddTextDoubts(chart, scene, diagnostics);
}

void AddDoubts(const HalfPieDocument& document, const CBasicHalfPie& chart, Diagnostics& diagnostics) {
    Scene scene;
    AddHalf(document.Prop, chart, kRecord, "data", scene, diagnostics);
    AddTextDoubts(chart, scene, diagnostics);
}

void AddDoubts(const HalfPieHalfPieDocument& document, const CBasicHalfPieHalfPie& chart,
               Diagnostics& diagnostics) {
    Scene scene;
    AddHalf(document.Prop.First, chart.GetFirstHalf(), "property/TopHalf", "data/first", scene, diagnostics);
    AddHalf(document.Prop.Second, chart.GetSecondHalf(), "property/LowerHalf", "data/second", scene,
            diagnostics);
    AddTextDoubts(chart, scene, diagnostics);
}

void AddDoubts(const HalfPieHistogramDocument& document, const CBasicHalfPieHistogram& chart,
               Diagnostics& diagnostics) {
    Scene scene;
    AddHalf(document.Prop.HalfPie, chart.GetHalfPie(), "property/HalfPie", "data", scene, diagnostics);
    AddBarRecordDoubts(document.Prop.Histogram, "property/Histogram", diagnostics);
    AddBars(chart.GetHistogram(), document.Bars, "property/Histogram", scene, diagnostics);
    AddShiftDoubts(chart, diagnostics);
    AddTextDoubts(chart, scene, diagnostics);
}

void AddDoubts(const HistogramDocument& document, const CBasicHistogram& chart, Diagnostics& diagnostics) {
    Scene scene;
    AddRecordDoubts(document.Prop, kRecord, diagnostics);
    AddBars(chart, document.Data, kRecord, scene, diagnostics);
    AddTextDoubts(chart, scene, diagnostics);
}

void AddDoubts(const CurveDocument& document, const CBasicCurve& chart, Diagnostics& diagnostics) {
    Scene scene{{{kRecord, "Curve"}}, {PaintOf(chart)}, {}};
    AddRecordDoubts(document.Prop, kRecord, diagnostics);
    AddAxisLabelDoubts(chart, diagnostics);
    if (document.Large == nullptr) { // of which only the outermost points are there yet
        AddCurveSightDoubts(chart, document.Data.Origin, diagnostics);
    }
    AddLegend(document.Prop.Legend, chart.GetLayout(), 0, scene);
    AddTextDoubts(chart, scene, diagnostics);
}

} // namespace millichart::documents
