#include "HistogramChart.h"

#include "Bars.h"
#include "ExampleDocument.h"
#include "Fields.h"
#include "ValueRange.h"
#include "millichart.h"

namespace cli {
namespace {

using millichart::HistogramProp;

HistogramProp LoadProp(ChartStream& stream) {
    HistogramProp prop;
    Bars::AllowShortForms(stream);
    millichart::CHistogramPropSerialize::SerializeHistogramProp(stream, prop, "property");
    return prop;
}

class HistogramChart final : public Chart {
public:
    HistogramChart(ChartStream& stream, const DataSource& source)
        : HistogramChart(stream, source, LoadProp(stream)) {}

    penlode::RectF Extent() const override { return m_chart.GetPositionAll(); }

    void Draw(penlode::IGraphicsEngine& engine) const override { m_chart.Draw(&engine); }

    Json Layout() const override { return HistogramLayoutToJson(m_chart.GetLayout()); }

    std::vector<Message> Doubts() const override {
        std::vector<Message> doubts = m_bars.Doubts(m_chart);
        const std::vector<Message> more = m_bars.Invisibility(m_chart);
        doubts.insert(doubts.end(), more.begin(), more.end());
        return doubts;
    }

    Message Emptiness() const override { return m_bars.Emptiness(); }

private:
    HistogramChart(ChartStream& stream, const DataSource& source, HistogramProp prop)
        : m_bars(stream, LoadHistogramData(stream, source), prop.Plot, "property/HistogramPlotProp") {
        m_chart.SetHistogramProp(prop);
        ValueRange(stream, prop.Plot.LogarithmScale != 0, *source.Messages)
            .ApplyTo(m_chart, m_bars.Largest());
        m_chart.SetComponentValue(m_bars.Values());
        m_chart.SetGroupName(m_bars.GroupNames());
        m_chart.SetLocation(LoadPoint(stream, "location"));
        m_chart.Layout();
    }

    millichart::CBasicHistogram m_chart;
    Bars m_bars;
};

HistogramProp ExampleProp() {
    const penlode::Font font{L"Arial", 3.4F};
    const penlode::Pen grey(penlode::Color{0xFFD0D0D0}, 0.1F);
    HistogramProp prop;
    prop.Caption.ShowCaption = 1;
    // Empty lines keep captions off the plot and the labels.
    prop.Caption.Caption = "Sales by quarter\n";
    prop.Caption.CaptionTextProperty.Font = penlode::Font{L"Arial", 4.5F};
    prop.VerAxis.MajorScaleStyle = millichart::ScaleStyle::Inner;
    prop.VerAxis.MinorScaleStyle = millichart::ScaleStyle::None;
    prop.VerAxis.VerAxisLabelTextProperty.Font = font;
    prop.VerAxis.HorMajorGridPen = grey;
    prop.VerAxis.HorMinorGridPen = grey;
    prop.VerAxis.ShowVerCaption = 1;
    prop.VerAxis.VerCaption = "thousand pieces\n";
    prop.VerAxis.VerCaptionTextProperty.Font = font;
    prop.VerAxis.VerCaptionTextProperty.Angle = 90;
    prop.HorAxis.ScaleStyle = millichart::ScaleStyle::Inner;
    prop.HorAxis.ShowGroupName = 1;
    prop.HorAxis.GroupNameTextProperty.Font = font;
    prop.HorAxis.HorCaptionTextProperty.Font = font;
    prop.HorAxis.ShowVerGrid = 0;
    prop.Plot.EdgePen = grey;
    prop.Plot.ComponentName = {"Tea", "Coffee", "Cocoa"};
    prop.Plot.ComponentColor = PaletteColors(prop.Plot.ComponentName.size());
    prop.Plot.ShowComponentValue = 1;
    prop.Plot.ComponentInfoTextProperty.Font = penlode::Font{L"Arial", 2.8F};
    prop.Plot.PlotWidth = 110.0F;
    prop.Plot.PlotHeight = 60.0F;
    prop.Legend.ShowLegend = 1;
    prop.Legend.ShowEdge = 0;
    prop.Legend.ItemDist = 1.0F;
    prop.Legend.Font = font;
    return prop;
}

} // namespace

std::unique_ptr<Chart> LoadHistogramChart(ChartStream& stream, const DataSource& source) {
    return std::make_unique<HistogramChart>(stream, source);
}

Json HistogramExample() {
    return ExampleDocument(
        "Sales by quarter",
        SavedRecord(millichart::CHistogramPropSerialize::SerializeHistogramProp, ExampleProp()),
        {{"groups",
          {{{"name", "Q1"}, {"values", {38, 52, 17}}},
           {{"name", "Q2"}, {"values", {41, 47, 12}}},
           {{"name", "Q3"}, {"values", {35, 44, 14}}},
           {{"name", "Q4"}, {"values", {46, 61, 29}}}}}});
}

} // namespace cli
