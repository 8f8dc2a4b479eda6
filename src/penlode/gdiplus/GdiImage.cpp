#include "penlode/engine/DeviceImage.h"
#include "penlode/gdiplus/GdiCanvas.h"

#include <array>
#include <cmath>

namespace penlode {
namespace {

/// Pixels that GDI+ draws from without a copy of its own.
struct CopiedPixels {
    std::vector<std::uint32_t> Words;
    GdipBitmap Bitmap;
};

Status Copy(const ImagePart& drawn, const PixelRect& part, CopiedPixels& copy) {
    copy.Words.resize(static_cast<std::size_t>(part.Width) * static_cast<std::size_t>(part.Height));
    auto* const rows = reinterpret_cast<unsigned char*>(copy.Words.data());
    const INT stride = part.Width * 4;
    const Status status = CopyPixels(drawn, part, rows, stride);
    if (status == Status::Ok) {
        copy.Bitmap = Created<GdipBitmap>(flat::GdipCreateBitmapFromScan0, part.Width, part.Height, stride,
                                          PixelFormat32bppPARGB, rows);
    }
    return status == Status::Ok && copy.Bitmap == nullptr ? Status::OutOfMemory : status;
}

/// An enlarged picture keeps its edges: its outermost pixels are repeated beyond them.
GdipImageAttributes RepeatedEdges() {
    GdipImageAttributes attributes = Created<GdipImageAttributes>(flat::GdipCreateImageAttributes);
    if (attributes != nullptr) {
        flat::GdipSetImageAttributesWrapMode(attributes.get(), Gdiplus::WrapModeTileFlipXY, 0, FALSE);
    }
    return attributes;
}

/// One pixel is the same everywhere: a colour.
void FillVisible(const GdiPainter& painter, const PlacedImage& image, Color color) {
    GraphicsPath area;
    area.AddRectangle(Narrowed(image.Visible));
    if (const GdipPath path = AreaOf(area, image.PixelsToDevice, painter.GuardBand())) {
        flat::GdipFillPath(painter.Graphics(), painter.Canvas().BrushFor(color), path.get());
    }
}

void DrawVisible(const GdiPainter& painter, const PlacedImage& image, Gdiplus::GpBitmap* bitmap) {
    // Whole pixels, and one more, of what can be seen: GDI+ counts in single precision.
    const BoxD seen = Mapped(image.PixelsToDevice.Inverted(), painter.GuardBand());
    const BoxD v = Common(image.Visible, RoundedOut(seen).Grown(1.0));
    if (v.Width() <= 0.0 || v.Height() <= 0.0) {
        return;
    }
    const auto corner = [&](double x, double y) {
        const PointD p = Mapped(image.PixelsToDevice, PointD{x, y});
        return Gdiplus::PointF(static_cast<float>(p.X), static_cast<float>(p.Y));
    };
    const std::array<Gdiplus::PointF, 3> corners{corner(v.Left, v.Top), corner(v.Right, v.Top),
                                                 corner(v.Left, v.Bottom)};
    const GdipImageAttributes edges = RepeatedEdges();
    painter.Canvas().SetPlainTransform({});
    flat::GdipSetPixelOffsetMode(painter.Graphics(), Gdiplus::PixelOffsetModeHalf);
    flat::GdipSetInterpolationMode(painter.Graphics(), Gdiplus::InterpolationModeHighQualityBilinear);
    flat::GdipDrawImagePointsRect(
        painter.Graphics(), bitmap, corners.data(), 3, static_cast<float>(v.Left - image.Part.X),
        static_cast<float>(v.Top - image.Part.Y), static_cast<float>(v.Width()),
        static_cast<float>(v.Height()), Gdiplus::UnitPixel, edges.get(), nullptr, nullptr);
    flat::GdipSetPixelOffsetMode(painter.Graphics(), Gdiplus::PixelOffsetModeNone);
    painter.Canvas().GoHome();
}

} // namespace

Status PaintImage(const GdiPainter& painter, const ImagePart& drawn) {
    const std::optional<PlacedImage> image = Placed(painter, drawn);
    if (!image) {
        return Status::Ok;
    }
    if (image->Part.Width > kMaxImageSide || image->Part.Height > kMaxImageSide) {
        return Status::ValueOverflow;
    }
    CopiedPixels copy;
    const Status status = Copy(drawn, image->Part, copy);
    if (status == Status::Ok && image->Part.IsOnePixel()) {
        const auto first =
            static_cast<std::size_t>(image->Part.Y) * static_cast<std::size_t>(drawn.Picture->Width) +
            static_cast<std::size_t>(image->Part.X);
        const Color color = drawn.Picture->Pixels[first];
        FillVisible(painter, *image,
                    drawn.Attributes == nullptr ? color : Adjusted(color, *drawn.Attributes));
    } else if (status == Status::Ok) {
        DrawVisible(painter, *image, copy.Bitmap.get());
    }
    return status;
}

} // namespace penlode
