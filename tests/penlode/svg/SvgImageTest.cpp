#include "penlode/svg/Body.h"
#include "penlode/svg/StoredPng.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <numeric>
#include <string_view>

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

std::string Decoded(std::string_view base64) {
    constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string bytes;
    std::uint32_t bits = 0;
    int count = 0;
    for (const char c : base64.substr(0, base64.find('='))) {
        bits = bits << 6U | static_cast<std::uint32_t>(kDigits.find(c));
        count += 6;
        if (count >= 8) {
            count -= 8;
            bytes += static_cast<char>(static_cast<unsigned char>(bits >> static_cast<unsigned>(count)));
        }
    }
    return bytes;
}

std::uint32_t Word(std::string_view bytes, std::size_t at) {
    return std::accumulate(
        bytes.begin() + static_cast<std::ptrdiff_t>(at), bytes.begin() + static_cast<std::ptrdiff_t>(at + 4),
        0U, [](std::uint32_t word, char c) { return word << 8U | static_cast<unsigned char>(c); });
}

/// The remainder of the polynomial division, bit by bit.
std::uint32_t Crc(std::string_view bytes) {
    std::uint32_t crc = 0xFFFFFFFFU;
    for (const char c : bytes) {
        crc ^= static_cast<unsigned char>(c);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1U) ^ ((crc & 1U) * 0xEDB88320U);
        }
    }
    return ~crc;
}

/// The bytes of a zlib stream of stored blocks, whose lengths and sum must hold.
std::string Inflated(std::string_view stream) {
    EXPECT_EQ((static_cast<unsigned char>(stream[0]) * 256U + static_cast<unsigned char>(stream[1])) % 31U,
              0U);
    std::string bytes;
    std::size_t at = 2;
    for (bool last = false; !last;) {
        const std::uint32_t low = Word(stream, at + 1);
        last = stream[at] == 1;
        const std::uint32_t length = (low >> 24U) | ((low >> 8U) & 0xFF00U);
        EXPECT_EQ(((low >> 8U) & 0xFFU) ^ 0xFFU, low >> 24U);
        bytes += stream.substr(at + 5, length);
        at += 5 + length;
    }
    std::uint32_t a = 1;
    std::uint32_t b = 0;
    for (const char c : bytes) {
        a = (a + static_cast<unsigned char>(c)) % 65521U;
        b = (b + a) % 65521U;
    }
    EXPECT_EQ(Word(stream, at), b * 65536U + a);
    EXPECT_EQ(at + 4, stream.size());
    return bytes;
}

struct Png {
    std::uint32_t Width = 0;
    std::uint32_t Height = 0;
    std::string Rows;
};

Png Read(std::string_view file) {
    EXPECT_EQ(file.substr(0, 8), "\x89PNG\r\n\x1A\n");
    Png png;
    std::string stream;
    std::size_t at = 8;
    while (at + 12 <= file.size()) {
        const std::uint32_t length = Word(file, at);
        const std::string_view type = file.substr(at + 4, 4);
        EXPECT_EQ(Word(file, at + 8 + length), Crc(file.substr(at + 4, length + 4))) << type;
        if (type == "IHDR") {
            png.Width = Word(file, at + 8);
            png.Height = Word(file, at + 12);
        } else if (type == "IDAT") {
            stream += file.substr(at + 8, length);
        }
        at += 12 + length;
    }
    EXPECT_EQ(at, file.size());
    png.Rows = Inflated(stream);
    return png;
}

/// The picture in the last <image> of a document.
Png Embedded(const std::string& body) {
    constexpr std::string_view kHead = "data:image/png;base64,";
    const std::size_t start = body.rfind(kHead) + kHead.size();
    return Read(Decoded(std::string_view(body).substr(start, body.find('"', start) - start)));
}

} // namespace

TEST(SvgImage, StoresEveryPixel) {
    const Image image = Checkered(3, 2);
    CSvgEngine engine({80, 60});
    EXPECT_EQ(engine.DrawImage(&image, {1, 2, 30, 20}), Status::Ok);
    const std::string body = Body(engine);
    EXPECT_TRUE(body.starts_with(
        "<image x=\"1\" y=\"2\" width=\"30\" height=\"20\" preserveAspectRatio=\"none\" href="));
    const Png png = Embedded(body);
    EXPECT_EQ(png.Width, 3U);
    EXPECT_EQ(png.Height, 2U);
    using namespace std::string_literals;
    EXPECT_EQ(png.Rows, "\0\0\2\3\xFF\1\2\3\xFF\2\2\3\xFF\0\3\2\3\xFF\4\2\3\xFF\5\2\3\xFF"s);
}

