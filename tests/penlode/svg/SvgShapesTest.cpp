#include "penlode/svg/Body.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace penlode;

namespace {

const Pen kPen(Color{0xFF336699}, 0.2F);
const SolidBrush kBrush{Color{0xFFCC0000}};

const std::string kStroke = " stroke=\"#336699\" stroke-width=\"0.2\"/>\n";
const std::string kFill = " fill=\"#cc0000\"/>\n";

} // namespace

TEST(SvgShapes, RootCarriesPageTitleAndBackground) {
    CSvgEngine engine({80, 60.5F}, {"Sales & <more>", "第\xFF", Color{0x80FFFFFF}, false});
    EXPECT_EQ(engine.Text(),
              "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"80mm\" height=\"60.5mm\" "
              "viewBox=\"0 0 80 60.5\" fill=\"none\" fill-rule=\"evenodd\" clip-rule=\"evenodd\">\n"
              "  <title>Sales &amp; &lt;more&gt;</title>\n"
              "  <desc>第\xEF\xBF\xBD</desc>\n"
              "  <rect x=\"0\" y=\"0\" width=\"80\" height=\"60.5\" fill=\"#ffffff\" "
              "fill-opacity=\"0.502\"/>\n"
              "</svg>\n");
}

TEST(SvgShapes, BoxesAreRectsAndLinesWhereTheyHaveNoExtent) {
    CSvgEngine engine({80, 60});
    engine.DrawRectangle(&kPen, 1, 2, 3.00049F, 4);
    engine.FillRectangle(&kBrush, -0.0001F, 0, 10, 10);
    engine.DrawRectangle(&kPen, 1, 2, 0, 4);
    engine.DrawRectangle(&kPen, 1, 2, 3, 0);
    engine.DrawRectangle(&kPen, 1, 2, 0.0001F, 4);
    engine.DrawRectangle(&kPen, 1, 2, 3, 0.0001F);
    engine.DrawLine(&kPen, 1, 2, 1.0001F, 2);
    engine.FillRectangle(&kBrush, 1, 2, 0, 4);
    engine.DrawRectangle(&kPen, 1, 2, -3, 4);
    engine.FillRectangle(&kBrush, 1, 2, 3, -4);
    EXPECT_EQ(Body(engine), "<rect x=\"1\" y=\"2\" width=\"3\" height=\"4\"" + kStroke +
                                "<rect x=\"0\" y=\"0\" width=\"10\" height=\"10\"" + kFill +
                                "<line x1=\"1\" y1=\"2\" x2=\"1\" y2=\"6\"" + kStroke +
                                "<line x1=\"1\" y1=\"2\" x2=\"4\" y2=\"2\"" + kStroke +
                                "<polygon points=\"1,2 1,6\"" + kStroke + "<polygon points=\"1,2 4,2 1,2\"" +
                                kStroke);
}

TEST(SvgShapes, LinesAndPolygons) {
    CSvgEngine engine({80, 60});
    const PointF points[] = {{0, 0}, {10, 0.5F}, {10.0001F, 0.5F}, {5, -2}};
    engine.DrawLine(&kPen, 1, 2, 3, 4);
    engine.DrawLines(&kPen, points, 4);
    engine.DrawPolygon(&kPen, points, 4);
    engine.FillPolygon(&kBrush, points, 4);
    EXPECT_EQ(engine.DrawLines(&kPen, points, 1), Status::Ok);
    EXPECT_EQ(engine.FillPolygon(&kBrush, points, 2), Status::Ok);
    EXPECT_EQ(Body(engine), "<line x1=\"1\" y1=\"2\" x2=\"3\" y2=\"4\"" + kStroke +
                                "<polyline points=\"0,0 10,0.5 5,-2\"" + kStroke +
                                "<polygon points=\"0,0 10,0.5 5,-2\"" + kStroke +
                                "<polygon points=\"0,0 10,0.5 5,-2\"" + kFill);
}

TEST(SvgShapes, EllipsesAndCurves) {
    CSvgEngine engine({80, 60});
    const PointF points[] = {{0, 0}, {6, 6}, {12, 0}};
    engine.DrawEllipse(&kPen, 1, 2, 4, 4);
    engine.FillEllipse(&kBrush, 1, 2, 4, 0);
    engine.DrawCurve(&kPen, points, 3);
    EXPECT_EQ(Body(engine), "<circle cx=\"3\" cy=\"4\" r=\"2\"" + kStroke +
                                "<path d=\"M0 0 C1 1 4 6 6 6 C8 6 11 1 12 0\"" + kStroke);
}

