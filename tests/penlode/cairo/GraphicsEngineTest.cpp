#include "penlode/cairo/GraphicsEngine.h"

#include "penlode/cairo/CairoCanvas.h"
#include "penlode/cairo/Picture.h"
#include "support/PngFile.h"

#include <array>
#include <cairo.h>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

using namespace penlode;

namespace {

const SolidBrush kBrush{kBlack};
const Font kFont;
constexpr float kNan = std::numeric_limits<float>::quiet_NaN();

} // namespace

TEST(GraphicsEngine, RefusesSurfacesThatCannotBe) {
    for (const SizeF size : {SizeF{0, 10}, SizeF{10, -1}, SizeF{kNan, 10}, SizeF{10, INFINITY},
                             SizeF{33e3F, 0.3F}, SizeF{0.3F, 33e3F}}) {
        EXPECT_EQ(CGraphicsEngine::ForRaster(size, 25.4, kWhite), nullptr);
        EXPECT_EQ(CGraphicsEngine::ForPdf(size), nullptr);
    }
    EXPECT_EQ(CGraphicsEngine::ForRaster({10, 10}, 0.5, kWhite), nullptr);
    EXPECT_EQ(CGraphicsEngine::ForRaster({10, 10}, NAN, kWhite), nullptr);
    EXPECT_EQ(CGraphicsEngine::ForRaster({10, 10}, 9601, kWhite), nullptr);
    EXPECT_NE(CGraphicsEngine::ForRaster({32767, 0.1F}, 25.4, kWhite), nullptr);
    EXPECT_NE(CGraphicsEngine::ForRaster({25.4F, 25.4F}, 1.0, kWhite), nullptr);
    EXPECT_NE(CGraphicsEngine::ForRaster({0.1F, 0.1F}, 9600, kWhite), nullptr);
    EXPECT_NE(CGraphicsEngine::ForPdf({5080, 0.1F}), nullptr);
    EXPECT_EQ(CGraphicsEngine::ForRaster({30000, 30000}, 25.4, kWhite), nullptr);
    EXPECT_EQ(CGraphicsEngine::ForCairo(nullptr, 96), nullptr);
}

TEST(GraphicsEngine, PngKnowsItsSizeAndResolution) {
    const auto g = CGraphicsEngine::ForRaster({80, 60}, 300, kWhite);
    const std::string file = g->EncodePng();
    EXPECT_EQ(PngNumber(file, "IHDR", 0), 945U);
    EXPECT_EQ(PngNumber(file, "IHDR", 4), 709U);
    EXPECT_EQ(PngNumber(file, "pHYs", 0), 11811U);
    EXPECT_EQ(PngNumber(file, "pHYs", 4), 11811U);
    EXPECT_FALSE(PngHasAlpha(file));
}

TEST(GraphicsEngine, PngKeepsWhatShinesThroughBelowOpaqueRows) {
    const auto g = PixelSurface(3, 9, Color{0x00000000});
    const SolidBrush opaque{Color{0xFF204060}};
    const SolidBrush translucent{Color{0x80FF8000}};
    g->FillRectangle(&opaque, 0, 0, 3, 8);
    g->FillRectangle(&translucent, 2, 8, 1, 1);
    const std::string file = g->EncodePng();
    EXPECT_TRUE(PngHasAlpha(file));
    EXPECT_EQ(PixelAt(DecodePng(file), 2, 0), opaque.FillColor);
    EXPECT_EQ(PixelAt(DecodePng(file), 2, 7), opaque.FillColor);
    EXPECT_EQ(PixelAt(DecodePng(file), 2, 8), translucent.FillColor);
    EXPECT_EQ(PixelAt(DecodePng(file), 0, 8), Color{0});
    EXPECT_EQ(g->Pixels().Pixels, DecodePng(file).Pixels);
}

TEST(GraphicsEngine, ExtremeNumbersAreHarmless) {
    const auto g = PixelSurface(40, 30);
    const float huge = std::numeric_limits<float>::max();
    const std::array<PointF, 4> corners{{{-huge, -huge}, {huge, -huge}, {huge, huge}, {-huge, huge}}};
    std::vector<PointF> data;
    for (std::size_t i = 0; i < 100; ++i) {
        data.push_back(i % 3 == 0 ? PointF{static_cast<float>(i), 7} : corners[i % 4]);
    }
    const Font giant{L"宋体", 1e30F, FontStyle::Regular};
    const Pen wide(kBlack, huge);
    const Pen pen(kBlack, 2.0F);
    for (const float scale : {1e-30F, 1.0F, 1e30F}) {
        g->ResetTransform();
        g->ScaleTransform(scale, scale, MatrixOrder::Prepend);
        g->DrawPolygon(&pen, corners.data(), 4);
        g->DrawLines(&wide, corners.data(), 4);
        g->DrawLines(&wide, data.data(), 100);
        g->DrawLines(&pen, data.data(), 100);
        g->DrawCurve(&pen, corners.data(), 4);
        g->DrawPie(&pen, {-huge, -huge, huge, huge}, 1e30F, huge);
        g->FillEllipse(&kBrush, -huge, -huge, huge, huge);
        g->DrawString(L"大", -1, &giant, PointF{-huge, 0}, &kBrush);
        g->SetClip(RectF{-huge, -huge, huge, huge}, CombineMode::Xor);
        g->ResetClip();
    }
    g->ResetTransform();
    const SolidBrush red{Color{0xFFFF0000}};
    g->FillRectangle(&red, 0, 0, 40, 30);
    EXPECT_EQ(CountOf(g->Pixels(), Color{0xFFFF0000}), 1200);
}

