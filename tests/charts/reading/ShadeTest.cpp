#include "charts/reading/Shade.h"

#include "charts/reading/Contrast.h"
#include "foundation/Light.h"

#include <gtest/gtest.h>

using namespace millichart;
using penlode::Color;

TEST(Shade, FacesKeepTheirHue) {
    ChartOptions options;
    EXPECT_EQ(ShadeOf({0x80C84010U}, ShadedFace::BarSide, options), Color{0xFF640000U});
    options.Contrast = ChartContrast::Kept;
    for (const std::uint32_t argb : {0xFFC84010U, 0xFF046DE9U, 0xFF57A168U, 0x80E7AD01U}) {
        const Color front{argb};
        const Color side = ShadeOf(front, ShadedFace::BarSide, options);
        const Color top = ShadeOf(front, ShadedFace::BarTop, options);
        EXPECT_EQ(side.A(), 255U);
        EXPECT_LT(LuminanceOf(side), LuminanceOf(top));
        EXPECT_LT(LuminanceOf(top), LuminanceOf(front));
        // In proportion, as far as eight bits tell.
        const Light light = LightOf(front);
        const Light shaded = LightOf(side);
        EXPECT_NEAR(shaded.Red * light.Green, light.Red * shaded.Green, 0.004);
        EXPECT_NEAR(shaded.Blue * light.Green, light.Blue * shaded.Green, 0.004);
    }
    EXPECT_GT(ContrastOf(ShadeOf(penlode::kBlack, ShadedFace::BarSide, options), penlode::kBlack), 1.5);
}

TEST(Contrast, LettersAreReadOnEveryGround) {
    EXPECT_EQ(ReadableOn({0xFF054B7AU}), penlode::kWhite);
    EXPECT_EQ(ReadableOn({0xFFE7AD01U}), penlode::kBlack);
    EXPECT_EQ(ReadableOn({0x20000040U}), penlode::kBlack) << "the page shines through";
}

TEST(Contrast, OnlyAGridThatNobodyChoseBecomesLight) {
    ChartOptions options;
    const penlode::Pen thin;
    const penlode::Pen chosen(penlode::kBlack, 0.3F);
    EXPECT_EQ(GridPen(&thin, options), &thin);
    options.Contrast = ChartContrast::Kept;
    EXPECT_GT(LuminanceOf(GridPen(&thin, options)->GetColor()), 0.5);
    EXPECT_EQ(GridPen(&chosen, options), &chosen);
    EXPECT_EQ(GridPen(nullptr, options), nullptr);
}
