#include "penlode/engine/DeviceImage.h"

#include <cmath>
#include <cstring>

namespace penlode {
namespace {

constexpr std::int32_t kRowsPerQuestion = 64;

constexpr double kMaxScale = 32767.0;

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

/// The map from image pixels to device units: the source rectangle's corners land on the destination's.
Matrix PixelsToDevice(const DeviceView& view, const RectF& source, const RectF& destination) {
    const Matrix toUnit =
        Matrix::Translation(-source.X, -source.Y) * Matrix::Scale(1.0 / source.Width, 1.0 / source.Height);
    const std::optional<BoxD> box = view.DeviceBox(destination);
    const Matrix& m = view.ToDevice();
    const bool upright = m.M12 == 0.0 && m.M21 == 0.0 && m.M11 > 0.0 && m.M22 > 0.0;
    if (box && upright && destination.Width > 0.0F && destination.Height > 0.0F) {
        return toUnit * Matrix::Scale(box->Width(), box->Height()) * Matrix::Translation(box->Left, box->Top);
    }
    return toUnit * Matrix::Scale(destination.Width, destination.Height) *
           Matrix::Translation(destination.X, destination.Y) * m;
}

} // namespace

std::optional<PlacedImage> Placed(const DeviceView& view, const ImagePart& drawn) {
    const Image& image = *drawn.Picture;
    const RectF& s = drawn.Source;
    const BoxD source = BoxBetween({s.X, s.Y}, {s.Right(), s.Bottom()});
    const PixelRect part = Covered(image, source);
    const Matrix pixelsToDevice = PixelsToDevice(view, s, drawn.Destination);
    if (part.Width <= 0 || part.Height <= 0 || !(part.IsOnePixel() || IsSound(pixelsToDevice, kMaxScale))) {
        return std::nullopt;
    }
    const BoxD whole{0.0, 0.0, static_cast<double>(image.Width), static_cast<double>(image.Height)};
    return PlacedImage{part, Common(source, whole), pixelsToDevice};
}

Status CopyPixels(const ImagePart& drawn, const PixelRect& part, unsigned char* rows, std::ptrdiff_t stride) {
    for (std::int32_t row = 0; row < part.Height; ++row) {
        if (drawn.Abort != nullptr && row % kRowsPerQuestion == 0 && drawn.Abort(drawn.CallbackData)) {
            return Status::Aborted;
        }
        CopyRow(*drawn.Picture, part, row, drawn.Attributes, rows + row * stride);
    }
    return Status::Ok;
}

} // namespace penlode
