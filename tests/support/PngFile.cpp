#include "support/PngFile.h"

#include <png.h>
#include <stdexcept>

using penlode::Color;
using penlode::Image;

namespace {

constexpr std::size_t kNameLength = 4;
constexpr std::size_t kColorTypeOffset = 9;

std::size_t DataOfChunk(const std::string& file, const char* chunk) {
    const std::size_t name = file.find(chunk);
    if (name == std::string::npos) {
        throw std::out_of_range(std::string("no chunk ") + chunk);
    }
    return name + kNameLength;
}

} // namespace

Image DecodePng(const std::string& file) {
    png_image header{};
    header.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_memory(&header, file.data(), file.size()) == 0) {
        return {};
    }
    header.format = PNG_FORMAT_RGBA;
    std::vector<png_byte> rgba(PNG_IMAGE_SIZE(header));
    if (png_image_finish_read(&header, nullptr, rgba.data(), 0, nullptr) == 0) {
        return {};
    }
    Image image;
    image.Width = static_cast<std::int32_t>(header.width);
    image.Height = static_cast<std::int32_t>(header.height);
    image.Pixels.reserve(rgba.size() / 4);
    for (std::size_t i = 0; i + 3 < rgba.size(); i += 4) {
        image.Pixels.push_back(Color::FromArgb(rgba[i + 3], rgba[i], rgba[i + 1], rgba[i + 2]));
    }
    return image;
}

bool PngHasAlpha(const std::string& file) {
    return (static_cast<unsigned char>(file.at(DataOfChunk(file, "IHDR") + kColorTypeOffset)) &
            PNG_COLOR_MASK_ALPHA) != 0;
}

std::uint32_t PngNumber(const std::string& file, const char* chunk, std::size_t offset) {
    const std::size_t at = DataOfChunk(file, chunk) + offset;
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        number = number << 8U | static_cast<unsigned char>(file.at(at + i));
    }
    return number;
}
