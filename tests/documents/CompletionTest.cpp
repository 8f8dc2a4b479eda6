#include "charts/cartesian/LogarithmCoordinate.h"
#include "charts/cartesian/NaturalCoordinate.h"
#include "documents/ChartDocument.h"
#include "documents/Forms.h"
#include "penlode/text/StringUtil.h"

#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

using namespace millichart;
using penlode::Color;

ChartDocument Loaded(const std::string& text) {
    return ChartDocument::FromText(text, "t.json");
}

std::string Told(const std::vector<penlode::Diagnostic>& diagnostics) {
    std::string told;
    for (const penlode::Diagnostic& diagnostic : diagnostics) {
        told += diagnostic.Severity == penlode::Severity::Note
                    ? ""
                    : diagnostic.Place + ": " + diagnostic.Text + "\n";
    }
    return told;
}

TEST(FittedRange, IsAskedForByOneWordThatStays) {
    ChartDocument document = Loaded(R"({"kind": "histogram", "range": "fit",
        "data": {"groups": [{"values": [101, -20]}, {"values": [3]}]}})");
    EXPECT_EQ(Told(document.Diagnostics()), "");
    double range[4];
    const auto take = [&range](const LaidOutChart& chart) {
        std::get<CBasicHistogram>(chart.Chart).GetNaturalValueRange(range[0], range[1], range[2], range[3]);
    };
    take(document.LayOut());
    EXPECT_EQ(range[0], -25.0);
    EXPECT_EQ(range[1], 125.0);
    auto& bars = std::get<HistogramDocument>(document.Content);
    bars.Data.Values[0][0] = 37.0;
    EXPECT_TRUE(Loaded(document.Text()).Content == document.Content);
    bars.Prop.Plot.Juxtaposition = 0; // of a stack the sums on the way count
    bars.Data.Values[0] = {30.0, 28.0};
    take(document.LayOut());
    EXPECT_EQ(range[1], 60.0);
    bars.Range = {};
    bars.Range.Natural = {{0.0, 80.0, 10.0, 5.0}};
    EXPECT_TRUE(Loaded(document.Text()).Content == document.Content);
    EXPECT_EQ(Told(document.LayOut().Diagnostics), "");
    const LaidOutChart onHalfPie = Loaded(R"({"kind": "half-pie-histogram", "range": "fit",
        "data": {"values": [1], "groups": [{"values": [101, 40]}]}})")
                                       .LayOut();
    std::get<CBasicHalfPieHistogram>(onHalfPie.Chart)
        .GetHistogram()
        .GetNaturalValueRange(range[0], range[1], range[2], range[3]);
    EXPECT_EQ(range[1], 120.0);
}

TEST(ShortForms, AreReadAsTheLongOnes) {
    for (const auto& [text, argb] :
         std::initializer_list<std::pair<const char*, std::uint32_t>>{{" SteelBlue ", 0xFF4682B4U},
                                                                      {"aliceblue", 0xFFF0F8FFU},
                                                                      {"yellowgreen", 0xFF9ACD32U},
                                                                      {"transparent", 0U},
                                                                      {"#36C", 0xFF3366CCU},
                                                                      {"rgb(51, 102,204)", 0xFF3366CCU},
                                                                      {"rgba(51,102,204,0.5)", 0x803366CCU},
                                                                      {"#803366CC", 0x803366CCU}}) {
        const auto color = documents::ColorOf(text);
        ASSERT_TRUE(color) << text;
        EXPECT_EQ(color->Argb, argb) << text;
    }
    for (const char* none :
         {"", "bluish", "#12", "#1234", "rgb(1,2)", "rgb(1,2,256)", "rgb(1,2,3,4)", "rgb(1,2,3"}) {
        EXPECT_FALSE(documents::ColorOf(none)) << none;
    }
    EXPECT_EQ(documents::LengthOf("1.2 cm"), 12.0);
    EXPECT_EQ(documents::LengthOf("0.5in"), 12.7);
    EXPECT_FALSE(documents::LengthOf("5 km"));
    EXPECT_FALSE(documents::LengthOf("mm"));
    EXPECT_EQ(documents::PenForm("rgb(255, 0, 0) 1cm dash"), "#FFFF0000 10 dash");
    EXPECT_EQ(documents::PenForm("red"), "#FFFF0000 ");
    EXPECT_EQ(documents::FontForm("Times New Roman 72pt bold italic"), "Times New Roman 25.4 bold italic");
    EXPECT_EQ(documents::FontForm("Arial 4 bold"), "Arial 4 bold");
    EXPECT_EQ(documents::PointForm("1cm 2.5"), "10 2.5");
}

