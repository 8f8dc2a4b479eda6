#include "penlode/cairo/Picture.h"
#include "penlode/text/FontFace.h"
#include "penlode/text/StringUtil.h"
#include "support/KeptMeasures.h"
#include "support/PictureDifference.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <thread>

using namespace penlode;

namespace {

const SolidBrush kBrush{kBlack};
const Font kSong;

SizeF Measured(std::wstring_view text, const Font& font = kSong) {
    return CStringUtil::MeasureWideString(text, &font);
}

/// The smallest rectangle, in pixels, that holds whatever is not white.
RectF InkBox(const CGraphicsEngine& g) {
    const Image image = g.Pixels();
    int left = image.Width;
    int top = image.Height;
    int right = 0;
    int bottom = 0;
    for (int y = 0; y < image.Height; ++y) {
        for (int x = 0; x < image.Width; ++x) {
            if (PixelAt(image, x, y) != kWhite) {
                left = std::min(left, x);
                right = std::max(right, x + 1);
                top = std::min(top, y);
                bottom = std::max(bottom, y + 1);
            }
        }
    }
    return {static_cast<float>(left), static_cast<float>(top), static_cast<float>(right - left),
            static_cast<float>(bottom - top)};
}

std::unique_ptr<CGraphicsEngine> Turned(std::unique_ptr<CGraphicsEngine> g, float x, float y, float degrees) {
    g->TranslateTransform(x, y, MatrixOrder::Prepend);
    g->RotateTransform(degrees, MatrixOrder::Prepend);
    return g;
}

RectF InkOfText(double dpi, const wchar_t* text, const Font& font, float x, float y, float degrees = 0) {
    const auto g = Turned(CGraphicsEngine::ForRaster({80, 80}, dpi, kWhite), x, y, degrees);
    EXPECT_EQ(g->DrawString(text, -1, &font, PointF{0, 0}, &kBrush), Status::Ok);
    const RectF pixels = InkBox(*g);
    const auto mm = [dpi](float v) { return static_cast<float>(v * 25.4 / dpi); };
    return {mm(pixels.X), mm(pixels.Y), mm(pixels.Width), mm(pixels.Height)};
}

/// A text turned about a point: on pixels of a millimetre.
struct TurnedText {
    const wchar_t* Text;
    Font Face;
    float X;
    float Y;
    float Degrees;
};

std::unique_ptr<CGraphicsEngine> SurfaceFor(const TurnedText& text) {
    return Turned(PixelSurface(120, 120), text.X, text.Y, text.Degrees);
}

Image Drawn(const TurnedText& text) {
    const auto g = SurfaceFor(text);
    EXPECT_EQ(g->DrawString(text.Text, -1, &text.Face, PointF{0, 0}, &kBrush), Status::Ok);
    return g->Pixels();
}

/// How far a text lies from the outlines of its letters.
PictureDifference FromOutlines(const TurnedText& text) {
    const auto g = SurfaceFor(text);
    const GraphicsPath outline = OutlineOfLine(text.Text, text.Face);
    g->TranslateTransform(0, CStringUtil::MeasureFont(text.Face).Ascent, MatrixOrder::Prepend);
    EXPECT_EQ(g->FillPath(&kBrush, &outline), Status::Ok);
    return Compare(Drawn(text), g->Pixels(), 0);
}

} // namespace

TEST(PangoText, MeasuresAsItAlwaysDid) {
    for (const KeptMeasure& kept : kKeptMeasures) {
        const Font font = kept.Face();
        const SizeF size = CStringUtil::MeasureWideString(kept.Text, &font);
        EXPECT_NEAR(size.Width, kept.Width, 0.001F) << CStringUtil::WideToUtf8(kept.Text);
        EXPECT_NEAR(size.Height, kept.Height, 0.001F) << CStringUtil::WideToUtf8(kept.Text);
    }
}

TEST(Text, WidthsAreThoseOfTheTypeNotOfAScreen) {
    EXPECT_NEAR(Measured(L"深度(m) 12345.678").Width, 34.3F, 0.7F);
    EXPECT_NEAR(Measured(L"深度").Width, 8.0F, 1e-3F);
    const Font large{L"宋体", 40.0F, FontStyle::Regular};
    EXPECT_NEAR(Measured(L"深度(m) 12345.678", large).Width, Measured(L"深度(m) 12345.678").Width * 10,
                0.01F);
}

