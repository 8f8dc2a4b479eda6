#include "penlode/recording/RecordingEngine.h"

#include <cmath>
#include <gtest/gtest.h>
#include <utility>

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
    const auto fits = [&](const wchar_t* text, const Font& face, float height) {
        EXPECT_EQ(engine.MeasureString(text, -1, &face, RectF{10, 20, 1, height}, nullptr, &bounds,
                                       &characters, &lines),
                  Status::Ok);
        return std::pair(lines, characters);
    };
    EXPECT_EQ(fits(L"ab\nc", font, 4.9F), std::pair(0, 0));
    EXPECT_EQ(bounds, (RectF{10, 20, 4, 10}));
    EXPECT_EQ(fits(L"ab\nc", font, 5), std::pair(1, 3));
    EXPECT_EQ(fits(L"ab\nc", font, 0.1F), std::pair(0, 0));
    EXPECT_EQ(fits(L"ab\nc", font, 99), std::pair(2, 4));
    EXPECT_EQ(fits(L"ab\nc", font, 0), std::pair(2, 4));
    EXPECT_EQ(fits(L"ab\nc", {L"宋体", 0.0F}, 7), std::pair(2, 4));
    EXPECT_EQ(fits(L"", font, 7), std::pair(0, 0));
    EXPECT_EQ(engine.MeasureString(L"a", -1, &font, RectF{}, nullptr, nullptr, nullptr, nullptr), Status::Ok);
    EXPECT_EQ(engine.Text(), "TranslateTransform 3 4 prepend\n");
}

TEST(RecordingEngine, BadArgumentsAreRecordedAndRefused) {
    CRecordingEngine engine;
    const Pen pen;
    const Pen wild(kBlack, INFINITY);
    const SolidBrush brush;
    const Font none{L"宋体", 0.0F};
    const Font some;
    const Image broken{2, 2, 96.0F, 96.0F, {kBlack}};
    const Image whole{1, 1, 96.0F, 96.0F, {kBlack}};
    const Font wildFont{L"宋体", NAN};
    const PointF points[] = {{0, 0}, {NAN, 1}, {9, 9}};
    GraphicsPath path;
    path.AddLines(points);
    GraphicsPath curve;
    curve.AddBezier({0, 0}, {NAN, 1}, {1, 1}, {9, 9});
    GraphicsPath arc;
    arc.AddArc({0, 0, 1, 1}, NAN, 90);
    Region region;
    region.Combine(Region(curve), CombineMode::Intersect);
    const auto noMode = static_cast<CombineMode>(6);
    const std::vector<Status> statuses{
        engine.DrawLine(nullptr, 0, 0, 9, 9),
        engine.DrawLine(&pen, 0, 0, NAN, 1),
        engine.DrawLine(&wild, 0, 0, 1, 1),
        engine.DrawLines(&pen, nullptr, 3),
        engine.DrawLines(&pen, points, 3),
        engine.DrawLines(&pen, points, -1),
        engine.DrawRectangle(nullptr, 0, 0, 9, 9),
        engine.DrawArc(&pen, 0, 0, 9, 9, NAN, 9),
        engine.DrawEllipse(&pen, 0, 0, INFINITY, 9),
        engine.DrawPie(nullptr, {0, 0, 9, 9}, 0, 90),
        engine.DrawPolygon(&pen, points, -1),
        engine.DrawCurve(&pen, nullptr, 3),
        engine.DrawCurve(&pen, points, 3),
        engine.FillRectangle(nullptr, 0, 0, 9, 9),
        engine.FillEllipse(&brush, NAN, 0, 9, 9),
        engine.FillPie(&brush, {0, 0, 1, 1}, 0, INFINITY),
        engine.FillPolygon(nullptr, points, 3),
        engine.FillPath(&brush, nullptr),
        engine.FillPath(&brush, &path),
        engine.FillPath(&brush, &curve),
        engine.FillPath(&brush, &arc),
        engine.SetClip(&path, CombineMode::Replace),
        engine.SetClip(&std::as_const(region), CombineMode::Replace),
        engine.SetClip(RectF{0, 0, NAN, 0}, CombineMode::Replace),
        engine.SetClip(static_cast<const GraphicsPath*>(nullptr), CombineMode::Replace),
        engine.SetClip(static_cast<Region*>(nullptr), CombineMode::Replace),
        engine.SetClip(RectF{}, noMode),
        engine.DrawString(nullptr, -1, &some, PointF{}, &brush),
        engine.DrawString(L"a", -1, nullptr, PointF{}, &brush),
        engine.DrawString(L"a", -1, &some, PointF{}, nullptr),
        engine.DrawString(L"a", -1, &none, PointF{}, &brush),
        engine.DrawString(L"a", -1, &wildFont, PointF{}, &brush),
        engine.DrawString(L"a", -1, &some, points[1], &brush),
        engine.DrawImage(nullptr, RectF{0, 0, 9, 9}),
        engine.DrawImage(&broken, RectF{0, 0, 1, 1}),
        engine.DrawImage(&whole, RectF{NAN, 0, 1, 1}),
        engine.DrawImage(&whole, {0, 0, 1, 1}, 0, 0, 1, 1, Unit::World, nullptr, nullptr, nullptr),
        engine.SetTransform(nullptr),
        engine.EndContainer(77),
        engine.SetSmoothingMode(static_cast<SmoothingMode>(9))};
    EXPECT_EQ(statuses, std::vector<Status>(statuses.size(), Status::InvalidParameter));
    EXPECT_EQ(engine.Calls().size(), statuses.size());
    EXPECT_EQ(engine.DrawLines(&pen, points, 1), Status::Ok);
    EXPECT_EQ(engine.GetClip(nullptr), Status::InvalidParameter);
    EXPECT_EQ(engine.MeasureString(L"a", -1, nullptr, PointF{}, nullptr), Status::InvalidParameter);
    PointF point{NAN, 0};
    EXPECT_EQ(engine.MeasureString(L"a", -1, &some, point, nullptr), Status::InvalidParameter);
    EXPECT_EQ(engine.MeasureString(nullptr, -1, &some, PointF{}, nullptr), Status::InvalidParameter);
    const GradientVertex vertex{};
    const GradientRect mesh{0, 0};
    EXPECT_EQ(engine.GradientFill({}, {}, nullptr, 0, &mesh, 0, GradientMode::RectH), 0);
    EXPECT_EQ(engine.GradientFill({}, {}, &vertex, 1, nullptr, 0, GradientMode::RectH), 0);
    EXPECT_EQ(engine.GradientFill({}, {}, &vertex, 1, &mesh, 0, GradientMode::Triangle), 1);
    for (const auto space : {static_cast<CoordinateSpace>(-1), static_cast<CoordinateSpace>(3)}) {
        EXPECT_EQ(engine.TransformPoints(space, CoordinateSpace::World, &point, 1), Status::InvalidParameter);
        EXPECT_EQ(engine.TransformPoints(CoordinateSpace::World, space, &point, 1), Status::InvalidParameter);
    }
}

