#include "penlode/engine/DeviceImage.h"

#include <cmath>
#include <cstring>

namespace penlode {
namespace {

constexpr std::int32_t kRowsPerQuestion = 64;

constexpr double kMaxScale = 32767.0;

/// The image's whole pixels that hold its visible part.
PixelRect Covered(const BoxD& image, const BoxD& visible) {
    const BoxD whole = RoundedOut(visible);
    const PointD from = image.Nearest({whole.Left, whole.Top});
    const PointD to = image.Nearest({whole.Right, whole.Bottom});
    return {static_cast<std::int32_t>(from.X), static_cast<std::int32_t>(from.Y),
            static_cast<std::int32_t>(to.X - from.X), static_cast<std::int32_t>(to.Y - from.Y)};
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
    const BoxD image{0.0, 0.0, static_cast<double>(drawn.Picture->Width),
                     static_cast<double>(drawn.Picture->Height)};
    const RectF& s = drawn.Source;
    const BoxD visible = Common(BoxBetween({s.X, s.Y}, {s.Right(), s.Bottom()}), image);
    const PixelRect part = Covered(image, visible);
    const Matrix pixelsToDevice = PixelsToDevice(view, s, drawn.Destination);
    if (part.Width <= 0 || part.Height <= 0 || !(part.IsOnePixel() || IsSound(pixelsToDevice, kMaxScale))) {
        return std::nullopt;
    }
    return PlacedImage{part, visible, pixelsToDevice};
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
