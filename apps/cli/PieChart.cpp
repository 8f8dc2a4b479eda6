#include "PieChart.h"

#include "Fields.h"
#include "Palette.h"
#include "PieData.h"
#include "millichart.h"
#include "penlode/StringUtil.h"

namespace cli {
namespace {

using millichart::PieProp;
using penlode::CStringUtil;

constexpr const char* kNames = "ComponentName";
constexpr const char* kColors = "ComponentColor";
constexpr const char* kSizePlace = "property/PieBasicProp/FixedSize";
constexpr const char* kWidthPlace = "property/PieBasicProp/FixedWidth";
constexpr const char* kNamesPlace = "property/PieBasicProp/ComponentName";
constexpr const char* kColorsPlace = "property/PieBasicProp/ComponentColor";

constexpr float kSmallestPie = 5.0F;

Message SmallPie(float width, bool isFixed) {
    const std::string found = "the pie is only " + ToJson(static_cast<double>(width)).dump() + " mm across";
    return isFixed ? Message{"", Severity::Warning, 0, kWidthPlace, "", "", found}
                   : Message{"",
                             Severity::Warning,
                             0,
                             kSizePlace,
                             "",
                             "",
                             found + ", by its values' total; with 1 here it is as wide as FixedWidth"};
}

class PieChart final : public Chart {
public:
    PieChart(ChartStream& stream, const DataSource& source) {
        PieProp prop = LoadProp(stream);
        RefuseTooMany(prop.Basic.ComponentName, *source.Messages);
        PieData data = LoadPieData(stream, source);
        TakeNames(data, prop.Basic.ComponentName);
        if (stream.TookDefault(kColors)) {
            prop.Basic.ComponentColor = PaletteColors(data.Values.size());
        }
        m_values = data.Values.size();
        m_pie.SetPieProp(prop);
        m_pie.SetComponentValue(data.Values);
        m_pie.SetLocation(LoadPoint(stream, "location"));
        const std::vector<penlode::PointF> labelOffsets = LoadPoints(stream, "labelOffsets");
        m_pie.SetChildOffset(labelOffsets, {LoadPoint(stream, "legendOffset")});
        m_pie.Layout();
    }

    penlode::RectF Extent() const override { return m_pie.GetPositionAll(); }

    void Draw(penlode::IGraphicsEngine& engine) const override { m_pie.Draw(&engine); }

    Json Layout() const override {
        const millichart::PieLayout& layout = m_pie.GetLayout();
        Json texts = Json::array();
        for (const std::string& text : layout.LabelTexts) {
            texts.push_back(CStringUtil::AnsiToUtf8(text));
        }
        return {{"whole", ToJson(layout.Whole)},
                {"pie", ToJson(layout.Pie)},
                {"labelTexts", texts},
                {"labelRects", ListToJson(layout.LabelRects)},
                {"legendItemRects", ListToJson(layout.LegendItemRects)}};
    }

    std::vector<Message> Doubts() const override {
        std::vector<Message> doubts = m_doubts;
        const millichart::PieBasicProp& basic = m_pie.GetPieProp().Basic;
        if (const float width = m_pie.GetLayout().Pie.Width; width < kSmallestPie) {
            doubts.push_back(SmallPie(width, basic.FixedSize != 0));
        }
        if (const std::size_t names = basic.ComponentName.size(); names != 0 && names != m_values) {
            doubts.push_back({"", Severity::Warning, 0, kNamesPlace, Counted(names, "name"),
                              std::to_string(m_values) + ", one a value"});
        }
        if (const std::size_t colors = basic.ComponentColor.size(); colors < m_values) {
            doubts.push_back({"", Severity::Warning, 0, kColorsPlace, Counted(colors, "colour"),
                              std::to_string(m_values) + ", one a value"});
        }
        return doubts;
    }

private:
    /// A legend would lay out each of them, values or not.
    static void RefuseTooMany(std::vector<std::string>& names, std::vector<Message>& messages) {
        if (names.size() > kMostSlices) {
            messages.push_back(
                {"", Severity::Error, 0, kNamesPlace, Counted(names.size(), "name"), FewerSlices()});
            names.clear();
        }
    }

    /// The document's own names stand, unless the user put other data in its place.
    void TakeNames(PieData& data, std::vector<std::string>& names) {
        if (names.empty() || (data.NamesGoFirst && !data.Names.empty())) {
            names = std::move(data.Names);
        } else if (!data.Names.empty() && data.Names != names) {
            m_doubts.push_back(OtherNames(kNamesPlace));
        }
    }

    static PieProp LoadProp(ChartStream& stream) {
        stream.AllowList(kNames);
        stream.SetDefaultList(kColors, PaletteTexts());
        PieProp prop;
        millichart::CPiePropSerialize::SerializePieProp(stream, prop, "property");
        return prop;
    }

    millichart::CBasicPie m_pie;
    std::size_t m_values = 0;
    std::vector<Message> m_doubts; ///< those of the load
};

PieProp ExampleProp(std::size_t parts) {
    PieProp prop;
    prop.Basic.FixedSize = 1;
    prop.Basic.FixedWidth = 60.0F;
    prop.Basic.PenSepLine = penlode::Pen(penlode::kWhite, 0.3F);
    prop.Basic.ComponentColor = PaletteColors(parts);
    prop.Label.ShowPercentLabel = 1;
    prop.Label.DistBetweenLabelCenterAndPieCenter = 1.5F;
    prop.Label.PieLabelTextProperty.Font = penlode::Font{L"Arial", 3.4F};
    prop.Label.PieLabelTextProperty.DrawEdge = 0;
    prop.Label.PieLabelTextProperty.DrawBackGround = 0;
    prop.Legend.ShowLegend = 1;
    prop.Legend.LegendPos = millichart::LegendPosition::RightCenter;
    prop.Legend.ShowEdge = 0;
    prop.Legend.ItemDist = 1.0F;
    prop.Legend.Font = penlode::Font{L"Arial", 3.4F};
    return prop;
}

} // namespace

std::unique_ptr<Chart> LoadPieChart(ChartStream& stream, const DataSource& source) {
    return std::make_unique<PieChart>(stream, source);
}

Json PieExample() {
    const Json names{"North", "East", "South", "West"};
    PieProp prop = ExampleProp(names.size());
    penlode::CJsonSerializeStream record;
    millichart::CPiePropSerialize::SerializePieProp(record, prop, "property");
    Json property = Json::parse(record.Text())["property"];
    property["PieBasicProp"][kNames] = names;
    return {{"title", "Sales by region"},
            {"description", "Figures made up as an example; put your own in their place."},
            {"source", ""},
            {"property", property},
            {"data", {{"values", {42.5, 31, 18.2, 8.3}}}},
            {"location", "0 0"},
            {"labelOffsets", Json::array()},
            {"legendOffset", "0 0"}};
}

} // namespace cli
