#include "penlode/GraphicsEngine.h"
#include "penlode/text/StringUtil.h"
#include "support/EverySlot.h"
#include "support/GoldenDrawings.h"
#include "support/PngFile.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

using namespace penlode;

namespace {

/// What another renderer may make of a colour, and of the mean of a block, of 255.
constexpr int kTolerance = 12;
constexpr int kBlockTolerance = 28;
constexpr std::int32_t kBlock = 16;

std::string Read(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

Color At(const Image& picture, std::int32_t x, std::int32_t y) {
    return picture.Pixels[static_cast<std::size_t>(y * picture.Width + x)];
}

int Channel(Color color, int channel) {
    return static_cast<int>(color.Argb >> (8 * channel) & 0xFFU);
}

bool IsLike(Color a, Color b) {
    for (int channel = 0; channel < 3; ++channel) {
        if (std::abs(Channel(a, channel) - Channel(b, channel)) > kTolerance) {
            return false;
        }
    }
    return true;
}

/// How many pixels of the 3 x 3 round a place are of a colour, and how many there are.
std::pair<int, int> AlikeRound(const Image& picture, std::int32_t x, std::int32_t y, Color color) {
    int alike = 0;
    int all = 0;
    for (std::int32_t row = std::max(y - 1, 0); row <= std::min(y + 1, picture.Height - 1); ++row) {
        for (std::int32_t column = std::max(x - 1, 0); column <= std::min(x + 1, picture.Width - 1);
             ++column) {
            ++all;
            alike += IsLike(At(picture, column, row), color) ? 1 : 0;
        }
    }
    return {alike, all};
}

/// Pixels of one picture that no edge is next to, and that the other has nowhere near.
int Strangers(const Image& a, const Image& b) {
    int count = 0;
    for (std::int32_t y = 0; y < a.Height; ++y) {
        for (std::int32_t x = 0; x < a.Width; ++x) {
            const auto [alike, all] = AlikeRound(a, x, y, At(a, x, y));
            count += alike == all && AlikeRound(b, x, y, At(a, x, y)).first == 0 ? 1 : 0;
        }
    }
    return count;
}

int MeanOf(const Image& picture, std::int32_t left, std::int32_t top, int channel) {
    int sum = 0;
    int count = 0;
    for (std::int32_t y = top; y < std::min(top + kBlock, picture.Height); ++y) {
        for (std::int32_t x = left; x < std::min(left + kBlock, picture.Width); ++x) {
            sum += Channel(At(picture, x, y), channel);
            ++count;
        }
    }
    return sum / count;
}

/// The largest difference of any block's mean: a thin line, which is nothing but edges, is seen by it.
int LargestBlockDifference(const Image& a, const Image& b) {
    int largest = 0;
    for (std::int32_t y = 0; y < a.Height; y += kBlock) {
        for (std::int32_t x = 0; x < a.Width; x += kBlock) {
            for (int channel = 0; channel < 3; ++channel) {
                largest = std::max(largest, std::abs(MeanOf(a, x, y, channel) - MeanOf(b, x, y, channel)));
            }
        }
    }
    return largest;
}

class GdiPicture : public testing::TestWithParam<GoldenDrawing> {};

} // namespace

TEST_P(GdiPicture, IsCairosToWithinAPixelOfItsEdges) {
    const auto engine = CGraphicsEngine::ForRaster(GetParam().Page, 96, kWhite);
    GetParam().Draw(*engine);
    const Image drawn = engine->Pixels();
    const Image kept = DecodePng(Read(std::string(MILLICHART_GOLDEN "/") + GetParam().Name + ".png"));
    ASSERT_EQ(drawn.Width, kept.Width);
    ASSERT_EQ(drawn.Height, kept.Height);
    EXPECT_LE(Strangers(drawn, kept) + Strangers(kept, drawn), drawn.Width * drawn.Height / 1000);
    EXPECT_LE(LargestBlockDifference(drawn, kept), kBlockTolerance);
    if (HasFailure()) {
        std::ofstream(std::string(GetParam().Name) + "-gdiplus.png", std::ios::binary) << engine->EncodePng();
    }
}

TEST(GdiEverySlot, LeavesInkInEachCell) {
    for (const SlotCell& cell : SlotCells()) {
        const auto engine = CGraphicsEngine::ForRaster({24, 19}, 96, kWhite);
        cell.Draw(*engine);
        const Image picture = engine->Pixels();
        const auto bare = std::count(picture.Pixels.begin(), picture.Pixels.end(), kWhite);
        EXPECT_LT(bare, picture.Width * picture.Height * 49 / 50) << CStringUtil::WideToUtf8(cell.Caption);
    }
}

INSTANTIATE_TEST_SUITE_P(Shapes, GdiPicture, testing::ValuesIn(GoldenDrawings()), [](const auto& test) {
    std::string name = test.param.Name;
    std::erase(name, '-');
    return name;
});
