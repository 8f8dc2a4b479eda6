#include "penlode/GraphicsEngine.h"
#include "penlode/Units.h"
#include "penlode/text/FontFace.h"
#include "penlode/text/StringUtil.h"
#include "support/KeptMeasures.h"

#include <gtest/gtest.h>
#include <windows.h>

using namespace penlode;

namespace {

/// The columns and rows of a white picture in which anything is drawn.
struct Ink {
    std::int32_t Left = 1 << 20;
    std::int32_t Top = 1 << 20;
    std::int32_t Right = -1;
    std::int32_t Bottom = -1;
};

Ink InkOf(const Image& picture) {
    Ink ink;
    for (std::int32_t y = 0; y < picture.Height; ++y) {
        for (std::int32_t x = 0; x < picture.Width; ++x) {
            if (picture.Pixels[static_cast<std::size_t>(y * picture.Width + x)] != kWhite) {
                ink = {std::min(ink.Left, x), std::min(ink.Top, y), std::max(ink.Right, x),
                       std::max(ink.Bottom, y)};
            }
        }
    }
    return ink;
}

} // namespace

TEST(GdiText, IsMeasuredAsPangoMeasuresTheSameFace) {
    for (const KeptMeasure& kept : kKeptMeasures) {
        ASSERT_EQ(ResolvedFamily(kept.Family), kept.Family);
        const Font font = kept.Face();
        const SizeF size = CStringUtil::MeasureWideString(kept.Text, &font);
        EXPECT_NEAR(size.Width, kept.Width, 0.01F * kept.Width) << CStringUtil::WideToUtf8(kept.Text);
        EXPECT_NEAR(size.Height, kept.Height, 0.01F * kept.Height) << CStringUtil::WideToUtf8(kept.Text);
        Font twice = font;
        twice.Size *= 2.0F;
        EXPECT_FLOAT_EQ(CStringUtil::MeasureWideString(kept.Text, &twice).Width, 2.0F * size.Width);
    }
    const Font font;
    EXPECT_EQ(CStringUtil::MeasureWideString(L"", &font), SizeF{});
    EXPECT_EQ(CStringUtil::MeasureWideString(L"a", nullptr), SizeF{});
    const float blanks = CStringUtil::MeasureLine(L"a  ", font) - CStringUtil::MeasureLine(L"a", font);
    EXPECT_GT(blanks, 1.0F) << "blanks at the end count";
    EXPECT_EQ(CStringUtil::MeasureLine(L"a\tb", font), CStringUtil::MeasureLine(L"a b", font));
}

TEST(GdiText, StandsInItsMeasuredBox) {
    const Font font{L"Noto Serif CJK SC", 4.0F, FontStyle::Regular};
    const wchar_t text[] = L"国国国国国国国国";
    const SizeF size = CStringUtil::MeasureWideString(text, &font);
    const SolidBrush ink{kBlack};
    const StringFormat centred{0, 0, StringAlignment::Center, StringAlignment::Center};
    const auto engine = CGraphicsEngine::ForRaster({60, 20}, 254, kWhite); // ten pixels a millimetre
    engine->DrawString(text, -1, &font, RectF{10, 5, 40, 10}, &centred, &ink);
    const Ink drawn = InkOf(engine->Pixels());
    EXPECT_NEAR(drawn.Left, 300 - 5 * size.Width, 6);
    EXPECT_NEAR(drawn.Right, 300 + 5 * size.Width, 6);
    EXPECT_NEAR(drawn.Top + drawn.Bottom, 200, 12);
    EXPECT_NEAR(drawn.Bottom - drawn.Top, 38, 5);
}

