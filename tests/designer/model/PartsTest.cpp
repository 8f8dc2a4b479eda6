#include "model/ChartEdits.h"
#include "model/DataTable.h"
#include "penlode/text/StringUtil.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace designer;
using enum millichart::PartKind;
using millichart::ChartDocument;
using millichart::ChartPart;
using millichart::LaidOutChart;
using penlode::Color;
using penlode::PointF;
using penlode::RectF;

ChartDocument New(const char* kind) {
    return ChartDocument::FromText(std::string(millichart::FindChartKind(kind)->Template));
}

/// All that can be moved freely.
std::vector<ChartPart> FreeParts(const LaidOutChart& chart) {
    std::vector<ChartPart> parts;
    for (const std::size_t half : {0U, 1U}) {
        for (std::size_t i = 0; i < 20; ++i) {
            parts.push_back({SliceLabel, i, 0, half});
        }
        parts.push_back({Legend, 0, 0, half});
    }
    std::erase_if(parts,
                  [&chart](const ChartPart& part) { return MobilityOf(chart, part) != Mobility::Free; });
    return parts;
}

bool IsNear(const RectF& a, const RectF& b) {
    return std::hypot(a.X - b.X, a.Y - b.Y) < 1e-3F;
}

RectF PlaceOf(const ChartDocument& document, const ChartPart& part) {
    return MovedPlace(document, document.LayOut(), part, {}).value_or(RectF());
}

TEST(PartsTest, EachPartComesWhereItIsDraggedAndBackAndTheOtherLabelsStay) {
    constexpr PointF kBy{3.0F, -2.0F};
    const std::map<std::string, std::size_t> labels{
        {"pie", 5}, {"half-pie", 3}, {"half-pie-half-pie", 6}, {"half-pie-histogram", 3}};
    for (const auto& [kind, least] : labels) {
        const ChartDocument before = New(kind.c_str());
        const LaidOutChart chart = before.LayOut();
        const std::vector<ChartPart> parts = FreeParts(chart);
        EXPECT_GE(parts.size(), least) << kind;
        for (const ChartPart& moved : parts) {
            ChartDocument after = before;
            const std::optional<RectF> told = MovedPlace(after, chart, moved, kBy);
            MovePart(after, chart, moved, kBy);
            for (const ChartPart& part : parts) {
                const RectF place = PlaceOf(after, part);
                if (part == moved) {
                    EXPECT_TRUE(told && IsNear(place, *told)) << kind << moved.Index;
                    EXPECT_TRUE(IsNear(place, penlode::Translated(PlaceOf(before, part), kBy)));
                } else if (part.Kind == SliceLabel) {
                    EXPECT_TRUE(IsNear(place, PlaceOf(before, part))) << kind << moved.Index << part.Index;
                }
            }
            ResetPart(after, after.LayOut(), moved);
            EXPECT_TRUE(IsNear(PlaceOf(after, moved), PlaceOf(before, moved))) << kind;
        }
    }
}

TEST(PartsTest, AMovedLegendLeavesTheLabelsOutOfTheDocument) {
    ChartDocument document = New("pie");
    MovePart(document, document.LayOut(), {LegendName, 1}, {0.5F, 0.0F});
    const auto& pie = std::get<millichart::PieDocument>(document.Content);
    EXPECT_EQ(pie.LegendOffset, (PointF{0.5F, 0.0F}));
    EXPECT_EQ(pie.LabelOffsets, std::get<millichart::PieDocument>(New("pie").Content).LabelOffsets);
}

TEST(PartsTest, TheLegendOfBarsAndLinesIsDockedWhereItIsDropped) {
    using namespace millichart::LegendPosition;
    for (const char* kind : {"histogram", "curve"}) {
        for (const auto& [target, place] : {std::pair(PointF{-0.8F, -0.4F}, LeftTop),
                                            {{0.9F, 0.0F}, RightCenter},
                                            {{0.8F, 0.45F}, RightBottom},
                                            {{0.0F, -0.9F}, TopCenter},
                                            {{-0.4F, 0.9F}, BottomLeft},
                                            {{0.4F, 0.9F}, BottomRight}}) {
            ChartDocument document = New(kind);
            const LaidOutChart chart = document.LayOut();
            ASSERT_EQ(MobilityOf(chart, {Legend}), Mobility::Docked) << kind;
            const RectF plot = kind[0] == 'h'
                                   ? std::get<millichart::CBasicHistogram>(chart.Chart).GetLayout().Plot
                                   : std::get<millichart::CBasicCurve>(chart.Chart).GetLayout().Plot;
            const PointF to{plot.Center().X + target.X * plot.Width,
                            plot.Center().Y + target.Y * plot.Height};
            const PointF by = to - PlaceOf(document, {Legend}).Center();
            const std::optional<RectF> told = MovedPlace(document, chart, {Legend}, by);
            MovePart(document, chart, {Legend}, by);
            const std::int32_t found =
                kind[0] == 'h'
                    ? std::get<millichart::HistogramDocument>(document.Content).Prop.Legend.LegendPos
                    : std::get<millichart::CurveDocument>(document.Content).Prop.Legend.LegendPos;
            EXPECT_EQ(found, place) << kind;
            EXPECT_TRUE(told && IsNear(*told, PlaceOf(document, {Legend}))) << kind << place;
        }
    }
    EXPECT_EQ(MobilityOf(New("histogram").LayOut(), {GroupName}), Mobility::None);
}

