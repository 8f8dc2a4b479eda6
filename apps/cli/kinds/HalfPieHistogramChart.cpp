#include "kinds/HalfPieHistogramChart.h"

#include "documents/Fields.h"
#include "kinds/Bars.h"
#include "kinds/ExampleDocument.h"
#include "kinds/PieSlices.h"
#include "kinds/ValueRange.h"
#include "millichart.h"

namespace cli {
namespace {

using millichart::HalfPieHistogramProp;

constexpr const char* kHalfPiePlace = "property/HalfPie/HalfPieBasicProp";
constexpr const char* kPlotPlace = "property/Histogram/HistogramPlotProp";
constexpr const char* kBarsCsv = "groupsCsv";

/// One file cannot replace both the slices and the bars.
DataSource WithoutFileOfUser(const DataSource& source) {
    if (source.NamedByUser) {
        source.Messages->push_back({*source.NamedByUser, Severity::Error, 0, "", "", "",
                                    "this kind of chart needs two files; name them in the document, under "
                                    "data/csv and data/groupsCsv"});
    }
    return {source.Folder, {}, source.Messages, source.Files};
}

HalfPieHistogramProp LoadProp(ChartStream& stream) {
    HalfPieHistogramProp prop;
    PieSlices::AllowShortForms(stream);
    Bars::AllowShortForms(stream);
    millichart::CHalfPieHistogramPropSerialize::SerializeHalfPieHistogramProp(stream, prop, "property");
    return prop;
}

class HalfPieHistogramChart final : public Chart {
public:
    HalfPieHistogramChart(ChartStream& stream, const DataSource& source)
        : HalfPieHistogramChart(stream, WithoutFileOfUser(source), LoadProp(stream)) {}

    penlode::RectF Extent() const override { return m_chart.GetPositionAll(); }

    penlode::RectF InkExtent() const override { return m_chart.InkExtent(); }

    void VisitTexts(const millichart::TextVisitor& visit) const override { m_chart.VisitTexts(visit); }

    void Draw(penlode::IGraphicsEngine& engine) const override { m_chart.Draw(&engine); }

    Json Layout() const override {
        return {{"whole", ToJson(m_chart.GetPositionAll())},
                {"halfPie", PieLayoutToJson(m_chart.GetHalfPie().GetLayout())},
                {"histogram", HistogramLayoutToJson(m_chart.GetHistogram().GetLayout())}};
    }

    std::vector<Message> Doubts() const override {
        const millichart::HalfPieBasicProp& basic = m_chart.GetHalfPieHistogramProp().HalfPie.Basic;
        std::vector<Message> doubts = m_slices.Doubts(basic, m_chart.GetHalfPie().GetLayout().Pie.Width);
        if (basic.WhichPart == millichart::HalfPiePart::Upper) {
            doubts.push_back({"", Severity::Warning, 0, std::string(kHalfPiePlace) + "/WhichPart", "", "",
                              "the upper half lies behind the bars; \"Lower\" lies below them"});
        }
        const std::vector<Message> ofBars = m_bars.Doubts(m_chart.GetHistogram());
        doubts.insert(doubts.end(), ofBars.begin(), ofBars.end());
        return doubts;
    }

    Message Emptiness() const override { return m_slices.Emptiness(); }

private:
    HalfPieHistogramChart(ChartStream& stream, const DataSource& source, HalfPieHistogramProp prop)
        : m_slices(stream, LoadPieData(stream, source), prop.HalfPie.Basic, kHalfPiePlace, *source.Messages),
          m_bars(stream, LoadHistogramData(stream, source, kBarsCsv), prop.Histogram.Plot, kPlotPlace) {
        m_chart.SetHalfPieHistogramProp(prop);
        const double largest = LoadLargestValue(stream, m_bars.Largest(), *source.Messages);
        m_chart.SetComponentValue(m_slices.Values(), m_bars.Values(), largest);
        m_chart.SetLocation(LoadPoint(stream, "location"));
        const std::vector<penlode::PointF> labelOffsets = LoadPoints(stream, "labelOffsets");
        m_slices.DoubtOffsets(labelOffsets.size(), "labelOffsets", prop.HalfPie.Basic);
        m_chart.SetChildOffset(labelOffsets, {});
        m_chart.Layout();
    }

    millichart::CBasicHalfPieHistogram m_chart;
    PieSlices m_slices;
    Bars m_bars;
};

HalfPieHistogramProp ExampleProp() {
    HalfPieHistogramProp prop;
    LookLikeAnExample(prop.HalfPie.Basic, prop.HalfPie.Label);
    prop.HalfPie.Basic.WhichPart = millichart::HalfPiePart::Lower;
    prop.HalfPie.Label.ShowNameLabel = 1;
    prop.HalfPie.Label.LabelSeparator = " ";
    millichart::HistogramPlotProp& plot = prop.Histogram.Plot;
    plot.ShowBackground = 0;
    plot.ShowEdge = 0;
    plot.ComponentName = {"Q1", "Q2", "Q3", "Q4"};
    plot.ComponentColor = {{0xFFC3C9D2}, {0xFFA9B1BD}, {0xFF8E98A7}, {0xFF748091}};
    plot.ShowComponentName = 1;
    plot.ShowComponentValue = 1;
    plot.ConponentInfoSeparator = ": ";
    plot.ComponentInfoTextProperty.Font = penlode::Font{L"Arial", 3.4F};
    plot.PlotWidth = 60.0F;
    plot.PlotHeight = 30.0F;
    plot.GroupDistane = 0.0F;
    // What the chart shows of the record, which has neither axes nor grids.
    millichart::CBasicHalfPieHistogram chart;
    chart.SetHalfPieHistogramProp(prop);
    return chart.GetHalfPieHistogramProp();
}

} // namespace

std::unique_ptr<Chart> LoadHalfPieHistogramChart(ChartStream& stream, const DataSource& source) {
    return std::make_unique<HalfPieHistogramChart>(stream, source);
}

Json HalfPieHistogramExample() {
    Json property =
        SavedRecord(millichart::CHalfPieHistogramPropSerialize::SerializeHalfPieHistogramProp, ExampleProp());
    property["HalfPie"]["HalfPieBasicProp"]["ComponentName"] = {"North", "East", "South", "West"};
    Json document =
        ExampleDocument("A year's sales, by region and by quarter", std::move(property),
                        {{"values", {425, 310, 182, 83}},
                         {"groups", {{{"name", "this year"}, {"values", {213, 263, 235, 289}}}}}});
    document["labelOffsets"] = Json::array();
    return document;
}

} // namespace cli
