#include "kinds/HistogramChart.h"

#include "documents/Fields.h"
#include "kinds/Bars.h"
#include "kinds/ExampleDocument.h"
#include "kinds/ValueRange.h"
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

    penlode::RectF InkExtent() const override { return m_chart.InkExtent(); }

    void VisitTexts(const millichart::TextVisitor& visit) const override { m_chart.VisitTexts(visit); }

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
    HistogramProp prop;
    FrameLikeAnExample(prop, "Sales by quarter", "thousand pieces");
    prop.HorAxis.ShowGroupName = 1;
    prop.HorAxis.GroupNameTextProperty.Font = kExampleFont;
    prop.Plot.ComponentName = {"Tea", "Coffee", "Cocoa"};
    prop.Plot.ComponentColor = PaletteColors(prop.Plot.ComponentName.size());
    prop.Plot.ShowComponentValue = 1;
    prop.Plot.ComponentInfoTextProperty.Font = penlode::Font{L"Arial", 2.8F};
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
