#include "kinds/HalfPieChart.h"

#include "documents/Fields.h"
#include "kinds/ExampleDocument.h"
#include "kinds/PieSlices.h"
#include "millichart.h"

namespace cli {
namespace {

using millichart::HalfPieProp;

class HalfPieChart final : public Chart {
public:
    HalfPieChart(ChartStream& stream, const DataSource& source) {
        HalfPieProp prop;
        PieSlices::AllowShortForms(stream);
        millichart::CHalfPiePropSerialize::SerializeHalfPieProp(stream, prop, "property");
        m_slices = PieSlices(stream, LoadPieData(stream, source), prop.Basic, "property/HalfPieBasicProp",
                             *source.Messages);
        m_halfPie.SetHalfPieProp(prop);
        m_halfPie.SetComponentValue(m_slices.Values());
        m_halfPie.SetLocation(LoadPoint(stream, "location"));
        m_halfPie.SetChildOffset(LoadPoints(stream, "labelOffsets"), {});
        m_halfPie.Layout();
    }

    penlode::RectF Extent() const override { return m_halfPie.GetPositionAll(); }

    penlode::RectF InkExtent() const override { return m_halfPie.InkExtent(); }

    void VisitTexts(const millichart::TextVisitor& visit) const override { m_halfPie.VisitTexts(visit); }

    void Draw(penlode::IGraphicsEngine& engine) const override { m_halfPie.Draw(&engine); }

    Json Layout() const override { return PieLayoutToJson(m_halfPie.GetLayout()); }

    std::vector<Message> Doubts() const override {
        return m_slices.Doubts(m_halfPie.GetHalfPieProp().Basic, m_halfPie.GetLayout().Pie.Width);
    }

    Message Emptiness() const override { return m_slices.Emptiness(); }

private:
    millichart::CBasicHalfPie m_halfPie;
    PieSlices m_slices;
};

} // namespace

std::unique_ptr<Chart> LoadHalfPieChart(ChartStream& stream, const DataSource& source) {
    return std::make_unique<HalfPieChart>(stream, source);
}

Json HalfPieExample() {
    HalfPieProp prop;
    LookLikeAnExample(prop.Basic, prop.Label);
    prop.Label.ShowNameLabel = 1;
    prop.Label.LabelSeparator = " ";
    Json property = SavedRecord(millichart::CHalfPiePropSerialize::SerializeHalfPieProp, prop);
    property["HalfPieBasicProp"]["ComponentName"] = {"North", "East", "South", "West"};
    Json document =
        ExampleDocument("Sales by region", std::move(property), {{"values", {42.5, 31, 18.2, 8.3}}});
    document["labelOffsets"] = Json::array();
    return document;
}

} // namespace cli
