#include "foundation/Hatching.h"

#include "penlode/recording/RecordingEngine.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>

using namespace millichart;

namespace {

std::string Hatched(const penlode::RectF& rect, Hatch hatch) {
    penlode::CRecordingEngine engine;
    HatchRectangle(engine, rect, hatch);
    return engine.Text();
}

std::size_t LinesOf(const penlode::RectF& rect, Hatch hatch) {
    const std::string calls = Hatched(rect, hatch);
    std::size_t lines = 0;
    for (std::size_t at = calls.find("DrawLine "); at != std::string::npos;
         at = calls.find("DrawLine ", at + 1)) {
        ++lines;
    }
    return lines;
}

} // namespace

TEST(Hatching, LinesAreCutAtTheShapeAndTheSurfaceComesBack) {
    penlode::CRecordingEngine engine;
    engine.SetPageUnit(penlode::Unit::Millimeter);
    engine.SetClip(penlode::RectF{0, 0, 50, 50}, penlode::CombineMode::Replace);
    penlode::Region before;
    penlode::Region after;
    engine.GetClip(&before);
    HatchRectangle(engine, {10, 20, 4, 3}, Hatch::Horizontal);
    HatchPie(engine, {10, 20, 4, 3}, 30, 90, Hatch::Crossed);
    engine.GetClip(&after);
    EXPECT_EQ(engine.GetPageUnit(), penlode::Unit::Millimeter);
    EXPECT_EQ(before, after);
    EXPECT_EQ(Hatched({10, 20, 4, 3}, Hatch::Horizontal), "BeginContainer 1\n"
                                                          "SetPageScale 1\n"
                                                          "SetPageUnit millimeter\n"
                                                          "SetClip (10 20 4 3) intersect\n"
                                                          "DrawLine #FF303030/0.15 (10 20) (14 20)\n"
                                                          "DrawLine #FF303030/0.15 (10 21.5) (14 21.5)\n"
                                                          "DrawLine #FF303030/0.15 (10 23) (14 23)\n"
                                                          "EndContainer 1\n"
                                                          "DrawRectangle #FF303030/0.15 (10 20 4 3)\n");
}

TEST(Hatching, KindsHaveTheirLines) {
    constexpr penlode::RectF kSquare{0, 0, 6, 6}; // lines at 0, 1.5 and 3 from the middle
    EXPECT_EQ(LinesOf(kSquare, Hatch::None), 0U);
    EXPECT_EQ(LinesOf(kSquare, Hatch::Horizontal), 5U);
    EXPECT_EQ(LinesOf(kSquare, Hatch::Crossed), 10U);
    EXPECT_EQ(LinesOf(kSquare, Hatch::DiagonalCrossed), 2 * LinesOf(kSquare, Hatch::Rising));
    EXPECT_GT(LinesOf(kSquare, Hatch::Dense), LinesOf(kSquare, Hatch::Rising));
}

TEST(Hatching, NothingIsDrawnWithoutExtentNorEndlesslyOnAHugeShape) {
    EXPECT_EQ(Hatched({0, 0, 6, -6}, Hatch::Rising), "");
    EXPECT_EQ(Hatched({0, 0, 6, std::numeric_limits<float>::quiet_NaN()}, Hatch::Rising), "");
    EXPECT_LT(LinesOf({0, 0, 6, 1e30F}, Hatch::Horizontal), 1100U);
}
