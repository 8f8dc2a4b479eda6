#include "penlode/cairo/GraphicsEngine.h"
#include "support/GoldenDrawings.h"
#include "support/PictureDifference.h"
#include "support/PngFile.h"
#include "support/Shell.h"

#include <cstdlib>
#include <gtest/gtest.h>

using namespace penlode;
namespace fs = std::filesystem;

namespace {

// Room for the last bits of another version of Cairo or of its pixel library; its GOOD and BEST smoothing do
// not differ at all here. A pie that moves by a tenth of a millimetre changes 3 % of its picture by more than
// this, a separating line that is a tenth wider as many, another colour its whole slice.
constexpr std::uint32_t kTolerance = 8;
constexpr double kShare = 0.005;

void Save(const fs::path& path, const std::string& bytes) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

class GoldenPicture : public testing::TestWithParam<GoldenDrawing> {};

} // namespace

TEST_P(GoldenPicture, IsDrawn) {
    const std::string file = std::string(GetParam().Name) + ".png";
    const fs::path kept = fs::path(MILLICHART_GOLDEN) / file;
    const auto engine = CGraphicsEngine::ForRaster(GetParam().Page, 96, kWhite);
    GetParam().Draw(*engine);
    const std::string drawn = engine->EncodePng();
    if (std::getenv("MILLICHART_UPDATE_GOLDEN") != nullptr) {
        Save(kept, drawn);
        GTEST_SKIP() << "drew " << kept;
    }
    const PictureDifference difference = Compare(DecodePng(ReadAll(kept)), DecodePng(drawn), kTolerance);
    if (difference.Share > kShare) {
        const fs::path actual = fs::path(MILLICHART_GOLDEN_DRAWN) / file;
        Save(actual, drawn);
        ADD_FAILURE() << difference << "\nkept:  " << kept << "\ndrawn: " << actual
                      << "\n./run golden draws all anew, if this one is right";
    }
}

INSTANTIATE_TEST_SUITE_P(Shapes, GoldenPicture, testing::ValuesIn(GoldenDrawings()), [](const auto& test) {
    std::string name = test.param.Name;
    name.erase(std::remove(name.begin(), name.end(), '-'), name.end());
    return name;
});
