#include "kinds/HalfPieHalfPieChart.h"

#include "documents/Fields.h"
#include "kinds/ExampleDocument.h"
#include "kinds/PieSlices.h"
#include "millichart.h"

namespace cli {
namespace {

using millichart::CBasicHalfPie;
using millichart::HalfPieHalfPieProp;
using millichart::HalfPieProp;
using penlode::PointF;

constexpr const char* kFirstPlace = "property/TopHalf/HalfPieBasicProp";
constexpr const char* kSecondPlace = "property/LowerHalf/HalfPieBasicProp";

bool IsUpper(const HalfPieProp& prop) {
    return prop.Basic.WhichPart == millichart::HalfPiePart::Upper;
}

class HalfPieHalfPieChart final : public Chart {
public:
    HalfPieHalfPieChart(ChartStream& stream, const DataSource& source) {
        HalfPieHalfPieProp prop;
        PieSlices::AllowShortForms(stream);
        millichart::CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp(stream, prop, "property");
        HalvesData data = LoadHalvesData(stream, source);
        m_first = PieSlices(stream, std::move(data.First), prop.First.Basic, kFirstPlace, *source.Messages);
        m_second =
            PieSlices(stream, std::move(data.Second), prop.Second.Basic, kSecondPlace, *source.Messages);
        m_chart.SetHalfPieHalfPieProp(prop);
        m_chart.SetComponentValue(m_first.Values(), m_second.Values());
        m_chart.SetLocation(LoadPoint(stream, "location"));
        m_chart.SetChildOffset(LoadLabelOffsets(stream, prop), {});
        m_chart.Layout();
    }

    penlode::RectF Extent() const override { return m_chart.GetPositionAll(); }

    penlode::RectF InkExtent() const override { return m_chart.InkExtent(); }

    void VisitTexts(const millichart::TextVisitor& visit) const override { m_chart.VisitTexts(visit); }

    void Draw(penlode::IGraphicsEngine& engine) const override { m_chart.Draw(&engine); }

    Json Layout() const override {
        return {{"whole", ToJson(m_chart.GetPositionAll())},
                {"first", PieLayoutToJson(m_chart.GetFirstHalf().GetLayout())},
                {"second", PieLayoutToJson(m_chart.GetSecondHalf().GetLayout())}};
    }

    std::vector<Message> Doubts() const override {
        std::vector<Message> doubts = DoubtsOf(m_first, m_chart.GetFirstHalf());
        const std::vector<Message> more = DoubtsOf(m_second, m_chart.GetSecondHalf());
        doubts.insert(doubts.end(), more.begin(), more.end());
        const HalfPieHalfPieProp& prop = m_chart.GetHalfPieHalfPieProp();
        if (IsUpper(prop.First) == IsUpper(prop.Second)) {
            doubts.push_back({"", Severity::Warning, 0, std::string(kSecondPlace) + "/WhichPart", "", "",
                              "fills the same half of the circle as TopHalf and covers it"});
        }
        return doubts;
    }

    Message Emptiness() const override { return m_first.Emptiness(); }

private:
    static std::vector<Message> DoubtsOf(const PieSlices& slices, const CBasicHalfPie& half) {
        return slices.Doubts(half.GetHalfPieProp().Basic, half.GetLayout().Pie.Width);
    }

    /// A list each half.
    std::vector<PointF> LoadLabelOffsets(ChartStream& stream, const HalfPieHalfPieProp& prop) {
        stream.Push("labelOffsets", -1);
        std::vector<PointF> offsets = LoadPoints(stream, "first");
        const std::vector<PointF> second = LoadPoints(stream, "second");
        stream.Pop();
        m_first.DoubtOffsets(offsets.size(), "labelOffsets/first", prop.First.Basic);
        m_second.DoubtOffsets(second.size(), "labelOffsets/second", prop.Second.Basic);
        offsets.push_back(millichart::kHalvesSeparator);
        offsets.insert(offsets.end(), second.begin(), second.end());
        return offsets;
    }

    millichart::CBasicHalfPieHalfPie m_chart;
    PieSlices m_first;
    PieSlices m_second;
};

} // namespace

std::unique_ptr<Chart> LoadHalfPieHalfPieChart(ChartStream& stream, const DataSource& source) {
    return std::make_unique<HalfPieHalfPieChart>(stream, source);
}

Json HalfPieHalfPieExample() {
    HalfPieProp half;
    LookLikeAnExample(half.Basic, half.Label);
    half.Label.ShowNameLabel = 1;
    half.Label.LabelSeparator = " ";
    HalfPieHalfPieProp prop{half, half};
    prop.Second.Basic.WhichPart = millichart::HalfPiePart::Lower;
    Json property = SavedRecord(millichart::CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp, prop);
    const Json names{"North", "East", "South", "West"};
    property["TopHalf"]["HalfPieBasicProp"]["ComponentName"] = names;
    property["LowerHalf"]["HalfPieBasicProp"]["ComponentName"] = names;
    Json document = ExampleDocument(
        "Sales by region, this year and last", std::move(property),
        {{"first", {{"values", {42.5, 31, 18.2, 8.3}}}}, {"second", {{"values", {36, 33, 12.4, 10.1}}}}});
    document["labelOffsets"] = {{"first", Json::array()}, {"second", Json::array()}};
    return document;
}

} // namespace cli