TEST(SvgShapes, PensBecomeStrokes) {
    CSvgEngine engine({80, 60});
    const Pen dashDot(Color{0x40000000}, 0.5F, DashStyle::DashDot);
    const Pen hairline(kBlack, 0.0F, DashStyle::Dot);
    const Pen invisible(Color{0x00FFFFFF}, 1.0F);
    engine.SetPageScale(2);
    engine.DrawLine(&dashDot, 0, 0, 1, 0);
    engine.DrawLine(&hairline, 0, 0, 1, 0);
    engine.DrawLine(&invisible, 0, 0, 1, 0);
    const std::string line = "<line x1=\"0\" y1=\"0\" x2=\"2\" y2=\"0\"";
    EXPECT_EQ(Body(engine),
              line +
                  " stroke=\"#000000\" stroke-opacity=\"0.251\" stroke-width=\"1\" "
                  "stroke-dasharray=\"3 1 1 1\"/>\n" +
                  line + " stroke=\"#000000\" stroke-width=\"0.05\" stroke-dasharray=\"0.05 0.05\"/>\n");
}

TEST(SvgShapes, EllipsesBeyondAllNumbersAreCutToAnEnd) {
    constexpr float kHuge = std::numeric_limits<float>::max();
    for (const float height : {-1.95e10F, 77.0F, 1e6F}) {
        CSvgEngine engine({80, 60});
        engine.RotateTransform(30, MatrixOrder::Prepend);
        GraphicsPath path;
        path.AddArc({0, -height / 2, -kHuge, height}, 7, -kHuge);
        EXPECT_EQ(engine.FillPath(&kBrush, &path), Status::Ok);
        EXPECT_LT(Body(engine).size(), 50000U) << height;
    }
}

TEST(SvgShapes, FoldedPlanesShowNothing) {
    CSvgEngine engine({80, 60});
    const Matrix folded{1, 1, 1, 1, 0, 0};
    engine.SetTransform(&folded);
    const Image image{1, 1, 96.0F, 96.0F, {kBlack}};
    const auto stop = [](void*) { return true; };
    const GradientVertex vertex{};
    const GradientTriangle triangle{0, 0, 0};
    EXPECT_EQ(engine.DrawLine(&kPen, 0, 0, 1, 1), Status::Ok);
    EXPECT_EQ(engine.DrawImage(&image, {0, 0, 1, 1}, 0, 0, 1, 1, Unit::Pixel, nullptr, stop, nullptr),
              Status::Ok);
    EXPECT_EQ(engine.GradientFill({0, 0, 9, 9}, {0, 0}, &vertex, 1, &triangle, 1, GradientMode::Triangle), 1);
    EXPECT_EQ(Body(engine), "");
}

TEST(SvgShapes, PagesOfAnySizeHaveOne) {
    const auto head = [](SizeF page) { return CSvgEngine(page).Text().substr(40, 60); };
    constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_NE(head({kNan, -5}).find("width=\"0mm\" height=\"0mm\" viewBox=\"0 0 0 0\""), std::string::npos);
    EXPECT_NE(head({INFINITY, 1e30F}).find("width=\"0mm\" height=\"1000000mm\""), std::string::npos);
}

TEST(SvgShapes, DataAreWrittenAsFineAsTheyCanBePrinted) {
    std::vector<PointF> noise;
    for (int i = 0; i < 200000; ++i) {
        noise.push_back({static_cast<float>(i) * 0.0004F, static_cast<float>(i * 7919 % 6000) * 0.01F});
    }
    CSvgEngine engine({80, 60});
    engine.DrawLines(&kPen, noise.data(), static_cast<std::int32_t>(noise.size()));
    const std::string body = Body(engine);
    EXPECT_EQ(body.substr(0, 23), "<polyline points=\"0,0 0");
    EXPECT_NE(body.find(" 79.5"), std::string::npos);
    EXPECT_NE(body.find(" 80,20.81\""), std::string::npos);
    EXPECT_LT(body.size(), 160000U);
}

TEST(SvgShapes, OpaqueMarkersOnOnePlaceAreWrittenOnce) {
    CSvgEngine engine({80, 60});
    const SolidBrush glass{Color{0x80CC0000}};
    for (int i = 0; i < 3; ++i) {
        engine.FillRectangle(&kBrush, 1, 2, 3, 4);
    }
    engine.FillRectangle(&glass, 1, 2, 3, 4);
    engine.FillRectangle(&glass, 1, 2, 3, 4);
    engine.FillRectangle(&kBrush, 1, 2, 3, 4);
    const std::string box = "<rect x=\"1\" y=\"2\" width=\"3\" height=\"4\"";
    const std::string faint = box + " fill=\"#cc0000\" fill-opacity=\"0.502\"/>\n";
    EXPECT_EQ(Body(engine), box + kFill + faint + faint + box + kFill);
}

TEST(SvgShapes, CanBeReadWhileItGrows) {
    CSvgEngine engine({80, 60});
    engine.BeginContainer();
    engine.FillRectangle(&kBrush, 0, 0, 1, 1);
    const std::string half = engine.Text();
    EXPECT_TRUE(half.ends_with("  </g>\n</svg>\n"));
    engine.FillRectangle(&kBrush, 0, 0, 1, 1);
    EXPECT_EQ(engine.Text().substr(0, half.size() - 14), half.substr(0, half.size() - 14));
}
