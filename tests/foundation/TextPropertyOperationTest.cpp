#include "foundation/TextPropertyOperation.h"

#include "penlode/recording/RecordingEngine.h"
#include "support/Texts.h"

#include <gtest/gtest.h>

using namespace millichart;
using penlode::PointF;
using penlode::SizeF;

// Text sizes here: a character below U+0100 is half the font's size wide, others the whole; a line is 1.25
// sizes high.

namespace {

TextProperty Turned(std::int32_t angle) {
    TextProperty property;
    property.Angle = angle;
    return property;
}

void ExpectNear(SizeF actual, SizeF expected) {
    EXPECT_NEAR(actual.Width, expected.Width, 1e-4F);
    EXPECT_NEAR(actual.Height, expected.Height, 1e-4F);
}

} // namespace

TEST(TextPropertyOperation, CornersTurnCounterClockwise) {
    std::vector<PointF> corners(7);
    CTextPropertyOperation::GetTextBound("ABCD", Turned(30), corners);
    const std::vector<PointF> expected{{0, 0}, {6.9282F, -4.0F}, {9.4282F, 0.3301F}, {2.5F, 4.3301F}};
    ASSERT_EQ(corners.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_NEAR(corners[i].X, expected[i].X, 1e-4F) << i;
        EXPECT_NEAR(corners[i].Y, expected[i].Y, 1e-4F) << i;
    }
}

// The constants of the turn have nine and ten digits; what they leave at a right angle tells them from
// others.
TEST(TextPropertyOperation, RightAnglesKeepTheRestOfTheirConstants) {
    std::vector<PointF> corners;
    CTextPropertyOperation::GetTextBound("ABCD", Turned(90), corners);
    EXPECT_NEAR(corners[1].X, 1.4359e-8, 1e-11);
    CTextPropertyOperation::GetTextBound("ABCD", Turned(0), corners);
    EXPECT_NEAR(corners[3].X, 8.9745e-9, 1e-12);
}

TEST(TextPropertyOperation, SizeOfTurnedTexts) {
    ExpectNear(CTextPropertyOperation::GetTextSize("ABCD", Turned(0)), {8, 5});
    ExpectNear(CTextPropertyOperation::GetTextSize("ABCD", Turned(90)), {5, 8});
    ExpectNear(CTextPropertyOperation::GetTextSize("ABCD", Turned(180)), {8, 5});
    ExpectNear(CTextPropertyOperation::GetTextSize("ABCD", Turned(-90)), {5, 8});
    ExpectNear(CTextPropertyOperation::GetTextSize("ABCD", Turned(450)), {5, 8});
    ExpectNear(CTextPropertyOperation::GetTextSize(Narrow(L"深度\n(m)"), Turned(0)), {8, 10});
}

TEST(TextPropertyOperation, AnEmptyTextOrFontHasNoSizeAtAnyAngle) {
    for (const std::int32_t angle : {0, 37, 90, -180}) {
        EXPECT_EQ(CTextPropertyOperation::GetTextSize("", Turned(angle)), SizeF{});
        std::vector<PointF> corners;
        CTextPropertyOperation::GetTextBound("", Turned(angle), corners);
        EXPECT_EQ(corners, std::vector<PointF>(4));
        TextProperty fontless = Turned(angle);
        fontless.Font = nullptr;
        EXPECT_EQ(CTextPropertyOperation::GetTextSize("text", fontless), SizeF{});
    }
}

TEST(TextPropertyOperation, FillsFramesAndWritesInAContainerOfItsOwn) {
    TextProperty property = Turned(90);
    property.DrawBackGround = 1;
    property.DrawEdge = 1;
    property.BkColor = penlode::Color{0xFFEEEEEE};
    property.EdgeColor = penlode::Color{0xFF00FF00};
    property.TextColor = penlode::Color{0xFF0000FF};
    property.Prefix = "not applied";

    penlode::CRecordingEngine engine;
    engine.SetPageScale(2.0F);
    engine.RotateTransform(30.0F, penlode::MatrixOrder::Prepend);
    penlode::Matrix before;
    engine.GetTransform(&before);
    engine.Clear();
    CTextPropertyOperation::DrawTextAtBottomCenter(&engine, "AB", property, {10, 20});
    EXPECT_EQ(engine.Text(), "BeginContainer 1\n"
                             "SetPageScale 2\n"
                             "SetPageUnit millimeter\n"
                             "TranslateTransform 10 18 prepend\n"
                             "RotateTransform -90 prepend\n"
                             "FillRectangle #FFEEEEEE (-2 -2.5 4 5)\n"
                             "DrawRectangle #FF00FF00/0.1 (-2 -2.5 4 5)\n"
                             "DrawString \"AB\" 宋体/4 (-2 -2.5 4 5.5) center-center #FF0000FF\n"
                             "EndContainer 1\n");
    penlode::Matrix after;
    engine.GetTransform(&after);
    EXPECT_EQ(after, before);
    EXPECT_EQ(engine.GetPageScale(), 2.0F);
    EXPECT_EQ(engine.GetPageUnit(), penlode::Unit::Millimeter);
}

TEST(TextPropertyOperation, LeftCenterUsesTheTurnedWidthAndPlainTextHasNoBox) {
    penlode::CRecordingEngine engine;
    CTextPropertyOperation::DrawTextAtLeftCenter(&engine, "AB", Turned(90), {10, 20});
    EXPECT_NE(engine.Text().find("TranslateTransform 12.5 20 prepend\n"), std::string::npos);
    EXPECT_EQ(engine.Text().find("Rectangle"), std::string::npos);
}
