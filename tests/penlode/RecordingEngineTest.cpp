#include "penlode/recording/RecordingEngine.h"

#include <gtest/gtest.h>

using namespace penlode;

TEST(RecordingEngine, WritesEveryCallOnALine) {
    CRecordingEngine engine;
    const Pen pen(Color{0xFF336699}, 0.2F, DashStyle::DashDot);
    const SolidBrush brush{kWhite};
    const Font font{L"黑体", 3.5F, FontStyle::Bold};
    const StringFormat format{0, 0, StringAlignment::Far, StringAlignment::Center};
    const PointF points[] = {{0, 0}, {1.005F, -0.001F}};
    GraphicsPath path;
    path.AddArc({0, 0, 4, 2}, 0, 90);
    path.CloseFigure();

    engine.DrawLines(&pen, points, 2);
    engine.FillPath(&brush, &path);
    engine.DrawString(L"第\n\"1\"", -1, &font, RectF{1, 2, 3, 4}, &format, &brush);
    engine.SetClip(RectF{0, 0, 1, 1}, CombineMode::Exclude);
    engine.EndContainer(engine.BeginContainer());
    EXPECT_EQ(engine.Text(), "DrawLines #FF336699/0.2/dash-dot [2] (0 0) (1 0)\n"
                             "FillPath #FFFFFFFF arc (0 0 4 2) 0 90 close\n"
                             "DrawString \"第\\n\\\"1\\\"\" 黑体/3.5/1 (1 2 3 4) far-center #FFFFFFFF\n"
                             "SetClip (0 0 1 1) exclude\n"
                             "BeginContainer 1\n"
                             "EndContainer 1\n");
}

TEST(RecordingEngine, NullPointersAreRecordedAndRefused) {
    CRecordingEngine engine;
    EXPECT_EQ(engine.FillEllipse(nullptr, 1, 2, 3, 4), Status::InvalidParameter);
    EXPECT_EQ(engine.DrawString(nullptr, -1, nullptr, PointF{}, nullptr), Status::InvalidParameter);
    const Pen pen;
    EXPECT_EQ(engine.DrawPolygon(&pen, nullptr, 5), Status::InvalidParameter);
    EXPECT_EQ(engine.SetPageScale(0), Status::InvalidParameter);
    EXPECT_EQ(engine.Text(), "FillEllipse null (1 2 3 4)\nDrawString \"\" null (0 0) null\n"
                             "DrawPolygon #FF000000/0.1 null\nSetPageScale 0\n");

    const Font font;
    const SolidBrush brush;
    EXPECT_EQ(engine.DrawString(L"a", -1, &font, RectF{}, nullptr, &brush), Status::Ok);
}

TEST(RecordingEngine, AnswersQueriesFromItsState) {
    CRecordingEngine engine;
    engine.TranslateTransform(3, 4, MatrixOrder::Prepend);
    PointF point;
    engine.TransformPoints(CoordinateSpace::Device, CoordinateSpace::World, &point, 1);
    EXPECT_EQ(point, (PointF{3, 4}));

    RectF bounds;
    std::int32_t characters = 0;
    std::int32_t lines = 0;
    const Font font{L"宋体", 4.0F};
    engine.MeasureString(L"ab\nc", -1, &font, RectF{10, 20, 100, 7}, nullptr, &bounds, &characters, &lines);
    EXPECT_EQ(bounds, (RectF{10, 20, 4, 10}));
    EXPECT_EQ(lines, 1);
    EXPECT_EQ(characters, 3);
    EXPECT_EQ(engine.Text(), "TranslateTransform 3 4 prepend\n");
}
