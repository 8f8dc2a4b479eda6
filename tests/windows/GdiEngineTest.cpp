#include "penlode/GraphicsEngine.h"
#include "support/PngFile.h"

#include <cstring>
#include <gtest/gtest.h>
#include <windows.h>

using namespace penlode;

namespace {

/// A picture in memory that GDI draws on.
class MemoryPicture {
public:
    MemoryPicture(int width, int height) : m_dc(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        m_bitmap = CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_before = SelectObject(m_dc, m_bitmap);
    }

    ~MemoryPicture() {
        SelectObject(m_dc, m_before);
        DeleteObject(m_bitmap);
        DeleteDC(m_dc);
    }

    MemoryPicture(const MemoryPicture&) = delete;
    MemoryPicture& operator=(const MemoryPicture&) = delete;

    HDC Context() const { return m_dc; }

    COLORREF At(int x, int y) const { return GetPixel(m_dc, x, y); }

private:
    HDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_before;
};

constexpr COLORREF kRed = RGB(255, 0, 0);
const SolidBrush kRedBrush{Color{0xFFFF0000}};

} // namespace

TEST(GdiEngine, RefusesWhatItCannotDrawOn) {
    EXPECT_EQ(CGraphicsEngine::ForRaster({0, 5}, 96, kWhite), nullptr);
    EXPECT_EQ(CGraphicsEngine::ForRaster({NAN, 5}, 96, kWhite), nullptr);
    EXPECT_EQ(CGraphicsEngine::ForRaster({5, 5}, 0.5, kWhite), nullptr);
    EXPECT_EQ(CGraphicsEngine::ForRaster({4000, 4000}, 9600, kWhite), nullptr);
    EXPECT_EQ(CGraphicsEngine::ForDeviceContext(nullptr), nullptr);
    EXPECT_EQ(CGraphicsEngine::ForMetafile({6000, 10}), nullptr);
    EXPECT_EQ(CGraphicsEngine::ForMetafile({-1, 10}), nullptr);
}

TEST(GdiEngine, APictureKnowsItsSizeAndWhetherItIsOpaque) {
    const auto opaque = CGraphicsEngine::ForRaster({80, 60}, 300, kWhite);
    const std::string file = opaque->EncodePng();
    EXPECT_EQ(PngNumber(file, "IHDR", 0), 945U);
    EXPECT_EQ(PngNumber(file, "IHDR", 4), 709U);
    EXPECT_NEAR(PngNumber(file, "pHYs", 0), 11811, 1) << "pixels in a metre";
    EXPECT_FALSE(PngHasAlpha(file));
    const auto clear = CGraphicsEngine::ForRaster({10, 10}, 25.4, Color{0});
    const SolidBrush half{Color{0x80FF0000}};
    clear->FillRectangle(&half, 2, 2, 3, 3);
    EXPECT_TRUE(PngHasAlpha(clear->EncodePng()));
    const Image picture = DecodePng(clear->EncodePng());
    EXPECT_EQ(picture.Pixels, clear->Pixels().Pixels);
    EXPECT_EQ(picture.Pixels[3 * 10 + 3], Color{0x80FF0000});
    EXPECT_EQ(picture.Pixels[0].A(), 0U);
    EXPECT_EQ(clear->FinishMetafile(), "");
}

TEST(GdiEngine, AContextComesBackAsItWasFound) {
    const MemoryPicture picture(40, 40);
    HDC dc = picture.Context();
    SetViewportOrgEx(dc, 10, 0, nullptr);
    IntersectClipRect(dc, 0, 0, 20, 20);
    SetTextColor(dc, kRed);
    HGDIOBJ pen = SelectObject(dc, GetStockObject(WHITE_PEN));
    {
        const auto engine = CGraphicsEngine::ForDeviceContext(dc, 25.4); // a pixel a millimetre
        engine->SetClip(RectF{0, 0, 5, 30}, CombineMode::Replace);
        engine->RotateTransform(0.0F, MatrixOrder::Prepend);
        EXPECT_EQ(engine->FillRectangle(&kRedBrush, 0, 0, 30, 30), Status::Ok);
        EXPECT_EQ(engine->EncodePng(), "");
        EXPECT_TRUE(engine->Pixels().Pixels.empty());
    }
    RECT clip{};
    GetClipBox(dc, &clip);
    EXPECT_EQ(clip.right - clip.left, 20);
    POINT origin{};
    GetViewportOrgEx(dc, &origin);
    EXPECT_EQ(origin.x, 10);
    EXPECT_EQ(GetTextColor(dc), kRed);
    EXPECT_EQ(SelectObject(dc, pen), GetStockObject(WHITE_PEN));
    SelectClipRgn(dc, nullptr);
    EXPECT_EQ(picture.At(0, 0), kRed) << "from the viewport's origin";
    EXPECT_EQ(picture.At(4, 19), kRed);
    EXPECT_EQ(picture.At(5, 10), 0U) << "outside the engine's clip";
    EXPECT_EQ(picture.At(4, 20), 0U) << "outside the context's";
    EXPECT_EQ(picture.At(-1, 10), 0U);
}

