#include "HistogramChart.h"

#include "CartesianLayoutToJson.h"
#include "Fields.h"
#include "HistogramData.h"
#include "Palette.h"
#include "ValueRange.h"
#include "millichart.h"

#include <algorithm>
#include <cmath>

namespace cli {
namespace {

using millichart::HistogramProp;

constexpr const char* kNames = "ComponentName";
constexpr const char* kColors = "ComponentColor";
constexpr const char* kNamesPlace = "property/HistogramPlotProp/ComponentName";
constexpr const char* kColorsPlace = "property/HistogramPlotProp/ComponentColor";

/// The largest value, or the largest sum on the way up a stack. -infinity when there is none.
double LargestOf(const std::vector<std::vector<double>>& groups, bool isStacked) {
    double largest = -HUGE_VAL;
    for (const std::vector<double>& group : groups) {
        double sum = 0.0;
        for (const double value : group) {
            sum = isStacked ? sum + value : value;
            largest = std::max(largest, std::isfinite(sum) ? sum : largest);
        }
    }
    return largest;
}

class HistogramChart final : public Chart {
public:
    HistogramChart(ChartStream& stream, const DataSource& source) {
        HistogramProp prop = LoadProp(stream);
        m_data = LoadHistogramData(stream, source);
        m_components = m_data.Components();
        TakeNames(prop.Plot.ComponentName, stream.TookDefault(kNames));
        if (stream.TookDefault(kColors)) {
            prop.Plot.ComponentColor = PaletteColors(prop.Plot.ComponentName.size());
        }
        const bool isStacked = prop.Plot.Juxtaposition == 0;
        if (isStacked) {
            CloseGaps();
        }
        m_chart.SetHistogramProp(prop);
        ValueRange(stream, prop.Plot.LogarithmScale != 0, *source.Messages)
            .ApplyTo(m_chart, LargestOf(m_data.Values, isStacked));
        m_chart.SetComponentValue(m_data.Values);
        m_chart.SetGroupName(m_data.GroupNames);
        m_chart.SetLocation(LoadPoint(stream, "location"));
        m_chart.Layout();
    }

    penlode::RectF Extent() const override { return m_chart.GetPositionAll(); }

    void Draw(penlode::IGraphicsEngine& engine) const override { m_chart.Draw(&engine); }

    Json Layout() const override {
        const millichart::HistogramLayout& layout = m_chart.GetLayout();
        Json json = CartesianLayoutToJson(layout);
        json["groupNameRects"] = ListToJson(layout.GroupNameRects);
        json["componentWidth"] = ToJson(static_cast<double>(layout.ComponentWidth));
        json["groupGap"] = ToJson(static_cast<double>(layout.GroupGap));
        Json groups = Json::array();
        for (const std::vector<penlode::RectF>& bars : layout.ComponentRects) {
            groups.push_back(ListToJson(bars));
        }
        json["componentRects"] = std::move(groups);
        return json;
    }

    std::vector<Message> Doubts() const override {
        std::vector<Message> doubts = m_doubts;
        const millichart::HistogramPlotProp& plot = m_chart.GetHistogramProp().Plot;
        if (const std::size_t names = plot.ComponentName.size(); names != m_components) {
            doubts.push_back({"", Severity::Warning, 0, kNamesPlace, Counted(names, "name"),
                              std::to_string(m_components) + ", one a value of a group"});
        }
        if (const std::size_t colors = plot.ComponentColor.size(); colors < plot.ComponentName.size()) {
            doubts.push_back({"", Severity::Warning, 0, kColorsPlace, Counted(colors, "colour"),
                              std::to_string(plot.ComponentName.size()) + ", one a name"});
        }
        const std::vector<Message> outside = ValuesOutside();
        doubts.insert(doubts.end(), outside.begin(), outside.end());
        return doubts;
    }

private:
    static HistogramProp LoadProp(ChartStream& stream) {
        stream.SetDefaultList(kColors, PaletteTexts());
        HistogramProp prop;
        millichart::CHistogramPropSerialize::SerializeHistogramProp(stream, prop, "property");
        return prop;
    }