TEST(SvgImage, LargePicturesTakeSeveralBlocks) {
    const Image image = Checkered(300, 200);
    const Png png = Read(svg::StoredPng(image.Pixels, 300));
    EXPECT_EQ(png.Rows.size(), 200U * (1 + 300 * 4));
    EXPECT_EQ(static_cast<unsigned char>(png.Rows[199 * 1201 + 1]), (199U * 300U) & 0xFFU);
}

TEST(SvgImage, CropsToTheSourceAndRecolours) {
    const Image image = Checkered(4, 4);
    ImageAttributes swapped;
    swapped.ColorMatrix = {
        {{0, 0, 1, 0, 0}, {0, 1, 0, 0, 0}, {1, 0, 0, 0, 0}, {0, 0, 0, 0.5F, 0}, {0, 0, 0, 0, 1}}};
    CSvgEngine engine({80, 60});
    engine.DrawImage(&image, {10, 10, 20, 10}, 1, 1, 2, 1, Unit::Pixel, &swapped, nullptr, nullptr);
    EXPECT_TRUE(Body(engine).starts_with("<image x=\"10\" y=\"10\" width=\"20\" height=\"10\""));
    using namespace std::string_literals;
    EXPECT_EQ(Embedded(Body(engine)).Rows, "\0\3\2\5\x80\3\2\6\x80"s);

    // Half of the first pixel is cut off by a clip.
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

TEST(SvgImage, RefusesAndAborts) {
    const Image broken{2, 2, 96.0F, 96.0F, {kBlack}};
    const Image image = Checkered(2, 2);
    CSvgEngine engine({80, 60});
    int questions = 0;
    const auto yes = [](void* count) { return ++*static_cast<int*>(count) > 0; };
    const RectF place{0, 0, 1, 1};
    EXPECT_EQ(engine.DrawImage(nullptr, place), Status::InvalidParameter);
    EXPECT_EQ(engine.DrawImage(&broken, place), Status::InvalidParameter);
    EXPECT_EQ(engine.DrawImage(&image, place, 0, 0, 3e38F, 1, Unit::Inch, nullptr, nullptr, nullptr),
              Status::InvalidParameter);
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
    EXPECT_EQ(engine.GradientFill({9, 0, 20, 20}, {}, vertices, 6, mesh + 1, 1, GradientMode::Triangle), 1);
    EXPECT_EQ(Body(engine), "");
    // Of four parts one begins where the bounds end.
    EXPECT_EQ(engine.GradientFill({0, 0, 4, 20}, {}, vertices, 6, mesh, 2, GradientMode::Triangle), 1);
    EXPECT_EQ(Body(engine).find("M4 0 L8 0"), std::string::npos);
    EXPECT_NE(Body(engine).find("M4 0 L4 4"), std::string::npos);
}

TEST(SvgGradient, RefusesVerticesThatAreNotThere) {
    const GradientVertex vertices[] = {{0, 0, 0, 0, 0, 0}, {9, 9, 0, 0, 0, 0}};
    const GradientRect rects[] = {{0, 1}, {1, 2}};
    const GradientTriangle triangle{0, 1, 2};
    CSvgEngine engine({80, 60});
    const auto fill = [&](const void* mesh, std::uint32_t count, GradientMode mode) {
        return engine.GradientFill({0, 0, 9, 9}, {0, 0}, vertices, 2, mesh, count, mode);
    };
    EXPECT_EQ(fill(rects, 2, GradientMode::RectV), 0);
    EXPECT_EQ(fill(&triangle, 1, GradientMode::Triangle), 0);
    EXPECT_EQ(fill(nullptr, 1, GradientMode::RectH), 0);
    EXPECT_EQ(fill(rects, 1, static_cast<GradientMode>(3)), 0);
    EXPECT_EQ(Body(engine), "");
}