constexpr const char* kShortForms = R"({"kind": "histogram", "location": "1cm 2", "property": {
  "CaptionProp": {"Caption": "5cm", "CaptionTextProperty": {"Font": "Arial 72pt", "TextColor": "red"}},
  "HistogramPlotProp": {"PlotWidth": "10cm", "EdgePen": "navy 72pt dot", "ConponentInfoSeparator": "#36C",
                        "ComponentColor": ["#36C", "tomato"]}},
  "data": {"groups": [{"values": [1, 2, 3]}]}})";

TEST(ShortForms, StandWhereTheirKindOfValueDoesAndStayWhenSaved) {
    ChartDocument document = Loaded(kShortForms);
    EXPECT_EQ(Told(document.Diagnostics()), "");
    auto& prop = std::get<HistogramDocument>(document.Content).Prop;
    EXPECT_EQ(document.Location, (penlode::PointF{10.0F, 2.0F}));
    EXPECT_EQ(prop.Caption.Caption, "5cm");
    EXPECT_EQ(prop.Caption.CaptionTextProperty.Font->Size, 25.4F);
    EXPECT_EQ(prop.Caption.CaptionTextProperty.TextColor.Argb, 0xFFFF0000U);
    EXPECT_EQ(prop.Plot.PlotWidth, 100.0F);
    EXPECT_TRUE(*prop.Plot.EdgePen == penlode::Pen(Color{0xFF000080U}, 25.4F, penlode::DashStyle::Dot));
    EXPECT_EQ(prop.Plot.ConponentInfoSeparator, "#36C");
    EXPECT_EQ(prop.Plot.ComponentColor[1].Argb, 0xFFFF6347U);
    prop.Plot.PlotHeight = 55.0F;
    prop.Caption.CaptionTextProperty.Font->Size = 4.0F;
    const std::string saved = document.Text();
    for (const char* kept : {"\"10cm\"", "\"tomato\"", "\"navy 72pt dot\"", "\"Font\": \"Arial 4\""}) {
        EXPECT_NE(saved.find(kept), std::string::npos) << kept << saved;
    }
    EXPECT_TRUE(Loaded(saved).Content == document.Content);
    EXPECT_EQ(
        Told(Loaded(R"({"kind": "pie", "data": {"values": [1]}, "property": {"PieLabelProp": {
        "PieLabelTextProperty": {"Font": "Arial 3", "字体": "Arial 4"}}}})")
                 .Diagnostics()),
        "property/PieLabelProp/PieLabelTextProperty/Font: found \"Arial 3\", expected either it or 字体\n");
}

TEST(Completion, FillsUpShortLists) {
    const LaidOutChart bars = Loaded(kShortForms).LayOut();
    const HistogramPlotProp& plot = std::get<CBasicHistogram>(bars.Chart).GetHistogramProp().Plot;
    EXPECT_EQ(plot.ComponentName.size(), 3U);
    ASSERT_EQ(plot.ComponentColor.size(), 3U);
    EXPECT_EQ(plot.ComponentColor[2].Argb, 0xFF57A168U) << "the palette's third";
    const LaidOutChart lines = Loaded(R"({"kind": "curve", "property": {"CurvePlotProp": {"CurveName": ["a"],
        "CurveColor": ["#E58A3C"], "CurveWidth": [0.8], "CurveDotStyle": ["solid_square", "solid_circle"]}},
        "data": {"curves": [{"values": [1, 2]}, {"values": [2, 1]}, {"values": [2, 2]}]}})")
                                   .LayOut();
    const CurvePlotProp& curves = std::get<CBasicCurve>(lines.Chart).GetCurveProp().Plot;
    EXPECT_EQ(curves.CurveName.size(), 3U) << "a curve without a name is drawn";
    EXPECT_EQ(curves.CurveColor[1].Argb, 0xFF57A168U) << "the palette's second is there";
    EXPECT_NE(curves.CurveColor[2], curves.CurveColor[1]);
    EXPECT_EQ(curves.CurveDotColor, curves.CurveColor);
    EXPECT_EQ(curves.CurveWidth, std::vector<float>(3, 0.8F));
    EXPECT_EQ(curves.CurveDotStyle[2], CurveDotStyle::SolidTriangle);
    EXPECT_EQ(Told(lines.Diagnostics),
              "property/CurvePlotProp/CurveName: found 1 name, expected 3, one a curve\n");
}