TEST(GdiEngine, CountsInTheUnitsAndAtTheScaleThatAreSet) {
    const MemoryPicture picture(200, 100);
    const auto engine = CGraphicsEngine::ForDeviceContext(picture.Context(), 50.8); // two pixels a millimetre
    EXPECT_EQ(engine->GetPageUnit(), Unit::Millimeter);
    engine->SetPageScale(4.0F); // a host's zoom
    engine->FillRectangle(&kRedBrush, 1, 1, 10, 5);
    EXPECT_EQ(picture.At(8, 8), kRed);
    EXPECT_EQ(picture.At(7, 8), 0U);
    EXPECT_EQ(picture.At(87, 47), kRed);
    EXPECT_EQ(picture.At(88, 47), 0U);
    const std::uint32_t container = engine->BeginContainer();
    engine->SetPageUnit(Unit::Inch);
    engine->FillRectangle(&kRedBrush, 2, 1, 1, 0.5F);
    engine->EndContainer(container);
    EXPECT_EQ(picture.At(102, 52), kRed);
    EXPECT_EQ(engine->GetPageScale(), 4.0F);
}

TEST(GdiEngine, AMetafileHasItsRealSizeAndEnds) {
    const auto engine = CGraphicsEngine::ForMetafile({80, 60});
    const Pen pen(kBlack, 0.5F);
    engine->FillRectangle(&kRedBrush, 10, 10, 60, 40);
    engine->DrawEllipse(&pen, 10, 10, 60, 40);
    const std::string file = engine->FinishMetafile();
    EXPECT_EQ(engine->FinishMetafile(), file);
    EXPECT_EQ(engine->DrawLine(&pen, 0, 0, 9, 9), Status::WrongState);
    HENHMETAFILE metafile =
        SetEnhMetaFileBits(static_cast<UINT>(file.size()), reinterpret_cast<const BYTE*>(file.data()));
    ENHMETAHEADER header{};
    ASSERT_NE(GetEnhMetaFileHeader(metafile, sizeof header, &header), 0U);
    EXPECT_EQ(header.rclFrame.right - header.rclFrame.left, 8000) << "hundredths of a millimetre";
    EXPECT_EQ(header.rclFrame.bottom - header.rclFrame.top, 6000);
    const MemoryPicture picture(80, 60);
    const RECT whole{0, 0, 80, 60};
    EXPECT_TRUE(PlayEnhMetaFile(picture.Context(), metafile, &whole));
    EXPECT_EQ(picture.At(40, 30), kRed) << "programs without GDI+ see it too";
    EXPECT_EQ(picture.At(5, 30), 0U);
    EXPECT_EQ(picture.At(75, 30), 0U);
    EXPECT_EQ(picture.At(40, 13), kRed);
    EXPECT_EQ(picture.At(40, 47), kRed);
    EXPECT_EQ(picture.At(40, 6), 0U) << "each way by its own resolution";
    EXPECT_EQ(picture.At(40, 54), 0U);
    DeleteEnhMetaFile(metafile);
}

TEST(GdiEngine, LongLinesShowWhatTheirPointsShow) {
    std::vector<PointF> points;
    for (int i = 0; i < 200000; ++i) {
        points.push_back({static_cast<float>(i) / 2000.0F, i % 2 == 0 ? 10.0F : 30.0F});
    }
    const Pen pen(kBlack, 0.2F);
    const auto engine = CGraphicsEngine::ForRaster({100, 40}, 50.8, kWhite);
    EXPECT_EQ(engine->DrawLines(&pen, points.data(), 200000), Status::Ok);
    const Image picture = engine->Pixels();
    for (const int y : {22, 40, 58}) {
        for (int x = 2; x < 198; ++x) {
            ASSERT_NE(picture.Pixels[static_cast<std::size_t>(y * picture.Width + x)], kWhite)
                << x << ", " << y;
        }
    }
    points[150000].X = NAN;
    EXPECT_EQ(engine->DrawLines(&pen, points.data(), 200000), Status::InvalidParameter);
}
