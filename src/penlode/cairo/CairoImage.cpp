#include "penlode/cairo/CairoOperations.h"
#include "penlode/cairo/CairoOutline.h"

#include <cmath>
#include <cstring>

namespace penlode {
namespace {

constexpr std::int32_t kRowsPerQuestion = 64;

constexpr double kMaxScale = 32767.0;

/// Cairo's limit for the sides of an image.
constexpr std::int32_t kMaxSide = 32767;

/// Whole pixels of an image.
struct PixelRect {
    std::int32_t X;
    std::int32_t Y;
    std::int32_t Width;
    std::int32_t Height;
};

/// The whole pixels that hold the part of the source inside the image.
PixelRect Covered(const Image& image, const BoxD& source) {
    const BoxD inside =
        Common(source, {0.0, 0.0, static_cast<double>(image.Width), static_cast<double>(image.Height)});
    const auto left = static_cast<std::int32_t>(std::min<double>(std::floor(inside.Left), image.Width));
    const auto top = static_cast<std::int32_t>(std::min<double>(std::floor(inside.Top), image.Height));
    const auto right = static_cast<std::int32_t>(std::min<double>(std::ceil(inside.Right), image.Width));
    const auto bottom = static_cast<std::int32_t>(std::min<double>(std::ceil(inside.Bottom), image.Height));
    return {left, top, right - left, bottom - top};
}

std::uint32_t Premultiplied(Color color) {
    const auto times = [&](std::uint32_t channel) { return (channel * color.A() + 127U) / 255U; };
    return (color.A() << 24U) | (times(color.R()) << 16U) | (times(color.G()) << 8U) | times(color.B());
}

void CopyRow(const Image& image, const PixelRect& part, std::int32_t row, const ImageAttributes* attributes,
             unsigned char* out) {
    const auto first = static_cast<std::size_t>(part.Y + row) * static_cast<std::size_t>(image.Width) +
                       static_cast<std::size_t>(part.X);
    for (std::size_t x = 0; x < static_cast<std::size_t>(part.Width); ++x) {
        const Color color = image.Pixels[first + x];
        const std::uint32_t word =
            Premultiplied(attributes == nullptr ? color : Adjusted(color, *attributes));
        std::memcpy(out + 4 * x, &word, sizeof word);
    }
}

/// A Cairo copy of a part of the image. Null when the callback asked to stop, or memory ran out.
CairoSurface Copied(const ImagePart& drawn, const PixelRect& part, Status& status) {
    CairoSurface copy(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, part.Width, part.Height));
    if (cairo_surface_status(copy.get()) != CAIRO_STATUS_SUCCESS) {
        status = Status::OutOfMemory;
        return nullptr;
    }
    unsigned char* data = cairo_image_surface_get_data(copy.get());
    const int stride = cairo_image_surface_get_stride(copy.get());
    for (std::int32_t row = 0; row < part.Height; ++row) {
        if (drawn.Abort != nullptr && row % kRowsPerQuestion == 0 && drawn.Abort(drawn.CallbackData)) {
            status = Status::Aborted;
            return nullptr;
        }
        CopyRow(*drawn.Picture, part, row, drawn.Attributes,
                data + static_cast<std::ptrdiff_t>(row) * stride);
    }
    cairo_surface_mark_dirty(copy.get());
    return copy;
}

/// The map from image pixels to device units: the source rectangle's corners land on the destination's.
Matrix PixelsToDevice(const Painter& painter, const RectF& source, const RectF& destination) {
    const Matrix toUnit =
        Matrix::Translation(-source.X, -source.Y) * Matrix::Scale(1.0 / source.Width, 1.0 / source.Height);
    const std::optional<BoxD> box = painter.DeviceBox(destination);
    const Matrix& m = painter.ToDevice();
    const bool upright = m.M12 == 0.0 && m.M21 == 0.0 && m.M11 > 0.0 && m.M22 > 0.0;
    if (box && upright && destination.Width > 0.0F && destination.Height > 0.0F) {
        return toUnit * Matrix::Scale(box->Width(), box->Height()) * Matrix::Translation(box->Left, box->Top);
    }
    return toUnit * Matrix::Scale(destination.Width, destination.Height) *
           Matrix::Translation(destination.X, destination.Y) * m;
}

bool IsOnePixel(const PixelRect& part) {
    return part.Width == 1 && part.Height == 1;
}

/// A pattern that repeats the image's outermost pixels, so that an enlarged picture keeps its edges. One
/// pixel is the same everywhere, and needs no map that Cairo might not be able to count in.
CairoPattern PatternOf(cairo_surface_t* copy, const PixelRect& part, const Matrix& pixelsToDevice) {
    CairoPattern pattern(cairo_pattern_create_for_surface(copy));
    if (!IsOnePixel(part)) {
        const cairo_matrix_t matrix =
            ToCairo(pixelsToDevice.Inverted() * Matrix::Translation(-part.X, -part.Y));
        cairo_pattern_set_matrix(pattern.get(), &matrix);
    }
    cairo_pattern_set_extend(pattern.get(), CAIRO_EXTEND_PAD);
    return pattern;
}

/// Fills the image's visible part.
void PaintPart(const Painter& painter, cairo_surface_t* copy, const PixelRect& part, const BoxD& visible,
               const Matrix& pixelsToDevice) {
    GraphicsPath area;
    area.AddRectangle(Narrowed(visible));
    if (!AddArea(painter.Context(), area, pixelsToDevice, painter.GuardBand())) {
        return;
    }
    const CairoPattern pattern = PatternOf(copy, part, pixelsToDevice);
    cairo_set_source(painter.Context(), pattern.get());
    cairo_fill(painter.Context());
}

} // namespace

Status PaintImage(const Painter& painter, const ImagePart& drawn) {
    const Image& image = *drawn.Picture;
    const RectF& s = drawn.Source;
    const BoxD source = BoxBetween({s.X, s.Y}, {s.Right(), s.Bottom()});
    const PixelRect part = Covered(image, source);
    const Matrix pixelsToDevice = PixelsToDevice(painter, s, drawn.Destination);
    const bool countable = IsOnePixel(part) || IsSound(pixelsToDevice, kMaxScale);
    if (part.Width <= 0 || part.Height <= 0 || !countable) {
        return Status::Ok;
    }
    if (part.Width > kMaxSide || part.Height > kMaxSide) {
        return Status::ValueOverflow;
    }
    Status status = Status::Ok;
    const CairoSurface copy = Copied(drawn, part, status);
    if (copy != nullptr) {
        const BoxD visible =
            Common(source, {0.0, 0.0, static_cast<double>(image.Width), static_cast<double>(image.Height)});
        PaintPart(painter, copy.get(), part, visible, pixelsToDevice);
    }
    return status;
}

} // namespace penlode