TEST(Completion, OfAShortDocumentHasTextsWithoutBoxes) {
    const ChartDocument document = Loaded(R"({"kind": "histogram", "data": {"groups": [
        {"name": "a", "values": [3]}, {"name": "b", "values": [4]}]}, "property": {"HistogramVerAxisProp": {
        "VerAxisLabelTextProperty": {"TextColor": "#FF00FF"}}}})");
    const HistogramProp& prop = std::get<HistogramDocument>(document.Content).Prop;
    for (const TextProperty* look :
         {&prop.VerAxis.VerAxisLabelTextProperty, &prop.HorAxis.GroupNameTextProperty}) {
        EXPECT_EQ(look->DrawBackGround, 0);
        EXPECT_EQ(look->DrawEdge, 0);
        EXPECT_EQ(look->BkColor, penlode::kWhite);
        EXPECT_EQ(look->Font->Size, 3.4F);
    }
    EXPECT_NE(prop.VerAxis.ShowVerAxis, 0);
    EXPECT_EQ(std::get<CBasicHistogram>(document.LayOut().Chart).GetHistogramProp().Legend.ShowLegend, 0)
        << "one component needs none";
    const auto isTold = [&](const char* place, const char* taken) {
        const auto& notes = document.Diagnostics();
        return std::any_of(notes.begin(), notes.end(), [&](const penlode::Diagnostic& note) {
            return note.Place == place && note.Expected == taken;
        });
    };
    EXPECT_TRUE(isTold("property/HistogramVerAxisProp/VerAxisLabelTextProperty/DrawEdge", "0"));
    EXPECT_TRUE(isTold("property/HistogramPlotProp/PlotWidth", "110"));
}

TEST(Completion, LabelsWholeTimesWhereNoEqualPartsDivideThem) {
    const auto labelsOf = [](const char* times, const char* axis) {
        const ChartDocument document =
            Loaded(std::string(R"({"kind": "curve", "data": {"curves": [{"values": [1, 2], "times": )") +
                   times + "}]}, \"property\": {\"CurveHorAxisProp\": " + axis + "}}");
        std::string labels;
        for (const ChartText& text : TextsOf(std::get<CBasicCurve>(document.LayOut().Chart))) {
            if (text.Owner.Role == TextRole::HorAxisLabel) {
                labels += penlode::CStringUtil::WideToUtf8(text.Text) + " ";
            }
        }
        return labels;
    };
    EXPECT_EQ(labelsOf("[1, 12]", "{}"), "1 2 3 4 5 6 7 8 9 10 11 12 ");
    EXPECT_EQ(labelsOf("[1, 30]", "{}"), "1 6 11 16 21 26 ");
    EXPECT_EQ(labelsOf("[1, 30]", "{\"LabelStep\": 1}"), "1 30 ") << "as documents are that name a step";
    EXPECT_EQ(labelsOf("[1, 10008]", "{}"), "1 10008 ");
    EXPECT_EQ(labelsOf("[0, 100]", "{}"), "0 10 20 30 40 50 60 70 80 90 100 ");
}

TEST(FitTo, MakesTheWholeFigureAsLargeAsAskedFor) {
    for (const penlode::SizeF figure : {penlode::SizeF{80.0F, 60.0F}, penlode::SizeF{210.0F, 148.0F}}) {
        for (const ChartKind& kind : ChartKinds()) {
            ChartDocument document = ChartDocument::FromText(std::string(kind.Template));
            ASSERT_TRUE(document.FitTo(figure)) << kind.Name << " " << figure.Width;
            const penlode::RectF ink = document.LayOut().FullExtent();
            const bool hasPlot = std::holds_alternative<HistogramDocument>(document.Content) ||
                                 std::holds_alternative<CurveDocument>(document.Content);
            const float spareWidth = figure.Width - ink.Width;
            const float spareHeight = figure.Height - ink.Height;
            // A label that is left out takes some width with it.
            EXPECT_GE(std::min(spareWidth, spareHeight), -0.1F) << kind.Name;
            EXPECT_LE(std::min(spareWidth, spareHeight), 2.5F) << kind.Name;
            if (hasPlot) {
                EXPECT_LE(std::max(spareWidth, spareHeight), 4.0F) << kind.Name;
            }
            EXPECT_TRUE(ChartDocument::FromText(document.Text()).Content == document.Content) << kind.Name;
        }
    }
}

