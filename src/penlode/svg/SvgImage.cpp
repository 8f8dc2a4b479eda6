#include "penlode/svg/SvgImage.h"

#include "penlode/svg/StoredPng.h"
#include "penlode/svg/SvgGeometry.h"
#include "penlode/svg/SvgPath.h"
#include "penlode/svg/SvgWriter.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>
#include <vector>

namespace penlode::svg {
namespace {

/// An edge so near to a pixel's is on it.
constexpr double kSameEdge = 1e-3;

/// From one place to another along one side of the image, in pixels.
struct Interval {
    double From;
    double To;

    /// Whole pixels that hold it.
    Interval Whole() const { return {std::floor(From + kSameEdge), std::ceil(To - kSameEdge)}; }

    double Length() const { return To - From; }

    bool IsWhole() const {
        return std::abs(From - std::round(From)) <= kSameEdge && std::abs(To - std::round(To)) <= kSameEdge;
    }
};

/// The part of a source side that lies in the image.
Interval Inside(double start, double extent, std::int32_t size) {
    const double low = std::min(start, start + extent);
    const double high = std::max(start, start + extent);
    return {std::clamp<double>(low, 0.0, size), std::clamp<double>(high, 0.0, size)};
}

std::vector<Color> Pixels(const Image& image, const Interval& across, const Interval& down,
                          const ImageAttributes* attributes) {
    const auto width = static_cast<std::ptrdiff_t>(across.Length());
    std::vector<Color> pixels;
    pixels.reserve(static_cast<std::size_t>(across.Length() * down.Length()));
    for (auto row = static_cast<std::ptrdiff_t>(down.From); row < static_cast<std::ptrdiff_t>(down.To);
         ++row) {
        const auto first =
            image.Pixels.begin() + row * image.Width + static_cast<std::ptrdiff_t>(across.From);
        pixels.insert(pixels.end(), first, first + width);
    }
    if (attributes != nullptr) {
        std::transform(pixels.begin(), pixels.end(), pixels.begin(),
                       [attributes](Color color) { return Adjusted(color, *attributes); });
    }
    return pixels;
}

std::string Base64(std::string_view bytes) {
    constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    text.reserve(bytes.size() / 3 * 4 + 4);
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        const std::string_view group = bytes.substr(at, 3);
        std::uint32_t word = 0;
        for (std::size_t i = 0; i < 3; ++i) {
            word = word << 8U | (i < group.size() ? static_cast<unsigned char>(group[i]) : 0U);
        }
        for (std::size_t i = 0; i < 4; ++i) {
            text += i <= group.size() ? kDigits[(word >> (18U - 6U * i)) & 0x3FU] : '=';
        }
    }
    return text;
}

/// The unit square becomes these pixels' place on the page.
void Place(SvgElement& element, const Matrix& m) {
    const bool upright = std::abs(m.M12) + std::abs(m.M21) <= kTurnNoise * m.LengthFactor();
    if (upright && m.M11 > 0.0 && m.M22 > 0.0) {
        element.Set("x", m.Dx).Set("y", m.Dy).Set("width", m.M11).Set("height", m.M22);
        return;
    }
    element.Set("width", "1").Set("height", "1").Set("transform", MatrixText(m));
}

} // namespace

DrawnImage ImageElement(const PageMap& map, const ImagePart& part) {
    const Image& image = *part.Picture;
    const RectF& source = part.Source;
    const RectF& destination = part.Destination;
    const Interval across = Inside(source.X, source.Width, image.Width);
    const Interval down = Inside(source.Y, source.Height, image.Height);
    const Interval columns = across.Whole();
    const Interval rows = down.Whole();
    const Matrix fromPixels = Matrix::Translation(-source.X, -source.Y) *
                              Matrix::Scale(1.0 / source.Width, 1.0 / source.Height) *
                              Matrix::Scale(destination.Width, destination.Height) *
                              Matrix::Translation(destination.X, destination.Y) * map.ToPage;
    if (columns.Length() <= 0.0 || rows.Length() <= 0.0 || !CanMap(fromPixels)) {
        return {};
    }
    std::string clipData;
    if (!across.IsWhole() || !down.IsWhole()) {
        const RectF shown{static_cast<float>(across.From), static_cast<float>(down.From),
                          static_cast<float>(across.Length()), static_cast<float>(down.Length())};
        clipData = PolygonData(AreaOnPage({fromPixels, map.Page}, CornersOf(shown)));
        if (clipData.empty()) {
            return {};
        }
    }
    SvgElement element("image");
    Place(element, Matrix::Scale(columns.Length(), rows.Length()) *
                       Matrix::Translation(columns.From, rows.From) * fromPixels);
    const std::string png =
        StoredPng(Pixels(image, columns, rows, part.Attributes), static_cast<std::size_t>(columns.Length()));
    element.Set("preserveAspectRatio", "none").Set("href", "data:image/png;base64," + Base64(png));
    return {element.Empty(), std::move(clipData)};
}

} // namespace penlode::svg
