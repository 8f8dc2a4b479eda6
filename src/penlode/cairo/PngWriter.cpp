#include "penlode/cairo/PngWriter.h"

#include "penlode/Units.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <csetjmp>
#include <cstring>
#include <limits>
#include <new>
#include <png.h>
#include <utility>
#include <vector>
#include <zlib.h>

namespace penlode {
namespace {

/// A chart is flat areas: less the row above, long runs of one byte. Looking for these alone is faster than
/// zlib's lowest level, and its files are smaller.
constexpr int kCompressionLevel = 1;
constexpr int kCompressionStrategy = Z_RLE;

constexpr std::uint32_t kOpaque = 0xFF000000U;

const unsigned char* RowOf(const PremultipliedPixels& pixels, std::int32_t y) {
    return pixels.Data + static_cast<std::ptrdiff_t>(y) * pixels.Stride;
}

std::uint32_t WordAt(const unsigned char* row, std::size_t x) {
    std::uint32_t word = 0;
    std::memcpy(&word, row + 4 * x, sizeof word);
    return word;
}

/// Red, green and blue, and a fourth byte that the next pixel overwrites: one store is faster than three.
void PutColor(std::uint32_t argb, unsigned char* out) {
    std::uint32_t word = (argb >> 16U & 0xFFU) | (argb & 0xFF00U) | (argb & 0xFFU) << 16U;
    if constexpr (std::endian::native == std::endian::big) {
        word = argb << 8U;
    }
    std::memcpy(out, &word, sizeof word);
}

/// One row as red, green and blue. False when a pixel is not opaque.
bool FillOpaqueRow(const unsigned char* row, std::size_t width, unsigned char* out) {
    std::uint32_t common = kOpaque;
    for (std::size_t x = 0; x < width; ++x, out += 3) {
        const std::uint32_t argb = WordAt(row, x);
        common &= argb;
        PutColor(argb, out);
    }
    return common == kOpaque;
}

/// One row as red, green, blue and alpha.
void FillRow(const unsigned char* row, std::size_t width, unsigned char* out) {
    for (std::size_t x = 0; x < width; ++x, out += 4) {
        const std::uint32_t argb = Unpremultiplied(WordAt(row, x));
        PutColor(argb, out);
        out[3] = static_cast<unsigned char>(argb >> 24U);
    }
}

bool Append(std::string& file, png_bytep bytes, png_size_t count) {
    try {
        file.append(reinterpret_cast<const char*>(bytes), count);
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

void WriteBytes(png_structp png, png_bytep bytes, png_size_t count) {
    if (!Append(*static_cast<std::string*>(png_get_io_ptr(png)), bytes, count)) {
        png_error(png, "out of memory");
    }
}

void FlushNothing(png_structp) {}

void KeepQuiet(png_structp, png_const_charp) {}

/// The message is of no use here; an encoding either succeeds or gives nothing.
[[noreturn]] void GiveUp(png_structp png, png_const_charp) {
    png_longjmp(png, 1);
}

png_uint_32 PixelsPerMetre(double dpi) {
    return static_cast<png_uint_32>(std::lround(dpi / kMillimetresPerInch * 1000.0));
}

/// Everything that an encoding needs, made before the jump target is set: libpng leaves a failed call by
/// longjmp, which must not skip a destructor.
struct Encoding {
    PremultipliedPixels Pixels;
    double DpiX;
    double DpiY;
    bool Opaque;
    std::vector<unsigned char> Row;
    std::string File;
    png_structp Png = nullptr;
    png_infop Info = nullptr;

    ~Encoding() { png_destroy_write_struct(&Png, &Info); }
};

void WriteHeader(Encoding& e) {
    png_set_IHDR(e.Png, e.Info, static_cast<png_uint_32>(e.Pixels.Width),
                 static_cast<png_uint_32>(e.Pixels.Height), 8,
                 e.Opaque ? PNG_COLOR_TYPE_RGB : PNG_COLOR_TYPE_RGB_ALPHA, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_pHYs(e.Png, e.Info, PixelsPerMetre(e.DpiX), PixelsPerMetre(e.DpiY), PNG_RESOLUTION_METER);
    png_set_compression_level(e.Png, kCompressionLevel);
    png_set_compression_strategy(e.Png, kCompressionStrategy);
    png_set_filter(e.Png, PNG_FILTER_TYPE_BASE, PNG_FILTER_UP);
    png_write_info(e.Png, e.Info);
}

enum class Outcome { Written, Failed, NotOpaque };

/// Gives up at the first row that is not as opaque as the file is to be.
Outcome Write(Encoding& e) {
    if (setjmp(png_jmpbuf(e.Png))) {
        return Outcome::Failed;
    }
    png_set_write_fn(e.Png, &e.File, WriteBytes, FlushNothing);
    WriteHeader(e);
    const auto width = static_cast<std::size_t>(e.Pixels.Width);
    for (std::int32_t y = 0; y < e.Pixels.Height; ++y) {
        if (!e.Opaque) {
            FillRow(RowOf(e.Pixels, y), width, e.Row.data());
        } else if (!FillOpaqueRow(RowOf(e.Pixels, y), width, e.Row.data())) {
            return Outcome::NotOpaque;
        }
        png_write_row(e.Png, e.Row.data());
    }
    png_write_end(e.Png, e.Info);
    return Outcome::Written;
}

/// Leaves the file empty unless it was written.
Outcome Encode(Encoding e, std::string& file) {
    e.Row.resize(4 * static_cast<std::size_t>(e.Pixels.Width));
    e.Png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, GiveUp, KeepQuiet);
    e.Info = e.Png == nullptr ? nullptr : png_create_info_struct(e.Png);
    const Outcome outcome = e.Info == nullptr ? Outcome::Failed : Write(e);
    if (outcome == Outcome::Written) {
        file = std::move(e.File);
    }
    return outcome;
}

} // namespace

std::string EncodePng(const PremultipliedPixels& pixels, double dpiX, double dpiY) {
    std::string file;
    if (pixels.Data != nullptr && Encode({pixels, dpiX, dpiY, true, {}, {}}, file) == Outcome::NotOpaque) {
        Encode({pixels, dpiX, dpiY, false, {}, {}}, file);
    }
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