TEST(FitTo, HoldsForDeepBarsWideCaptionsAndManyGroups) {
    std::string groups;
    for (int i = 0; i < 40; ++i) {
        groups +=
            std::string(i == 0 ? "" : ", ") + "{\"name\": \"" + std::to_string(i) + "\", \"values\": [1, 2]}";
    }
    for (const char* look :
         {R"("HistogramPlotProp": {"PieStyle": "3D", "GroupDistane": 10})",
          R"("CaptionProp": {"Caption": "A caption that is quite a bit wider than its plot is"})",
          R"("HistogramLegendProp": {"ShowLegend": 1, "LegendPos": "BottomCenter"})"}) {
        ChartDocument document = Loaded(R"({"kind": "histogram", "data": {"groups": [)" + groups +
                                        "]}, \"property\": {" + look + "}}");
        ASSERT_TRUE(document.FitTo({120.0F, 70.0F})) << look;
        const LaidOutChart chart = document.LayOut();
        EXPECT_NEAR(chart.FullExtent().Width, 120.0F, 0.1F) << look;
        EXPECT_NEAR(chart.FullExtent().Height, 70.0F, 0.1F) << look;
        const HistogramLayout& layout = std::get<CBasicHistogram>(chart.Chart).GetLayout();
        EXPECT_GT(layout.GroupGap, 0.0F);
        EXPECT_GT(layout.ComponentWidth, layout.GroupGap * 0.3F) << "groups have room";
    }
}

TEST(FitTo, LeavesRoomForHalfOfTheOutermostLabelsAndMarkers) {
    ChartDocument document = Loaded(R"({"kind": "curve", "range": {"NaturalValueRange": [0, 4, 2, 1]},
        "property": {"CurvePlotProp": {"CurveDotStyle": ["solid_circle"], "CurveDotWidth": [3]}},
        "data": {"labels": ["0", "2"], "curves": [{"times": [0, 1], "values": [0, 4]}]}})");
    ASSERT_TRUE(document.FitTo({80.0F, 60.0F}));
    const LaidOutChart chart = document.LayOut();
    const penlode::RectF figure = chart.FullExtent();
    const penlode::RectF plot = std::get<CBasicCurve>(chart.Chart).GetLayout().Plot;
    EXPECT_NEAR(figure.Width, 80.0F, 0.1F);
    EXPECT_NEAR(figure.Right(), plot.Right() + 1.5F, 0.1F)
        << "half of the marker that stands on the last time";
    EXPECT_LE(figure.Y, plot.Y - 1.45F) << "and on the axis's maximum";
    chart.VisitTexts([&figure](const ChartText& text) {
        EXPECT_LE(text.Box().Right(), figure.Right());
        EXPECT_GE(text.Box().Y, figure.Y);
    });
}

TEST(FitTo, HoldsWhereTheDepthOfBarsFollowsTheWidthOfThePlot) {
    for (const char* look : {R"("Juxtaposition": 0)", R"("GroupDistane": 3)", R"("LogarithmScale": 1)"}) {
        std::string groups = R"({"name": "a", "values": [1, 2]})";
        for (int i = 1; i < 12; ++i) {
            groups += R"(, {"name": "b", "values": [3, 70]})";
            ChartDocument document =
                Loaded(R"({"kind": "histogram", "range": "fit", "data": {"groups": [)" + groups +
                       R"(]}, "property": {"HistogramPlotProp": {"PieStyle": "3D", )" + look + "}}}");
            const penlode::RectF own = document.LayOut().FullExtent();
            EXPECT_TRUE(document.FitTo({own.Width - 1.0F, own.Height + 50.0F})) << look << " " << i;
        }
    }
}

TEST(FitTo, LeavesTheDocumentWhereThereIsNoRoom) {
    ChartDocument document = ChartDocument::FromText(std::string(FindChartKind("histogram")->Template));
    const ChartContent before = document.Content;
    EXPECT_FALSE(document.FitTo({20.0F, 100.0F}));
    EXPECT_FALSE(document.FitTo({100.0F, 0.0F}));
    EXPECT_FALSE(document.FitTo({std::nanf(""), 100.0F}));
    EXPECT_TRUE(document.Content == before);
    EXPECT_FALSE(ChartDocument().FitTo({100.0F, 100.0F}));
    EXPECT_FALSE(Loaded(R"({"kind": "pie", "data": {"values": [0]}})").FitTo({100.0F, 100.0F}));
}

} // namespace
