#include "charts/pie/BasicPie.h"
#include "support/Drawings.h"
#include "support/Texts.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace millichart;
using penlode::Color;

namespace {

PieProp Slices(std::int32_t style, std::vector<std::string> names, std::vector<Color> colors) {
    PieProp prop;
    prop.Basic.PieStyle = style;
    prop.Basic.FixedSize = 1;
    prop.Basic.ComponentName = std::move(names);
    prop.Basic.ComponentColor = std::move(colors);
    return prop;
}

std::string Drawn(const PieProp& prop, const std::vector<double>& values) {
    CBasicPie pie;
    pie.SetPieProp(prop);
    pie.SetComponentValue(values);
    pie.SetLocation({50, 50});
    pie.Layout();
    return ::Drawn(pie);
}

/// The walls that a single slice shows among others, as "from sweep" of the top arcs.
std::string Walls(float startAngle, const std::vector<double>& values) {
    PieProp prop = Slices(PieStyle::WithDepth, {}, std::vector<Color>(1, penlode::kWhite));
    prop.Basic.StartAngle = startAngle;
    const std::string text = Drawn(prop, values);
    const std::string top = "arc (40 40 20 13.5) ";
    std::string walls;
    for (std::size_t at = text.find(top); at != std::string::npos; at = text.find(top, at)) {
        at += top.size();
        walls += (walls.empty() ? "" : ", ") + text.substr(at, text.find(" arc", at) - at);
    }
    return walls;
}

} // namespace

TEST(BasicPieDraw, AFlatPieWithLabelsAndLegend) {
    PieProp prop = Slices(PieStyle::Flat, {Narrow(L"煤"), "Oil"}, {Color{0xFF404040}, Color{0x80C08040}});
    prop.Basic.PenSepLine = penlode::Pen(penlode::kWhite, 0.4F);
    prop.Label.ShowNameLabel = 1;
    prop.Label.PieLabelTextProperty.Angle = 90;
    prop.Legend.ShowLegend = 1;
    prop.Legend.LegendPos = LegendPosition::BottomLeft;
    ExpectDrawing("flat-pie", Drawn(prop, {1, 3}));
}

TEST(BasicPieDraw, APieWithDepth) {
    const PieProp prop =
        Slices(PieStyle::WithDepth, {}, {Color{0x80323DC8}, Color{0xFFFFFFFF}, Color{0xFF808080}});
    EXPECT_EQ(Drawn(prop, {1, 1, 2}),
              "FillPie #80323DC8 (40 40 20 13.5) 180 90\n"
              "FillPie #FFFFFFFF (40 40 20 13.5) 270 90\n"
              "FillPie #FF808080 (40 40 20 13.5) 360 180\n"
              "FillPath #FF444444 arc (40 40 20 13.5) 0 180 arc (40 44.5 20 13.5) 180 -180\n");
    EXPECT_EQ(Drawn(prop, {1}),
              "FillPie #80323DC8 (40 40 20 13.5) 180 360\n"
              "FillPath #FF00018C arc (40 40 20 13.5) 0 180 arc (40 44.5 20 13.5) 180 -180\n");
}

TEST(BasicPieDraw, WallsOfASliceByWhereItBeginsAndHowFarItReaches) {
    EXPECT_EQ(Walls(0, {1, 1}), "0 180");           // ends just where the front does
    EXPECT_EQ(Walls(30, {90, 270}), "30 90");       // within the front
    EXPECT_EQ(Walls(90, {180, 180}), "90 90");      // from the front to the back
    EXPECT_EQ(Walls(90, {300, 60}), "90 90, 0 30"); // round the back to the front again
    EXPECT_EQ(Walls(90, {360}), "90 90, 0 90");     // the whole circle from the front
    EXPECT_EQ(Walls(200, {90, 270}), "");           // within the back
    EXPECT_EQ(Walls(200, {160, 200}), "");          // just up to the front
    EXPECT_EQ(Walls(200, {250, 110}), "0 90");      // from the back into the front
    EXPECT_EQ(Walls(200, {340, 20}), "0 180");      // all over the front
    EXPECT_EQ(Walls(200, {360}), "0 180");
    EXPECT_EQ(Walls(-10, {90, 270}), "");      // outside the turn
    EXPECT_EQ(Walls(400, {90, 270}), "40 90"); // one turn is taken off
    EXPECT_EQ(Walls(720, {90, 270}), "");      // but not two
    EXPECT_EQ(Walls(0, {-90, 450}), "");       // backwards
}

