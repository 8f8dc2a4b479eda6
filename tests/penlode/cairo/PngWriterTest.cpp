#include "penlode/cairo/PngWriter.h"

#include "support/PngFile.h"

#include <gtest/gtest.h>
#include <random>
#include <vector>

using namespace penlode;

namespace {

using Words = std::vector<std::uint32_t>;

std::string Encoded(const Words& words, std::int32_t width) {
    const auto height = static_cast<std::int32_t>(words.size()) / width;
    return EncodePng({reinterpret_cast<const unsigned char*>(words.data()), width, height, 4 * width}, 96.0,
                     96.0);
}

void ExpectKept(const Words& words, std::int32_t width) {
    const std::string file = Encoded(words, width);
    const Image read = DecodePng(file);
    ASSERT_EQ(read.Pixels.size(), words.size());
    EXPECT_EQ(read.Width, width);
    for (std::size_t i = 0; i < words.size(); ++i) {
        ASSERT_EQ(read.Pixels[i].Argb, Unpremultiplied(words[i])) << "pixel " << i;
    }
}

/// Stretches of one colour, of any length up to `longest`.
Words Runs(std::size_t count, std::uint32_t longest, std::uint32_t alpha) {
    std::mt19937 random(5);
    Words words;
    while (words.size() < count) {
        const auto gray = static_cast<std::uint32_t>(random() % (alpha + 1));
        const std::uint32_t color = alpha << 24U | gray * 0x10001U;
        words.resize(std::min<std::size_t>(count, words.size() + 1 + random() % longest), color);
    }
    return words;
}

} // namespace

TEST(PngWriter, EveryPixelIsKept) {
    // Noise fills several blocks; long runs take matches of every length, within a row and over its end.
    for (const std::uint32_t longest : {1U, 7U, 200U, 5000U}) {
        for (const std::uint32_t alpha : {0xFFU, 0x80U}) {
            ExpectKept(Runs(300 * 301, longest, alpha), 301);
        }
    }
    ExpectKept({0xFF123456U}, 1);
    ExpectKept({0, 0xFFFFFFFFU, 0x40101010U}, 1);
}

TEST(PngWriter, ABlankPageIsSmall) {
    EXPECT_LT(Encoded(Words(1600 * 1200, 0xFFFFFFFFU), 1600).size(), 10000U);
}
