#include "kinds/PieChart.h"

#include "documents/Fields.h"
#include "kinds/ExampleDocument.h"
#include "kinds/PieSlices.h"
#include "millichart.h"

#include <cmath>

namespace cli {
namespace {

using millichart::PieProp;

/// After these a number of single precision no longer tells the slices apart.
constexpr float kManyTurns = 1e5F;

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

    penlode::RectF InkExtent() const override { return m_pie.InkExtent(); }

    void VisitTexts(const millichart::TextVisitor& visit) const override { m_pie.VisitTexts(visit); }

    void Draw(penlode::IGraphicsEngine& engine) const override { m_pie.Draw(&engine); }

    Json Layout() const override {
        Json json = PieLayoutToJson(m_pie.GetLayout());
        json["legendItemRects"] = ListToJson(m_pie.GetLayout().LegendItemRects);
        return json;
    }

    std::vector<Message> Doubts() const override {
        const millichart::PieBasicProp& basic = m_pie.GetPieProp().Basic;
        std::vector<Message> doubts = m_slices.Doubts(basic, m_pie.GetLayout().Pie.Width);
        if (basic.StartAngle < 0.0F || basic.StartAngle >= millichart::kFullTurn) {
            doubts.push_back({"",
                              std::abs(basic.StartAngle) < kManyTurns ? Severity::Warning : Severity::Error,
                              0, "property/PieBasicProp/StartAngle", NumberText(basic.StartAngle),
                              "an angle from 0 to below 360"});
        }
        return doubts;
    }

    Message Emptiness() const override { return m_slices.Emptiness(); }

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
