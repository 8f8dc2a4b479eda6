#include "penlode/svg/Body.h"

#include <gtest/gtest.h>

using namespace penlode;

namespace {

Image Checkered(std::int32_t width, std::int32_t height) {
    Image image{width, height, 96.0F, 96.0F, {}};
    image.Pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (std::size_t i = 0; i < image.Pixels.size(); ++i) {
        image.Pixels[i] = Color::FromArgb(255, static_cast<std::uint32_t>(i), 2, 3);
    }
    return image;
}

} // namespace

TEST(SvgImage, CropsToHalfAPixelByAClip) {
    const Image image = Checkered(4, 4);
    CSvgEngine engine({80, 60});
    engine.DrawImage(&image, {10, 10, 15, 40}, 0.5F, 0, 1.5F, 4, Unit::Pixel, nullptr, nullptr, nullptr);
    const std::string body = Body(engine);
    EXPECT_NE(body.find("<clipPath id=\"c1\"><path d=\"M10 10 L25 10 L25 50 L10 50 Z\"/>"),
              std::string::npos);
    EXPECT_NE(body.find("<g clip-path=\"url(#c1)\"><image x=\"5\" y=\"10\" width=\"20\" height=\"40\""),
              std::string::npos);
}

TEST(SvgImage, MirrorsAndTurnsByAMatrix) {
    const Image image = Checkered(2, 2);
    CSvgEngine engine({80, 60});
    engine.DrawImage(&image, {30, 10, -20, 10});
    EXPECT_TRUE(
        Body(engine).starts_with("<image width=\"1\" height=\"1\" transform=\"matrix(-20 0 0 10 30 10)\""));
    CSvgEngine upsideDown({80, 60});
    upsideDown.DrawImage(&image, {30, 20, 20, -10});
    EXPECT_TRUE(Body(upsideDown)
                    .starts_with("<image width=\"1\" height=\"1\" transform=\"matrix(20 0 0 -10 30 20)\""));
}

TEST(SvgImage, IsAbortedOrLiesElsewhere) {
    const Image image = Checkered(2, 2);
    CSvgEngine engine({80, 60});
    int questions = 0;
    const auto yes = [](void* count) { return ++*static_cast<int*>(count) > 0; };
    const RectF place{0, 0, 1, 1};
    EXPECT_EQ(engine.DrawImage(&image, place, 0, 0, 2, 2, Unit::Pixel, nullptr, yes, &questions),
              Status::Aborted);
    EXPECT_EQ(questions, 1);
    EXPECT_EQ(engine.DrawImage(&image, place, 5, 5, 2, 2, Unit::Pixel, nullptr, nullptr, nullptr),
              Status::Ok);
    EXPECT_EQ(Body(engine), "");
}

TEST(SvgGradient, TrianglesAreCutIntoFlatOnes) {
    const GradientVertex vertices[] = {{0, 0, 0, 0, 0, 0}, {8, 0, 0, 0, 0x0800, 0}, {0, 8, 0, 0, 0, 0}};
    const GradientTriangle mesh{0, 1, 2};
    const auto part = [](const char* data, const char* fill) {
        return std::string("<path d=\"") + data + "\" fill=\"" + fill + "\"/>\n";
    };
    CSvgEngine engine({80, 60});
    EXPECT_EQ(engine.GradientFill({0, 0, 80, 60}, {0, 0}, vertices, 3, &mesh, 1, GradientMode::Triangle), 1);
    EXPECT_EQ(Body(engine), "<g shape-rendering=\"crispEdges\">\n" + part("M0 0 L4 0 L0 4 Z", "#000001") +
                                part("M4 0 L4 4 L0 4 Z", "#000003") + part("M0 4 L4 4 L0 8 Z", "#000001") +
                                part("M4 0 L8 0 L4 4 Z", "#000005") + "</g>\n");
}

TEST(SvgGradient, TrianglesOutOfSightAreLeftOut) {
    const GradientVertex vertices[] = {
        {0, 0, 0, 0, 0, 0},       {8, 0, 0, 0, 0x0800, 0},          {0, 8, 0, 0, 0, 0},
        {90, 0, 0xFF00, 0, 0, 0}, {2000000000, 0, 0, 0, 0xFF00, 0}, {90, 60, 0, 0xFF00, 0, 0}};
    const GradientTriangle mesh[] = {{3, 4, 5}, {0, 1, 2}};
    CSvgEngine engine({80, 60});
    // Out of the page; out of the bounds.
    EXPECT_EQ(engine.GradientFill({0, 0, 99, 99}, {}, vertices, 6, mesh, 1, GradientMode::Triangle), 1);
    for (const PointF origin : {PointF{12, 20}, {28, 20}, {20, 12}, {20, 28}}) {
        EXPECT_EQ(
            engine.GradientFill({20, 20, 28, 28}, origin, vertices, 6, mesh + 1, 1, GradientMode::Triangle),
            1);
    }
    EXPECT_EQ(Body(engine), "");
    // Of four parts one begins where the bounds end.
    EXPECT_EQ(engine.GradientFill({0, 0, 4, 20}, {}, vertices, 6, mesh, 2, GradientMode::Triangle), 1);
    EXPECT_EQ(Body(engine).find("M4 0 L8 0"), std::string::npos);
    EXPECT_NE(Body(engine).find("M4 0 L4 4"), std::string::npos);
}