TEST(RecordingEngine, GradientsAndImagesAreRecordedWhole) {
    CRecordingEngine engine;
    const GradientVertex vertices[] = {{0, 0, 0xFF00, 0, 0, 0}, {8, 0, 0, 0xFF00, 0, 0xFF00}};
    const GradientRect mesh[] = {{0, 1}, {1, 2}};
    const RectL bounds{0, 0, 9, 9};
    EXPECT_EQ(engine.GradientFill(bounds, {1, 2}, vertices, 2, mesh, 1, GradientMode::RectV), 1);
    EXPECT_EQ(engine.GradientFill(bounds, {1, 2}, vertices, 2, mesh, 2, GradientMode::RectV), 0);
    EXPECT_EQ(engine.GradientFill(bounds, {NAN, 2}, vertices, 0, mesh, 0, GradientMode::RectV), 0);
    EXPECT_EQ(engine.GradientFill(bounds, {}, nullptr, 2, mesh, 1, static_cast<GradientMode>(3)), 0);
    const Image image{1, 1, 96.0F, 96.0F, {kBlack}};
    ImageAttributes pale;
    pale.ColorMatrix[3][3] = 0.5F;
    engine.DrawImage(&image, {0, 0, 1, 1}, 0, 0, 1, 1, Unit::Pixel, &pale, nullptr, nullptr);
    EXPECT_EQ(engine.Text(), "GradientFill (0 0 9 9) [2] (1 2) (9 2) [2] #00FF0000 #FF00FF00 [2] 0 1 1\n"
                             "GradientFill (0 0 9 9) [2] (1 2) (9 2) [2] #00FF0000 #FF00FF00 [4] 0 1 1 2 1\n"
                             "GradientFill (0 0 9 9) [0] [0] [0] 1\n"
                             "GradientFill (0 0 9 9) [0] [0] [0] 3\n"
                             "DrawImage image 1x1 (0 0 1 1) (0 0 1 1) pixel"
                             " colors 1 0 0 0 0 0 1 0 0 0 0 0 1 0 0 0 0 0 0.5 0 0 0 0 0 1\n");
}

TEST(RecordingEngine, ACallIsOneLineWhateverItsTexts) {
    CRecordingEngine engine;
    const Font font{L"a\n\"b\\", 1.0F};
    const SolidBrush brush;
    engine.DrawString(L"\\n\r\n", -1, &font, PointF{}, &brush);
    EXPECT_EQ(engine.Text(), "DrawString \"\\\\n\\r\\n\" a\\n\\\"b\\\\/1 (0 0) #FF000000\n");
}
