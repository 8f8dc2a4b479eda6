#include "penlode/Image.h"

#include "penlode/Units.h"

#include <algorithm>
#include <cmath>

namespace penlode {

Color Adjusted(Color color, const ImageAttributes& attributes) {
    const std::array<float, 5> in{
        static_cast<float>(color.R()) / 255.0F, static_cast<float>(color.G()) / 255.0F,
        static_cast<float>(color.B()) / 255.0F, static_cast<float>(color.A()) / 255.0F, 1.0F};
    std::array<std::uint32_t, 4> out{};
    for (std::size_t column = 0; column < out.size(); ++column) {
        float sum = 0.0F;
        for (std::size_t row = 0; row < in.size(); ++row) {
            sum += in[row] * attributes.ColorMatrix[row][column];
        }
        out[column] = sum > 0.0F ? static_cast<std::uint32_t>(std::lround(std::min(sum, 1.0F) * 255.0F)) : 0U;
    }
    return Color::FromArgb(out[3], out[0], out[1], out[2]);
}

std::optional<RectF> SourceInPixels(const Image& image, const RectF& source, Unit unit) {
    const double x = PixelsPerUnit(unit, image.HorizontalDpi);
    const double y = PixelsPerUnit(unit, image.VerticalDpi);
    if (!(x > 0.0 && y > 0.0 && std::isfinite(x) && std::isfinite(y))) {
        return std::nullopt;
    }
    return RectF{static_cast<float>(source.X * x), static_cast<float>(source.Y * y),
                 static_cast<float>(source.Width * x), static_cast<float>(source.Height * y)};
}

} // namespace penlode