TEST(PartsTest, NamesAreEditedInTheChartAndItsTable) {
    struct Edit {
        const char* Kind;
        ChartPart Part;
        std::size_t Row;
        std::size_t Column;
    };

    for (const auto& [kind, part, row, column] : {Edit{"pie", {LegendName, 1}, 1, 0},
                                                  {"half-pie", {SliceLabel, 2}, 2, 0},
                                                  {"half-pie-half-pie", {SliceLabel, 1, 0, 1}, 1, 0},
                                                  {"half-pie-histogram", {SliceLabel, 1}, 1, 0},
                                                  {"histogram", {GroupName, 1}, 1, 0},
                                                  {"histogram", {LegendName, 1}, 0, 2},
                                                  {"curve", {LegendName, 0}, 0, 1}}) {
        ChartDocument document = New(kind);
        const LaidOutChart chart = document.LayOut();
        const auto shown = [&, row = row, column = column, part = part] {
            const DataTable table = TablesOf(document.Content, 0).at(part.Part);
            return column == 0 ? table.Text(row, 0) : table.Heading(column);
        };
        ASSERT_EQ(EditableText(document, chart, part), shown()) << kind;
        SetText(document, chart, part, "新名");
        EXPECT_EQ(shown(), "新名") << kind;
        EXPECT_EQ(EditableText(document, document.LayOut(), part), "新名") << kind;
        EXPECT_EQ(ChartDocument::FromText(document.Text()).Content == document.Content, true) << kind;
    }
    ChartDocument pie = New("pie");
    std::get<millichart::PieDocument>(pie.Content).Prop.Label.ShowNameLabel = 0;
    EXPECT_FALSE(EditableText(pie, pie.LayOut(), {SliceLabel, 0})) << "a label of numbers";
    EXPECT_FALSE(EditableText(pie, pie.LayOut(), {Slice, 0}));
}

TEST(PartsTest, CaptionsAreSwitchedOnAndKeepWhatHoldsThemOff) {
    ChartDocument bars = New("histogram");
    auto& prop = std::get<millichart::HistogramDocument>(bars.Content).Prop;
    prop.VerAxis.VerCaption = "tons\n";
    prop.VerAxis.ShowVerCaption = 0;
    const LaidOutChart chart = bars.LayOut();
    EXPECT_EQ(EditableText(bars, chart, {VerCaption}), "tons");
    SetText(bars, chart, {VerCaption}, "吨");
    EXPECT_EQ(prop.VerAxis.VerCaption, penlode::CStringUtil::Utf8ToAnsi("吨\n"));
    EXPECT_EQ(prop.VerAxis.ShowVerCaption, 1);
    EXPECT_EQ(FactsOf(bars, chart, {VerAxis}).Name, "吨");

    ChartDocument halves = New("half-pie-half-pie");
    SetText(halves, halves.LayOut(), {Caption, 0, 0, 1}, "second");
    EXPECT_EQ(halves.Options.SecondTitle.Caption, "second");
    EXPECT_EQ(halves.Options.SecondTitle.ShowCaption, 1);
    SetText(halves, halves.LayOut(), {Caption, 0, 0, 1}, "");
    EXPECT_EQ(halves.Options.SecondTitle.ShowCaption, 0);
}