TEST(BasicPieDraw, OutlinesOnlyForAFlagOfOneAndOnlyWhenFlat) {
    PieProp prop = Slices(PieStyle::Flat, {}, {penlode::kBlack});
    EXPECT_EQ(Drawn(prop, {5}), "FillPie #FF000000 (40 40 20 20) 180 360\n"
                                "DrawPie #FF000000/0.1 (40 40 20 20) 180 360\n");
    prop.Basic.DrawSepLine = 2;
    EXPECT_EQ(Drawn(prop, {5}), "FillPie #FF000000 (40 40 20 20) 180 360\n");
    prop.Basic.DrawSepLine = 1;
    prop.Basic.PenSepLine = nullptr;
    EXPECT_EQ(Drawn(prop, {5}), "FillPie #FF000000 (40 40 20 20) 180 360\n");
    prop = Slices(PieStyle::WithDepth, {}, {penlode::kBlack});
    EXPECT_EQ(Drawn(prop, {5}).find("DrawPie"), std::string::npos);
}

TEST(BasicPieDraw, AnUnknownStyleStillHasLabelsAndLegend) {
    PieProp prop = Slices(2, {"A"}, {penlode::kBlack});
    prop.Label.ShowNameLabel = 1;
    prop.Legend.ShowLegend = 1;
    prop.Legend.ShowEdge = 0;
    const std::string text = Drawn(prop, {5});
    EXPECT_EQ(text.find("Pie"), std::string::npos);
    EXPECT_NE(text.find("DrawString \"A\" 宋体/4 (-1 -2.5 2 5.5)"), std::string::npos);
    EXPECT_NE(text.find("FillRectangle #FF000000"), std::string::npos);
}

TEST(BasicPieDraw, MissingColoursAreNotFilled) {
    const PieProp flat = Slices(PieStyle::Flat, {}, {penlode::kWhite});
    EXPECT_EQ(Drawn(flat, {1, 1}), "FillPie #FFFFFFFF (40 40 20 20) 180 180\n"
                                   "DrawPie #FF000000/0.1 (40 40 20 20) 180 180\n"
                                   "DrawPie #FF000000/0.1 (40 40 20 20) 360 180\n");
    const PieProp deep = Slices(PieStyle::WithDepth, {}, {penlode::kWhite});
    EXPECT_EQ(Drawn(deep, {1, 1}), "FillPie #FFFFFFFF (40 40 20 13.5) 180 180\n");
    EXPECT_EQ(Drawn(flat, {}), "");
    EXPECT_EQ(Drawn(deep, {1, -1}), "");
}

TEST(BasicPieDraw, DrawsTheLastLayout) {
    CBasicPie pie;
    pie.SetPieProp(Slices(PieStyle::Flat, {}, {penlode::kBlack}));
    pie.SetComponentValue({1});
    pie.Layout();
    pie.SetLocation({500, 500});
    EXPECT_EQ(Drawn(pie).substr(0, 42), "FillPie #FF000000 (-10 -10 20 20) 180 360\n");
}

TEST(PieEllipse, FacesOfBothStyles) {
    struct Pie : CBasicPie {
        using CBasicPie::Get3DEllipseRect;
        using CBasicPie::GetEllipseRect;
    } pie;

    float depth = 0;
    const penlode::RectF face = pie.Get3DEllipseRect({1, 2, 100, 100}, depth);
    EXPECT_EQ(face, (penlode::RectF{1, 2, 100, 67.5F}));
    EXPECT_EQ(depth, 22.5F);
    EXPECT_EQ(pie.GetEllipseRect({1, 2, 3, 4}), (penlode::RectF{1, 2, 3, 4}));
    pie.SetPieProp(Slices(PieStyle::WithDepth, {}, {}));
    EXPECT_EQ(pie.GetEllipseRect({1, 2, 100, 100}), face);
    pie.SetPieProp(Slices(2, {}, {}));
    EXPECT_EQ(pie.GetEllipseRect({1, 2, 3, 4}), penlode::RectF{});
}