TEST(Text, ChineseAndLatinLinesOfAFontAreEquallyHigh) {
    const float line = Measured(L"深").Height;
    EXPECT_EQ(Measured(L"g").Height, line);
    EXPECT_EQ(Measured(L"α①").Height, line);
    EXPECT_FLOAT_EQ(Measured(L"深\ng").Height, 2 * line);
    EXPECT_GE(line, 4.0F);
    EXPECT_LE(line, 4.0F * 1.25F + 1e-4F);
}

TEST(Text, EmptyTextsAndUnusableFontsMeasureNothing) {
    EXPECT_EQ(Measured(L""), SizeF{});
    EXPECT_EQ(Measured(L"x", {L"宋体", 0.0F, 0}).Width, 0.0F);
    EXPECT_EQ(Measured(L"x", {L"宋体", -2.0F, 0}).Height, 0.0F);
    EXPECT_EQ(CStringUtil::MeasureFont({L"宋体", NAN, 0}), FontMetrics{});
    EXPECT_GT(Measured(L"深", {L"", 4.0F, 0}).Width, 3.0F);
}

TEST(Text, InkLiesInTheMeasuredBoxAtEveryResolution) {
    const SizeF box = Measured(L"深度 Agjy");
    for (const double dpi : {96.0, 150.0, 300.0, 600.0}) {
        const RectF ink = InkOfText(dpi, L"深度 Agjy", kSong, 10, 10);
        const float pixel = static_cast<float>(25.4 / dpi);
        EXPECT_NEAR(ink.X, 10, 0.4F + pixel) << dpi;
        EXPECT_NEAR(ink.Width, box.Width, 0.4F + 2 * pixel) << dpi;
        EXPECT_GT(ink.Y, 10 - pixel) << dpi;
        EXPECT_LT(ink.Bottom(), 10 + box.Height + 1.5F * pixel) << dpi;
    }
}

TEST(Text, LettersThatHaveBeenDrawnLookAsForTheFirstTime) {
    std::vector<TurnedText> texts;
    for (const std::int32_t style : {FontStyle::Regular, FontStyle::Bold, FontStyle::Italic}) {
        for (const float size : {11.0F, 11.5F, 30.0F}) {
            for (const auto& [x, y, degrees] : {std::array{20.0F, 20.0F, 0.0F},
                                                {20.3F, 20.0F, 0.0F},
                                                {21.3F, 37.5F, 0.0F},
                                                {60.0F, 60.0F, 90.0F},
                                                {60.0F, 60.0F, -30.0F}}) {
                texts.push_back({L"深 fÅg", {L"宋体", size, style}, x, y, degrees});
            }
        }
    }
    texts.push_back({L"深 fÅg", {L"黑体", 11.0F, FontStyle::Regular}, 20, 20, 0});
    texts.push_back({L"深 fÅ", {L"宋体", 11.0F, FontStyle::Regular}, 20, 20, 0});
    texts.push_back({L" ", {L"宋体", 11.0F, FontStyle::Regular}, 20, 20, 0});
    for (const int round : {1, 2}) {
        for (std::size_t i = 0; i < texts.size(); ++i) {
            Image first; // another thread has drawn nothing yet
            std::thread([&] { first = Drawn(texts[i]); }).join();
            EXPECT_EQ(Drawn(texts[i]).Pixels, first.Pixels) << "text " << i << ", round " << round;
        }
    }
}

TEST(Text, MoreLettersThanAThreadKeepsAreDrawnTheSame) {
    const TurnedText text{L"深 fÅg", {L"宋体", 30.0F, FontStyle::Regular}, 20, 20, 0};
    const Image first = Drawn(text);
    for (float size = 24.0F; size < 31.9F; size += 0.01F) { // 6 MB of letters
        Drawn({L"滚滚长江东逝水", {L"宋体", size, FontStyle::Regular}, 0, 20, 0});
    }
    EXPECT_EQ(Drawn(text).Pixels, first.Pixels);
}