    /// The document's own names stand, unless the user put other data in its place. Without any, bars are
    /// drawn and have none.
    void TakeNames(std::vector<std::string>& names, bool areMissing) {
        const std::vector<std::string>& headed = m_data.ComponentNames;
        if (!headed.empty() && (areMissing || names.empty() || m_data.NamesGoFirst)) {
            names = headed;
        } else if (areMissing) {
            names.assign(m_components, "");
        } else if (!headed.empty() && headed != names) {
            m_doubts.push_back(OtherNames(kNamesPlace));
        }
    }

    /// In a stack nothing is as good as 0.
    void CloseGaps() {
        for (std::vector<double>& group : m_data.Values) {
            std::replace_if(
                group.begin(), group.end(), [](double value) { return std::isnan(value); }, 0.0);
        }
    }

    std::vector<Message> ValuesOutside() const {
        const millichart::HistogramPlotProp& plot = m_chart.GetHistogramProp().Plot;
        RangeDoubts doubts = RangeDoubts::Of(m_chart, plot.LogarithmScale != 0);
        for (std::size_t group = 0; group < m_data.Values.size(); ++group) {
            double sum = 0.0;
            for (std::size_t i = 0; i < m_data.Values[group].size(); ++i) {
                sum = plot.Juxtaposition == 0 ? sum + m_data.Values[group][i] : m_data.Values[group][i];
                doubts.Look(sum, [&] { return HistogramValuePlace(group, i); });
            }
        }
        return doubts.Doubts();
    }

    millichart::CBasicHistogram m_chart;
    HistogramData m_data;
    std::size_t m_components = 0;
    std::vector<Message> m_doubts; ///< those of the load
};

HistogramProp ExampleProp() {
    const penlode::Font font{L"Arial", 3.4F};
    HistogramProp prop;
    prop.Caption.ShowCaption = 1;
    prop.Caption.Caption = "Sales by quarter";
    prop.Caption.CaptionTextProperty.Font = penlode::Font{L"Arial", 4.5F};
    prop.VerAxis.MinorScaleStyle = millichart::ScaleStyle::None;
    prop.VerAxis.VerAxisLabelTextProperty.Font = font;
    prop.VerAxis.HorMajorGridPen = penlode::Pen(penlode::Color{0xFFD0D0D0}, 0.1F);
    prop.VerAxis.ShowVerCaption = 1;
    // The empty line keeps it off the labels.
    prop.VerAxis.VerCaption = "thousand pieces\n";
    prop.VerAxis.VerCaptionTextProperty.Font = font;
    prop.VerAxis.VerCaptionTextProperty.Angle = 90;
    prop.HorAxis.ShowGroupName = 1;
    prop.HorAxis.GroupNameTextProperty.Font = font;
    prop.HorAxis.HorCaptionTextProperty.Font = font;
    prop.HorAxis.ShowVerGrid = 0;
    prop.Plot.EdgePen = penlode::Pen(penlode::Color{0xFFD0D0D0}, 0.1F);
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
    HistogramProp prop = ExampleProp();
    penlode::CJsonSerializeStream record;
    millichart::CHistogramPropSerialize::SerializeHistogramProp(record, prop, "property");
    return {{"title", "Sales by quarter"},
            {"description", "Figures made up as an example; put your own in their place."},
            {"source", ""},
            {"property", Json::parse(record.Text())["property"]},
            {"data",
             {{"groups",
               {{{"name", "Q1"}, {"values", {38, 52, 17}}},
                {{"name", "Q2"}, {"values", {41, 47, 12}}},
                {{"name", "Q3"}, {"values", {35, 44, 14}}},
                {{"name", "Q4"}, {"values", {46, 61, 29}}}}}}},
            {"range", {{"InitializeValueRange", 61}}},
            {"location", "0 0"}};
}

} // namespace cli