TEST(PartsTest, AColourIsSetForOneAndTheOthersStay) {
    constexpr Color kRed{0xFFFF0000U};

    struct Edit {
        const char* Kind;
        ChartPart Part;
        ChartPart Same;
        ChartPart Other;
    };

    for (const std::int32_t palette : {millichart::ChartPalette::Record, millichart::ChartPalette::Safe}) {
        for (const auto& [kind, part, same, other] :
             {Edit{"pie", {Slice, 1}, {LegendSample, 1}, {Slice, 2}},
              {"half-pie-half-pie", {SliceLabel, 1, 0, 1}, {Slice, 1, 0, 1}, {Slice, 1}},
              {"half-pie-histogram", {Bar, 2, 1, 1}, {Bar, 0, 1, 1}, {Slice, 1}},
              {"histogram", {LegendSample, 0}, {Bar, 3, 0}, {Bar, 3, 1}},
              {"curve", {CurvePoint, 0, 3}, {LegendName, 0}, {Curve, 1}}}) {
            ChartDocument document = New(kind);
            document.Options.Palette = palette;
            const LaidOutChart chart = document.LayOut();
            const std::optional<Color> before = ColorOf(document, chart, other);
            ASSERT_TRUE(before && ColorOf(document, chart, part) != kRed) << kind;
            SetColor(document, chart, part, kRed);
            const LaidOutChart after = document.LayOut();
            EXPECT_EQ(ColorOf(document, after, same), kRed) << kind;
            EXPECT_EQ(ColorOf(document, after, other), before) << kind;
        }
    }
    EXPECT_FALSE(ColorOf(New("pie"), New("pie").LayOut(), {Legend}));
    EXPECT_FALSE(ColorOf(New("pie"), New("pie").LayOut(), {Slice, 99}));
}

TEST(PartsTest, MarkersThatHaveTheirLinesColourKeepIt) {
    ChartDocument document = ChartDocument::FromText(R"({"kind": "curve", "property": {"CurvePlotProp": {
        "CurveColor": ["#111111", "#222222"], "CurveDotColor": ["#111111", "#333333"]}},
        "data": {"curves": [{"values": [1, 2]}, {"values": [3, 4]}]}})");
    for (const std::size_t curve : {0U, 1U}) {
        SetColor(document, document.LayOut(), {Curve, curve}, penlode::kWhite);
    }
    const auto& plot = std::get<millichart::CurveDocument>(document.Content).Prop.Plot;
    EXPECT_EQ(plot.CurveDotColor, (std::vector<Color>{penlode::kWhite, Color{0xFF333333U}}));
}

TEST(PartsTest, FactsSayWhatIsUnderTheMouse) {
    const ChartDocument pie = ChartDocument::FromText(
        R"({"kind": "pie", "property": {"PieBasicProp": {"ComponentName": ["甲", "乙"]}}, "data": {"values": [12.5, 37.5]}})");
    const PartFacts slice = FactsOf(pie, pie.LayOut(), {Slice, 0});
    EXPECT_EQ(slice.Name + "|" + slice.Value + "|" + slice.Share, "甲|12.5|25.0%");

    const ChartDocument bars = ChartDocument::FromText(
        R"({"kind": "histogram", "property": {"HistogramPlotProp": {"ComponentName": ["进口", "出口"]}},
            "data": {"groups": [{"name": "一月", "values": [1, null]}, {"name": "二月", "values": [3, 0.1]}]}})");
    const LaidOutChart laidOut = bars.LayOut();
    EXPECT_EQ(FactsOf(bars, laidOut, {Bar, 1, 1}).Name, "二月 · 出口");
    EXPECT_EQ(FactsOf(bars, laidOut, {Bar, 1, 1}).Value, "0.1");
    EXPECT_EQ(FactsOf(bars, laidOut, {Bar, 0, 1}).Value, "");
    EXPECT_EQ(FactsOf(bars, laidOut, {GroupName, 1}).Name, "二月");
    EXPECT_EQ(FactsOf(bars, laidOut, {Plot}).Name, "");

    const ChartDocument lines = ChartDocument::FromText(
        R"({"kind": "curve", "options": {"TimeUnit": "Days"},
            "data": {"curves": [{"name": "水位", "values": [1, 2.25, null], "times": [0, 19797, 19800]}]}})");
    const LaidOutChart chart = lines.LayOut();
    EXPECT_EQ(FactsOf(lines, chart, {CurvePoint, 0, 1}).Name, "水位 · 2024-03-15");
    EXPECT_EQ(FactsOf(lines, chart, {CurvePoint, 0, 1}).Value, "2.25");
    EXPECT_EQ(FactsOf(lines, chart, {CurvePoint, 0, 2}).Value, "");
    EXPECT_EQ(FactsOf(lines, chart, {CurvePoint, 0, 99}).Name, "水位");
    EXPECT_EQ(FactsOf(lines, chart, {Curve, 0}).Name, "水位");
}

} // namespace
