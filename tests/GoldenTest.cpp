#include "millichart.h"
#include "penlode/cairo/GraphicsEngine.h"
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

const std::vector<Color> kColors{{0xFF3B6FB6}, {0xFFE58A3C}, {0xB057A168}, {0xFFC9504E}};

void Pie(IGraphicsEngine& g, std::int32_t style) {
    millichart::PieProp prop;
    prop.Basic.PieStyle = style;
    prop.Basic.FixedSize = 1;
    prop.Basic.FixedWidth = 30.0F;
    prop.Basic.StartAngle = 200.0F;
    prop.Basic.PenSepLine = Pen(kWhite, 0.4F);
    prop.Basic.ComponentColor = kColors;
    millichart::CBasicPie pie;
    pie.SetPieProp(prop);
    pie.SetComponentValue({38, 27, 23, 12});
    pie.SetLocation({17.0F, 17.0F});
    pie.Layout();
    pie.Draw(&g);
}

void FlatPie(IGraphicsEngine& g) {
    Pie(g, millichart::PieStyle::Flat);
}

void PieWithDepth(IGraphicsEngine& g) {
    Pie(g, millichart::PieStyle::WithDepth);
}

/// A legend without names: a column whose box is filled and framed.
void LegendSquares(IGraphicsEngine& g) {
    millichart::LegendProp prop;
    prop.ShowLegend = 1;
    prop.ShowBackground = 1;
    prop.BackgroundColor = Color{0xFFF2EFE6};
    std::vector<RectF> items;
    for (std::size_t i = 0; i < kColors.size(); ++i) {
        items.push_back({3.0F, 2.5F + 5.7F * static_cast<float>(i), 12.0F, 5.7F});
    }
    millichart::CLegendOperation::Draw(&g, prop, {}, kColors, items);
}

/// Every dash style in four widths, down to the thinnest; level, slanted and bent.
void Lines(IGraphicsEngine& g) {
    const float widths[] = {0.0F, 0.26F, 0.6F, 1.1F};
    for (int style = 0; style < 5; ++style) {
        for (int w = 0; w < 4; ++w) {
            const Pen pen(kBlack, widths[w], static_cast<DashStyle>(style));
            const float y = 2.0F + 6.0F * static_cast<float>(style) + 1.5F * static_cast<float>(w);
            g.DrawLine(&pen, 2, y, 22, y);
            const PointF bent[] = {{25, y}, {32, y - 1.5F}, {40, y + 0.5F}};
            g.DrawLines(&pen, bent, 3);
        }
    }
}

struct Golden {
    const char* Name;
    SizeF Page;
    void (*Draw)(IGraphicsEngine&);
};

const Golden kGoldens[] = {
    {"pie-flat", {34, 34}, FlatPie},
    {"pie-depth", {34, 34}, PieWithDepth},
    {"legend", {18, 28}, LegendSquares},
    {"lines", {42, 32}, Lines},
};

std::ostream& operator<<(std::ostream& stream, const Golden& golden) {
    return stream << golden.Name;
}

void Save(const fs::path& path, const std::string& bytes) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

class GoldenPicture : public testing::TestWithParam<Golden> {};

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

INSTANTIATE_TEST_SUITE_P(Shapes, GoldenPicture, testing::ValuesIn(kGoldens), [](const auto& test) {
    std::string name = test.param.Name;
    name.erase(std::remove(name.begin(), name.end(), '-'), name.end());
    return name;
});