TEST(GdiText, IsMeasuredByTheSurfaceWhereItDrawsIt) {
    constexpr float kPixels = 10.0F; // in a millimetre
    const Font font{L"Liberation Sans", 4.0F};
    const SolidBrush ink{kBlack};
    const wchar_t two[] = L"HIH\nH";
    const StringFormat centred{0, 0, StringAlignment::Center, StringAlignment::Center};
    const PointF at{20, 10};
    const RectF box{5, 2, 30, 16};
    const auto expectInk = [&](const char* what, const RectF& bounds, const auto& draw) {
        const auto engine = CGraphicsEngine::ForRaster({40, 20}, 254, kWhite);
        EXPECT_EQ(draw(*engine), Status::Ok) << what;
        const Ink drawn = InkOf(engine->Pixels());
        EXPECT_NEAR(drawn.Left, bounds.X * kPixels, 6) << what;
        EXPECT_NEAR(drawn.Right, bounds.Right() * kPixels, 6) << what;
        EXPECT_NEAR(drawn.Top, bounds.Y * kPixels, 12) << what;
        EXPECT_NEAR(drawn.Bottom, bounds.Bottom() * kPixels, 14) << what;
    };
    const auto engine = CGraphicsEngine::ForRaster({40, 20}, 254, kWhite);
    RectF bounds;
    EXPECT_EQ(engine->MeasureString(two, -1, &font, at, &bounds), Status::Ok);
    EXPECT_EQ(bounds.TopLeft(), at);
    expectInk("at a point", bounds,
              [&](IGraphicsEngine& g) { return g.DrawString(two, -1, &font, at, &ink); });
    EXPECT_EQ(engine->MeasureString(two, -1, &font, at, &centred, &bounds), Status::Ok);
    EXPECT_NEAR(bounds.Center().X, at.X, 1e-3F);
    expectInk("about a point", bounds,
              [&](IGraphicsEngine& g) { return g.DrawString(two, -1, &font, at, &centred, &ink); });
    std::int32_t characters = 0;
    std::int32_t lines = 0;
    EXPECT_EQ(engine->MeasureString(two, -1, &font, box, &centred, &bounds, &characters, &lines), Status::Ok);
    EXPECT_NEAR(bounds.Center().Y, box.Center().Y, 1e-3F);
    EXPECT_EQ(characters, 5);
    EXPECT_EQ(lines, 2);
    expectInk("in a box", bounds,
              [&](IGraphicsEngine& g) { return g.DrawString(two, -1, &font, box, &centred, &ink); });
    const SizeF script = engine->MeasureScriptText(L"HIH", &font);
    expectInk("as script", {at.X, at.Y, script.Width, script.Height}, [&](IGraphicsEngine& g) {
        g.DrawScriptText(L"HIH", &font, at.X, at.Y, &ink);
        return Status::Ok;
    });
}

TEST(GdiText, TurnsWithItsTransform) {
    const Font font{L"Liberation Sans", 5.0F, FontStyle::Underline};
    const SolidBrush ink{kBlack};
    const auto engine = CGraphicsEngine::ForRaster({30, 30}, 254, kWhite);
    engine->TranslateTransform(15, 28, MatrixOrder::Prepend);
    engine->RotateTransform(-90, MatrixOrder::Prepend);
    engine->DrawString(L"HHHH", -1, &font, PointF{0, 0}, &ink);
    const Ink drawn = InkOf(engine->Pixels());
    EXPECT_LT(drawn.Right - drawn.Left, 60);
    EXPECT_NEAR(drawn.Bottom, 280, 8);
    EXPECT_NEAR(drawn.Bottom - drawn.Top, 10 * CStringUtil::MeasureLine(L"HHHH", font), 10);
}

TEST(GdiText, AnUnknownFamilyIsReplaced) {
    const std::wstring replacement = ResolvedFamily(L"No such family");
    EXPECT_FALSE(replacement.empty());
    EXPECT_NE(replacement, L"No such family");
    const Font unknown{L"No such family"};
    EXPECT_GT(CStringUtil::MeasureLine(L"text", unknown), 0.0F);
}

TEST(GdiText, HasOutlines) {
    const Font font{L"Liberation Sans", 10.0F, FontStyle::Strikeout};
    const GraphicsPath outline = OutlineOfLine(L"o", font);
    EXPECT_EQ(outline.Figures().size(), 3U) << "two of the letter, one of the line through it";
    EXPECT_TRUE(OutlineOfLine(L"", font).IsEmpty());
    EXPECT_EQ(MissingCharacters(L"a国a\xE123", font), L"\xE123");
}

TEST(GraphicsUtil, ConvertsLogicalFontsBothWays) {
    const CGraphicsUtil util;
    EXPECT_NE(util.GetGraphics(), nullptr);
    HDC screen = GetDC(nullptr);
    const int pixelsPerInch = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    ASSERT_EQ(pixelsPerInch, 96);
    LOGFONTW picked{};
    picked.lfHeight = -16; // 12 points
    picked.lfWeight = FW_BOLD;
    picked.lfUnderline = TRUE;
    std::wstring(L"@宋体").copy(picked.lfFaceName, LF_FACESIZE - 1);
    const Font font = CGraphicsUtil::FontOf(picked);
    EXPECT_NEAR(font.Size, 4.2301F, 1e-4F);
    EXPECT_EQ(font.Family, L"宋体");
    EXPECT_EQ(font.Style, FontStyle::Bold | FontStyle::Underline);
    LOGFONTW back{};
    CGraphicsUtil::ToLogicalFont(font, back);
    EXPECT_EQ(back.lfHeight, -16);
    EXPECT_EQ(back.lfWeight, FW_BOLD);
    EXPECT_EQ(back.lfUnderline, 1);
    EXPECT_EQ(back.lfItalic, 0);
    EXPECT_STREQ(back.lfFaceName, L"宋体");
    CGraphicsUtil::ToLogicalFont(Font{std::wstring(100, L'x'), -1.0F}, back);
    EXPECT_EQ(back.lfHeight, 0);
    EXPECT_EQ(std::wstring(back.lfFaceName).size(), LF_FACESIZE - 1U);
}
