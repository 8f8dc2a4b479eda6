#include "PieChart.h"

#include "ExampleDocument.h"
#include "Fields.h"
#include "PieSlices.h"
#include "millichart.h"

namespace cli {
namespace {

using millichart::PieProp;

class PieChart final : public Chart {
public:
    PieChart(ChartStream& stream, const DataSource& source) {
        PieProp prop;
        PieSlices::AllowShortForms(stream);
        millichart::CPiePropSerialize::SerializePieProp(stream, prop, "property");
        m_slices = PieSlices(stream, LoadPieData(stream, source), prop.Basic, "property/PieBasicProp",
                             *source.Messages);
        m_pie.SetPieProp(prop);
        m_pie.SetComponentValue(m_slices.Values());
        m_pie.SetLocation(LoadPoint(stream, "location"));
        const std::vector<penlode::PointF> labelOffsets = LoadPoints(stream, "labelOffsets");
        m_pie.SetChildOffset(labelOffsets, {LoadPoint(stream, "legendOffset")});
        m_pie.Layout();
    }

    penlode::RectF Extent() const override { return m_pie.GetPositionAll(); }

    void Draw(penlode::IGraphicsEngine& engine) const override { m_pie.Draw(&engine); }

    Json Layout() const override {
        Json json = PieLayoutToJson(m_pie.GetLayout());
        json["legendItemRects"] = ListToJson(m_pie.GetLayout().LegendItemRects);
        return json;
    }

    std::vector<Message> Doubts() const override {
        return m_slices.Doubts(m_pie.GetPieProp().Basic, m_pie.GetLayout().Pie.Width);
    }

private:
    millichart::CBasicPie m_pie;
    PieSlices m_slices;
};

PieProp ExampleProp() {
    PieProp prop;
    LookLikeAnExample(prop.Basic, prop.Label);
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
    Json property = SavedRecord(millichart::CPiePropSerialize::SerializePieProp, ExampleProp());
    property["PieBasicProp"]["ComponentName"] = {"North", "East", "South", "West"};
    Json document =
        ExampleDocument("Sales by region", std::move(property), {{"values", {42.5, 31, 18.2, 8.3}}});
    document["labelOffsets"] = Json::array();
    document["legendOffset"] = "0 0";
    return document;
}

} // namespace cli