TEST(GraphicsEngine, AFlatteningTransformDrawsNothing) {
    const auto g = PixelSurface(20, 20);
    const Matrix flat = Matrix::Scale(0, 1);
    g->SetTransform(&flat);
    EXPECT_EQ(g->FillRectangle(&kBrush, 0, 0, 9, 9), Status::Ok);
    EXPECT_EQ(g->DrawString(L"x", -1, &kFont, PointF{}, &kBrush), Status::Ok);
    const std::array<GradientVertex, 2> ends{{{0, 0, 0, 0, 0, 0}, {9, 9, 0, 0, 0, 0}}};
    const GradientRect rect{0, 1};
    EXPECT_EQ(g->GradientFill({0, 0, 9, 9}, {}, ends.data(), 2, &rect, 1, GradientMode::RectH), 1);
    EXPECT_EQ(InkOf(*g), 0);
}

TEST(GraphicsEngine, OnAFoldedPlaneAClipCannotBeRead) {
    const auto g = PixelSurface(20, 20);
    g->SetClip(RectF{1, 2, 3, 4}, CombineMode::Replace);
    const Matrix folded{1, 1, 1, 1, 0, 0};
    g->SetTransform(&folded);
    Region region(RectF{5, 5, 5, 5});
    EXPECT_EQ(g->GetClip(&region), Status::InvalidParameter);
    EXPECT_EQ(region, Region(RectF{5, 5, 5, 5}));
    g->ResetTransform();
    EXPECT_EQ(g->GetClip(&region), Status::Ok);
    EXPECT_EQ(region, Region(RectF{1, 2, 3, 4}));
}

TEST(CairoCanvas, AFailedContextIsReplacedOnItsSurface) {
    const CairoSurface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 8, 8));
    CairoCanvas canvas(CairoContext(cairo_create(surface.get())),
                       {{true, 25.4, {0, 0, 8, 8}, {}, {8, 8}}, {}});
    CSurfaceState state(25.4, 25.4);
    state.CombineClip(Region::Shape{RectF{0, 0, 4, 8}}, CombineMode::Replace);
    const auto draw = [&] {
        if (canvas.Begin(state)) {
            cairo_paint(canvas.Context());
        }
        canvas.End();
        return canvas.Recover();
    };
    canvas.Begin(state);
    cairo_scale(canvas.Context(), 0, 0);
    canvas.End();
    EXPECT_EQ(canvas.Surface(), surface.get());
    EXPECT_EQ(canvas.Recover(), Status::GenericError);
    EXPECT_EQ(draw(), Status::Ok);
    cairo_surface_flush(surface.get());
    const unsigned char* alpha = cairo_image_surface_get_data(surface.get()) + 3;
    EXPECT_EQ(alpha[0], 0xFF);
    EXPECT_EQ(alpha[4 * 4], 0) << "the clip goes with the new context";
}

TEST(GraphicsEngine, AContainerRestoresTransformUnitsClipAndSmoothing) {
    const auto g = PixelSurface(20, 20);
    g->TranslateTransform(2, 3, MatrixOrder::Prepend);
    const std::uint32_t container = g->BeginContainer();
    EXPECT_EQ(g->GetPageUnit(), Unit::Display);
    g->SetPageUnit(Unit::Millimeter);
    g->RotateTransform(45, MatrixOrder::Prepend);
    g->SetClip(RectF{0, 0, 1, 1}, CombineMode::Replace);
    g->SetSmoothingMode(SmoothingMode::None);
    g->FillRectangle(&kBrush, 5, 5, 9, 9);
    EXPECT_EQ(InkOf(*g), 0);
    EXPECT_EQ(g->EndContainer(container), Status::Ok);
    EXPECT_EQ(g->GetSmoothingMode(), SmoothingMode::AntiAlias);
    g->FillRectangle(&kBrush, 0, 0, 4, 5);
    EXPECT_EQ(PixelAt(g->Pixels(), 2, 3), kBlack);
    EXPECT_EQ(PixelAt(g->Pixels(), 5, 7), kBlack);
    EXPECT_EQ(InkOf(*g), 20);
}

