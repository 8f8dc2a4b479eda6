#include "penlode/cairo/PngWriter.h"

#include "penlode/PngChunks.h"
#include "penlode/RunDeflater.h"
#include "penlode/Units.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <utility>
#include <vector>

namespace penlode {
namespace {

using Row = std::vector<std::uint32_t>;

/// The words of a row.
void ReadRow(const PremultipliedPixels& pixels, std::int32_t y, Row& row) {
    std::memcpy(row.data(), pixels.Data + static_cast<std::ptrdiff_t>(y) * pixels.Stride, row.size() * 4);
}

bool IsOpaque(const PremultipliedPixels& pixels, Row& row) {
    for (std::int32_t y = 0; y < pixels.Height; ++y) {
        ReadRow(pixels, y, row);
        std::uint32_t common = 0xFF000000U;
        for (const std::uint32_t word : row) {
            common &= word;
        }
        if (common != 0xFF000000U) {
            return false;
        }
    }
    return true;
}

/// What a pixel's bytes are more than those of the one above, as one word.
std::uint32_t Less(std::uint32_t pixel, std::uint32_t above) {
    constexpr std::uint32_t kHighBits = 0x80808080U;
    return ((pixel | kHighBits) - (above & ~kHighBits)) ^ ((pixel ^ ~above) & kHighBits);
}

/// Writes rows as differences from the row above (PNG's filter type 2).
class RowWriter {
public:
    RowWriter(std::size_t width, bool opaque) : m_size(opaque ? 3 : 4), m_stream(m_size), m_above(width, 0) {}

    /// Straight colours; alpha is left out of opaque pictures.
    void Add(const Row& row) {
        m_stream.Put(2);
        std::array<unsigned char, 4> bytes{};
        std::size_t x = 0;
        while (x < row.size()) {
            const std::uint32_t change = Change(row, x);
            bytes = {static_cast<unsigned char>(change >> 16U), static_cast<unsigned char>(change >> 8U),
                     static_cast<unsigned char>(change), static_cast<unsigned char>(change >> 24U)};
            std::for_each_n(bytes.begin(), m_size, [&](unsigned char byte) { m_stream.Put(byte); });
            const std::size_t first = ++x;
            while (x < row.size() && Change(row, x) == change) {
                ++x;
            }
            if (x > first) {
                m_stream.Repeat(bytes.data(), x - first);
            }
        }
        m_stream.EndRow();
        m_above = row;
    }

    std::string Finish() { return m_stream.Finish(); }

private:
    std::uint32_t Change(const Row& row, std::size_t x) const { return Less(row[x], m_above[x]); }

    std::size_t m_size;
    RunDeflater m_stream;
    Row m_above;
};

std::string Header(const PremultipliedPixels& pixels, bool opaque) {
    constexpr std::string_view kRgb("\x08\x02\0\0\0", 5);
    constexpr std::string_view kRgba("\x08\x06\0\0\0", 5);
    return BigEndian(static_cast<std::uint32_t>(pixels.Width)) +
           BigEndian(static_cast<std::uint32_t>(pixels.Height)) + std::string(opaque ? kRgb : kRgba);
}

std::string PixelsPerMetre(double dpi) {
    return BigEndian(static_cast<std::uint32_t>(std::lround(dpi / kMillimetresPerInch * 1000.0)));
}

} // namespace

std::string EncodePng(const PremultipliedPixels& pixels, double dpiX, double dpiY) {
    if (pixels.Data == nullptr) {
        return {};
    }
    Row row(static_cast<std::size_t>(pixels.Width));
    const bool opaque = IsOpaque(pixels, row);
    RowWriter rows(row.size(), opaque);
    for (std::int32_t y = 0; y < pixels.Height; ++y) {
        ReadRow(pixels, y, row);
        if (!opaque) {
            std::transform(row.begin(), row.end(), row.begin(), Unpremultiplied);
        }
        rows.Add(row);
    }
    std::string file(kPngSignature);
    AddPngChunk(file, "IHDR", Header(pixels, opaque));
    AddPngChunk(file, "pHYs", PixelsPerMetre(dpiX) + PixelsPerMetre(dpiY) + '\x01');
    AddPngStream(file, rows.Finish());
    AddPngChunk(file, "IEND", "");
    return file;
}

std::uint32_t Unpremultiplied(std::uint32_t argb) {
    const std::uint32_t alpha = argb >> 24U;
    if (alpha == 0xFFU || alpha == 0U) {
        return alpha == 0U ? 0U : argb;
    }
    const auto straight = [&](std::uint32_t shift) {
        const std::uint32_t channel = ((argb >> shift) & 0xFFU) * 255U + alpha / 2U;
        return std::min(channel / alpha, 255U) << shift;
    };
    return (alpha << 24U) | straight(16U) | straight(8U) | straight(0U);
}

} // namespace penlode
