#include "foundation/Legend.h"

#include "penlode/recording/RecordingEngine.h"
#include "support/Texts.h"

#include <gtest/gtest.h>

using namespace millichart;
using penlode::RectF;

namespace {

const RectF kPlot{100, 50, 40, 30};

std::vector<RectF> Placed(std::int32_t position, float swatchFactor = 1.0F) {
    LegendProp prop;
    prop.LegendPos = position;
    prop.ItemDist = 1.5F;
    // 2 and 8 mm wide at 4 mm, both 5 mm high
    return CLegendOperation::PlaceItems(prop, {"A", Narrow(L"煤炭")}, kPlot, swatchFactor);
}

} // namespace

TEST(Legend, ColumnsStandBesideThePlot) {
    using Items = std::vector<RectF>;
    EXPECT_EQ(Placed(LegendPosition::LeftTop), (Items{{85, 50, 7, 5}, {85, 56.5F, 13, 5}}));
    EXPECT_EQ(Placed(LegendPosition::LeftCenter), (Items{{85, 59.25F, 7, 5}, {85, 65.75F, 13, 5}}));
    EXPECT_EQ(Placed(LegendPosition::LeftBottom), (Items{{85, 68.5F, 7, 5}, {85, 75, 13, 5}}));
    EXPECT_EQ(Placed(LegendPosition::RightTop), (Items{{142, 50, 7, 5}, {142, 56.5F, 13, 5}}));
    EXPECT_EQ(Placed(LegendPosition::RightCenter), (Items{{142, 59.25F, 7, 5}, {142, 65.75F, 13, 5}}));
    EXPECT_EQ(Placed(LegendPosition::RightBottom), (Items{{142, 68.5F, 7, 5}, {142, 75, 13, 5}}));
}

TEST(Legend, RowsStandAboveAndBelowThePlot) {
    using Items = std::vector<RectF>;
    EXPECT_EQ(Placed(LegendPosition::TopLeft), (Items{{100, 43, 7, 5}, {108.5F, 43, 13, 5}}));
    EXPECT_EQ(Placed(LegendPosition::TopCenter), (Items{{109.25F, 43, 7, 5}, {117.75F, 43, 13, 5}}));
    EXPECT_EQ(Placed(LegendPosition::TopRight), (Items{{118.5F, 43, 7, 5}, {127, 43, 13, 5}}));
    EXPECT_EQ(Placed(LegendPosition::BottomLeft), (Items{{100, 82, 7, 5}, {108.5F, 82, 13, 5}}));
    EXPECT_EQ(Placed(LegendPosition::BottomCenter), (Items{{109.25F, 82, 7, 5}, {117.75F, 82, 13, 5}}));
    EXPECT_EQ(Placed(LegendPosition::BottomRight, 2.0F), (Items{{108.5F, 82, 12, 5}, {122, 82, 18, 5}}));
}

TEST(Legend, UnknownPositionsPlaceNothing) {
    EXPECT_EQ(Placed(12), std::vector<RectF>(2));
    EXPECT_EQ(Placed(-1), std::vector<RectF>(2));
    EXPECT_TRUE(CLegendOperation::PlaceItems({}, {}, kPlot, 1.0F).empty());
}

TEST(Legend, DrawsBoxSquaresAndNames) {
    LegendProp prop;
    prop.ShowLegend = 1;
    prop.ShowBackground = 1;
    prop.BackgroundColor = penlode::Color{0xFFF0F0F0};
    prop.PenEdge = penlode::Pen(penlode::Color{0xFF808080}, 0.3F);
    const std::vector<std::string> names{"A", Narrow(L"煤炭"), "C"};
    penlode::CRecordingEngine engine;
    // One colour is missing, and one name has no rectangle.
    CLegendOperation::Draw(&engine, prop, names, {penlode::Color{0xFF112233}},
                           {{10, 20, 7, 5}, {10, 25, 13, 5}});
    EXPECT_EQ(engine.Text(), "FillRectangle #FFF0F0F0 (10 20 13 10)\n"
                             "DrawRectangle #FF808080/0.3 (10 20 13 10)\n"
                             "FillRectangle #FF112233 (11 21 3 3)\n"
                             "DrawRectangle #FF000000/0.1 (11 21 3 3)\n"
                             "DrawString \"A\" 宋体/4 (15 20 2 5) center-center #FF000000\n"
                             "DrawRectangle #FF000000/0.1 (11 26 3 3)\n"
                             "DrawString \"煤炭\" 宋体/4 (15 25 8 5) center-center #FF000000\n");
}

TEST(Legend, OneThatSitsHasItsBoxItsGapAndARest) {
    LegendProp prop;
    prop.ShowLegend = 1;
    LegendFrame frame;
    frame.Box = {9, 19, 15, 9};
    frame.NameGap = 1.0F;
    frame.LeftOut = 2;
    frame.RestText = "+ 2";
    frame.Rest = {14, 22, 6, 2};
    penlode::CRecordingEngine engine;
    // An item of 2 mm leaves a square of 1 mm.
    CLegendOperation::Draw(engine, prop, {"A", "B", "C"}, std::vector<Fill>{{penlode::Color{0xFF112233}}},
                           {{10, 20, 7, 2}}, frame);
    EXPECT_EQ(engine.Text(), "DrawRectangle #FF000000/0.1 (9 19 15 9)\n"
                             "FillRectangle #FF112233 (10.5 20.5 1 1)\n"
                             "DrawRectangle #FF000000/0.1 (10.5 20.5 1 1)\n"
                             "DrawString \"A\" 宋体/4 (13 20 4 2) center-center #FF000000\n"
                             "DrawString \"+ 2\" 宋体/4 (14 22 6 2) center-center #FF000000\n");
    std::vector<TextOwner> owners;
    CLegendOperation::VisitNames([&](ChartText&& text) { owners.push_back(text.Owner); }, prop,
                                 {"A", "B", "C"}, {{10, 20, 7, 2}}, kLegendSquareFactor, frame);
    EXPECT_EQ(owners, (std::vector<TextOwner>{{TextRole::LegendName, 0}, {TextRole::LegendName, 1}}));
}

TEST(Legend, DrawsNothingWhenOffOrEmpty) {
    LegendProp prop;
    prop.ShowBackground = 1;
    penlode::CRecordingEngine engine;
    CLegendOperation::Draw(&engine, prop, {"A"}, {penlode::kBlack}, {{10, 20, 7, 5}});
    prop.ShowLegend = 1;
    CLegendOperation::Draw(&engine, prop, {"A"}, {penlode::kBlack}, {});
    EXPECT_EQ(engine.Text(), "");

    prop.ShowEdge = 0;
    prop.ShowBackground = 0;
    CLegendOperation::Draw(&engine, prop, {}, {}, {{10, 20, 7, 5}});
    EXPECT_EQ(engine.Text(), "DrawRectangle #FF000000/0.1 (11 21 3 3)\n");

    // An item too low for its margins has a square of negative size, which is the surface's to draw.
    engine.Clear();
    CLegendOperation::Draw(&engine, prop, {}, {}, {{10, 20, 7, 1.5F}});
    EXPECT_EQ(engine.Text(), "DrawRectangle #FF000000/0.1 (11 21 -0.5 -0.5)\n");
}
