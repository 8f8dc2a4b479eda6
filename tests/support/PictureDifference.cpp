#include "support/PictureDifference.h"

#include <algorithm>
#include <array>
#include <ostream>

using penlode::Color;
using penlode::Image;

namespace {

std::uint32_t Distance(std::uint32_t a, std::uint32_t b) {
    return a > b ? a - b : b - a;
}

std::uint32_t Distance(Color a, Color b) {
    return std::max(
        {Distance(a.A(), b.A()), Distance(a.R(), b.R()), Distance(a.G(), b.G()), Distance(a.B(), b.B())});
}

std::size_t IndexOf(const Image& image, std::int32_t x, std::int32_t y) {
    return static_cast<std::size_t>(std::clamp(y, 0, image.Height - 1)) *
               static_cast<std::size_t>(image.Width) +
           static_cast<std::size_t>(std::clamp(x, 0, image.Width - 1));
}

Color MeanAround(const Image& image, std::int32_t x, std::int32_t y) {
    std::array<std::uint32_t, 4> sum{};
    for (std::int32_t dy = -1; dy <= 1; ++dy) {
        for (std::int32_t dx = -1; dx <= 1; ++dx) {
            const Color pixel = image.Pixels[IndexOf(image, x + dx, y + dy)];
            sum[0] += pixel.A();
            sum[1] += pixel.R();
            sum[2] += pixel.G();
            sum[3] += pixel.B();
        }
    }
    return Color::FromArgb(sum[0] / 9, sum[1] / 9, sum[2] / 9, sum[3] / 9);
}

template <class Visit> void ForEachPixel(const Image& image, const Visit& visit) {
    for (std::int32_t y = 0; y < image.Height; ++y) {
        for (std::int32_t x = 0; x < image.Width; ++x) {
            visit(x, y);
        }
    }
}

template <class Distance>
PictureDifference Difference(const Image& a, const Image& b, std::uint32_t tolerance,
                             const Distance& distance) {
    if (a.Width != b.Width || a.Height != b.Height || !a.IsDrawable() || !b.IsDrawable()) {
        return {};
    }
    PictureDifference found{0.0, 0, a.Width, a.Height, -1, -1};
    std::size_t count = 0;
    ForEachPixel(a, [&](std::int32_t x, std::int32_t y) {
        const std::uint32_t apart = distance(x, y);
        found.Largest = std::max(found.Largest, apart);
        if (apart > tolerance) {
            ++count;
            found.Left = std::min(found.Left, x);
            found.Top = std::min(found.Top, y);
            found.Right = std::max(found.Right, x);
            found.Bottom = std::max(found.Bottom, y);
        }
    });
    found.Share = static_cast<double>(count) / static_cast<double>(a.Pixels.size());
    return found;
}

} // namespace

std::ostream& operator<<(std::ostream& stream, const PictureDifference& difference) {
    return stream << difference.Share * 100.0 << " % of the pixels differ, by up to " << difference.Largest
                  << ", from (" << difference.Left << ", " << difference.Top << ") to (" << difference.Right
                  << ", " << difference.Bottom << ")";
}

PictureDifference Compare(const Image& a, const Image& b, std::uint32_t tolerance) {
    return Difference(a, b, tolerance, [&](std::int32_t x, std::int32_t y) {
        return Distance(a.Pixels[IndexOf(a, x, y)], b.Pixels[IndexOf(b, x, y)]);
    });
}

PictureDifference CompareSmoothed(const Image& a, const Image& b, std::uint32_t tolerance) {
    return Difference(a, b, tolerance, [&](std::int32_t x, std::int32_t y) {
        const std::uint32_t sharp = Distance(a.Pixels[IndexOf(a, x, y)], b.Pixels[IndexOf(b, x, y)]);
        return sharp <= tolerance ? sharp
                                  : std::min(sharp, Distance(MeanAround(a, x, y), MeanAround(b, x, y)));
    });
}