TEST(GraphicsEngine, APdfWritesWhatIsNoCharacterAsUnknown) {
    const auto file = [](const wchar_t* text) {
        const auto g = CGraphicsEngine::ForPdf({80, 60});
        EXPECT_EQ(g->DrawString(text, -1, &kFont, PointF{5, 5}, &kBrush), Status::Ok);
        return g->FinishPdf();
    };
    EXPECT_EQ(file(L"a\xFFFE"
                   L"b\xFFFF"
                   L"c\xFDD0"
                   L"d\x1FFFE"
                   L"e"),
              file(L"a\xFFFD"
                   L"b\xFFFD"
                   L"c\xFFFD"
                   L"d\xFFFD"
                   L"e"));
    EXPECT_NE(file(L"a\xFDCF"), file(L"a\xFFFD"));
}

TEST(GraphicsEngine, PdfIsTheSameEveryTimeAndEndsThePage) {
    const auto draw = [] {
        auto g = CGraphicsEngine::ForPdf({80, 60});
        g->FillRectangle(&kBrush, 5, 5, 20, 20);
        g->DrawString(L"深度 12", -1, &kFont, PointF{30, 30}, &kBrush);
        return g;
    };
    const auto g = draw();
    const std::string file = g->FinishPdf();
    EXPECT_EQ(file.substr(0, 5), "%PDF-");
    EXPECT_NE(file.find("226.771"), std::string::npos);
    EXPECT_NE(file.find("/FontFile"), std::string::npos);
    EXPECT_EQ(g->FillRectangle(&kBrush, 0, 0, 9, 9), Status::WrongState);
    EXPECT_EQ(g->FinishPdf(), file);
    EXPECT_EQ(draw()->FinishPdf(), file);
    EXPECT_TRUE(g->EncodePng().empty());
    EXPECT_TRUE(g->Pixels().Pixels.empty());
}

TEST(GraphicsEngine, APdfSaysWhatItIs) {
    const auto file = [](const penlode::PdfTexts& texts) {
        return CGraphicsEngine::ForPdf({80, 60}, texts)->FinishPdf();
    };
    const std::string plain = file({"Depth", ""});
    EXPECT_NE(plain.find("/Title (Depth)"), std::string::npos);
    EXPECT_EQ(plain.find("/Subject"), std::string::npos);
    // UTF-16 in hexadecimal.
    const std::string others = file({"\xE6\xB7\xB1(1)", "no UTF-8: \xFF"});
    EXPECT_NE(others.find("/Title <FEFF6DF1002800310029>"), std::string::npos);
    EXPECT_NE(others.find("/Subject <FEFF006E"), std::string::npos);
    EXPECT_EQ(file({}).find("/Title"), std::string::npos);
}

TEST(GraphicsEngine, FindsTheWholePixelsOfASurfaceThatIsOffByAFraction) {
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_A8, 40, 20);
    cairo_surface_set_device_scale(surface, 2.0, 2.0);
    cairo_surface_set_device_offset(surface, 3.4, 0.3);
    cairo_t* context = cairo_create(surface);
    const SolidBrush black{kBlack};
    CGraphicsEngine::ForCairo(context, 25.4)->FillRectangle(&black, 2, 2, 4, 3);
    cairo_surface_flush(surface);
    const unsigned char* row = cairo_image_surface_get_data(surface);
    int covered = 0;
    for (int y = 0; y < 20; ++y, row += cairo_image_surface_get_stride(surface)) {
        for (int x = 0; x < 40; ++x) {
            EXPECT_TRUE(row[x] == 0 || row[x] == 255) << x << " " << y;
            covered += row[x] == 255 ? 1 : 0;
        }
    }
    EXPECT_EQ(covered, 8 * 6);
    cairo_destroy(context);
    cairo_surface_destroy(surface);
}

TEST(GraphicsEngine, DrawsWhereAHostsContextStandsAndLeavesItSo) {
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, 60, 40);
    cairo_t* context = cairo_create(surface);
    cairo_translate(context, 10, 5);
    cairo_rectangle(context, 0, 0, 12, 12);
    cairo_clip(context);
    cairo_set_operator(context, CAIRO_OPERATOR_DEST);
    {
        const auto g = CGraphicsEngine::ForCairo(context, 25.4);
        const SolidBrush white{kWhite};
        g->SetClip(RectF{0, 0, 99, 4}, CombineMode::Replace);
        g->FillRectangle(&white, 2, 2, 30, 30);
    }
    cairo_matrix_t m;
    cairo_get_matrix(context, &m);
    EXPECT_EQ(m.x0, 10);
    EXPECT_EQ(cairo_get_operator(context), CAIRO_OPERATOR_DEST);
    cairo_surface_flush(surface);
    const unsigned char* data = cairo_image_surface_get_data(surface);
    const auto white = [&](int x, int y) {
        return data[y * cairo_image_surface_get_stride(surface) + 4 * x] == 0xFF;
    };
    EXPECT_TRUE(white(12, 7) && white(21, 8));
    EXPECT_FALSE(white(11, 7) || white(22, 7) || white(12, 9));
    cairo_destroy(context);
    cairo_surface_destroy(surface);
}