TEST(Text, NoLetterIsCutOff) {
    for (const std::int32_t style : {FontStyle::Regular, FontStyle::Italic | FontStyle::Bold}) {
        const Font font{L"Times New Roman", 28.0F, style};
        // On a quarter of a pixel, a letter stands where it should, and from nearby it goes there.
        const float baselineOnWholePixel = 60.0F - CStringUtil::MeasureFont(font).Ascent;
        for (const wchar_t* letter : {L"f", L"g", L"W", L"Q", L"深", L"_"}) {
            const TurnedText text{letter, font, 40.25F, baselineOnWholePixel, 0.0F};
            EXPECT_LE(FromOutlines(text).Largest, 24U) << CStringUtil::WideToUtf8(letter);
            for (const float near : {40.14F, 40.36F}) {
                EXPECT_EQ(Drawn({letter, font, near, baselineOnWholePixel, 0.0F}).Pixels, Drawn(text).Pixels);
            }
        }
        for (const wchar_t* word : {L"fgjW", L"深度", L"Q;_", L"|"}) {
            const TurnedText text{word, font, 60.2F, 60.7F, -33.0F};
            EXPECT_LE(FromOutlines(text).Largest, 64U) << CStringUtil::WideToUtf8(word);
            EXPECT_NE(CountOf(Drawn(text), kBlack), 0);
        }
    }
}

TEST(Text, OfAVeryLongLineItsPartOnTheSurfaceIsDrawn) {
    std::wstring line;
    for (int i = 0; i < 1500; ++i) {
        line += L"深度g.";
    }
    const TurnedText text{line.c_str(), {L"宋体", 20.0F, FontStyle::Regular}, -30000.0F, -9132.0F, 17.0F};
    EXPECT_LE(FromOutlines(text).Largest, 64U);
    EXPECT_LT(CountOf(Drawn(text), kWhite), 120 * 120 - 500);
}

TEST(Text, AlignmentPlacesEachLineInItsBox) {
    const auto g = CGraphicsEngine::ForRaster({60, 40}, 127, kWhite);
    const StringFormat centred{0, 0, StringAlignment::Center, StringAlignment::Center};
    g->DrawString(L"口\n口口口", -1, &kSong, RectF{0, 0, 60, 40}, &centred, &kBrush);
    const RectF ink = InkBox(*g);
    EXPECT_NEAR(ink.X + ink.Width / 2, 150, 2);
    EXPECT_NEAR(ink.Y + ink.Height / 2, 100, 4);
    RectF bounds;
    std::int32_t characters = 0;
    std::int32_t lines = 0;
    g->MeasureString(L"口\n口口口", -1, &kSong, RectF{0, 0, 60, 6}, &centred, &bounds, &characters, &lines);
    EXPECT_NEAR(bounds.X, 24, 1e-3F);
    EXPECT_EQ(lines, 1);
    EXPECT_EQ(characters, 2);
}

TEST(Text, StylesShow) {
    const auto ink = [](std::int32_t style) {
        const auto g = CGraphicsEngine::ForRaster({40, 10}, 300, kWhite);
        const Font font{L"宋体", 4.0F, style};
        g->DrawString(L"粗体 Bold", -1, &font, PointF{2, 2}, &kBrush);
        return InkOf(*g);
    };
    const auto regular = ink(FontStyle::Regular);
    EXPECT_GT(ink(FontStyle::Bold), regular + regular / 5);
    EXPECT_NE(ink(FontStyle::Italic), regular);
    EXPECT_GT(ink(FontStyle::Underline), regular + 200);
    EXPECT_GT(ink(FontStyle::Strikeout), regular + 100);
    EXPECT_GT(ink(FontStyle::Underline | FontStyle::Strikeout), ink(FontStyle::Underline));
}

TEST(Text, UnderlineIsAsThickTurnedAsItsOutlineAndUprightOneCrispLine) {
    const Font lines{L"宋体", 28.0F, FontStyle::Underline | FontStyle::Strikeout};
    const TurnedText turned{L"    ", lines, 40.2F, 60.7F, -33.0F};
    EXPECT_LE(FromOutlines(turned).Largest, 16U);
    EXPECT_GT(CountOf(Drawn(turned), kWhite), 0);
    EXPECT_LT(CountOf(Drawn(turned), kWhite), 120 * 120 - 100);

    const auto g = CGraphicsEngine::ForRaster({30, 10}, 96, kWhite);
    const Font font{L"宋体", 4.0F, FontStyle::Underline};
    g->DrawString(L"\n\n", -1, &font, PointF{2, 2}, &kBrush);
    EXPECT_EQ(InkOf(*g), 0);
    g->DrawString(L"一一一一", -1, &font, PointF{2, 2}, &kBrush);
    EXPECT_GE(CountOf(g->Pixels(), kBlack), 60);
}

TEST(Text, TheUsualFamiliesResolveToInstalledFacesOfTheirKind) {
    EXPECT_EQ(ResolvedFamily(L"宋体"), ResolvedFamily(L"SimSun"));
    EXPECT_EQ(ResolvedFamily(L"宋体"), ResolvedFamily(L"simsun"));
    EXPECT_EQ(ResolvedFamily(L"微软雅黑"), ResolvedFamily(L"Microsoft YaHei"));
    EXPECT_NE(ResolvedFamily(L"宋体"), ResolvedFamily(L"黑体"));
    EXPECT_NE(ResolvedFamily(L"Arial"), ResolvedFamily(L"黑体"));
    EXPECT_EQ(ResolvedFamily(L"No Such Family"), ResolvedFamily(L""));
    EXPECT_FALSE(ResolvedFamily(L"").empty());
    EXPECT_TRUE(HasStandIns(L"simsun"));
    EXPECT_TRUE(HasStandIns(L"sans-serif"));
    EXPECT_FALSE(HasStandIns(L"No Such Family"));
}

TEST(Text, NamesEachCharacterThatNoFaceHas) {
    EXPECT_EQ(MissingCharacters(L"国\xE123g\n\xE124 \xE123.", kSong), L"\xE123\xE124");
}

TEST(Text, ThreadsMeasureAlike) {
    float other = 0;
    std::thread([&] { other = Measured(L"各省地区生产总值 2023").Width; }).join();
    EXPECT_EQ(other, Measured(L"各省地区生产总值 2023").Width);
}

TEST(Text, OddTextsAreHarmless) {
    const auto g = PixelSurface(40, 40);
    const std::wstring endless(100000, L'深');
    for (const std::wstring& text :
         {endless, std::wstring(L"\t\r\v\u2028\u2029\uFFFE\u202Eabc"), std::wstring(500, L'\n')}) {
        EXPECT_EQ(g->DrawString(text.c_str(), -1, &kSong, PointF{0, 0}, &kBrush), Status::Ok);
        EXPECT_TRUE(std::isfinite(Measured(text).Width));
    }
    EXPECT_EQ(g->DrawString(L"深度", 1, &kSong, PointF{0, 0}, nullptr, &kBrush), Status::Ok);
    EXPECT_EQ(g->MeasureScriptText(L"深度", &kSong), Measured(L"深度"));
}

TEST(Text, StretchesOfEveryStrengthAreDrawnOrLeftOut) {
    const auto g = CGraphicsEngine::ForRaster({80, 80}, 96, kWhite);
    const Font font{L"宋体", 10.0F, FontStyle::Regular};
    for (double x = 1e-3; x < 1e3; x *= 1.9) {
        for (double y = 1e-3; y < 1e3; y *= 1.9) {
            for (const double slant : {0.0, 0.9, 0.9999}) {
                const Matrix stretch{x, 0.0, slant * x, y, 0.0, 0.0};
                g->SetTransform(&stretch);
                EXPECT_EQ(g->DrawString(L"深 A1", -1, &font, PointF{0, 0}, &kBrush), Status::Ok)
                    << x << " " << y << " " << slant;
            }
        }
    }
}

TEST(Text, AStretchedLineIsThere) {
    const auto g = CGraphicsEngine::ForRaster({80, 80}, 96, kWhite);
    const Matrix flat{30, 0, 0, 0.123, 0, 0};
    g->SetTransform(&flat);
    const Font font{L"宋体", 10.0F, FontStyle::Underline};
    EXPECT_EQ(g->DrawString(L"深深", -1, &font, PointF{0, 0}, &kBrush), Status::Ok);
    EXPECT_GT(InkBox(*g).Width, 250.0F);
    EXPECT_LE(InkBox(*g).Height, 7.0F);
}
