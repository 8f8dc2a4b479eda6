#include "penlode/svg/StoredPng.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

/// PNG (ISO/IEC 15948) with the zlib and deflate formats of RFC 1950 and RFC 1951.
namespace penlode::svg {
namespace {

constexpr std::size_t kMaxBlock = 0xFFFF;
constexpr std::size_t kMaxChunk = std::size_t{1} << 24U;

char Byte(std::uint32_t value) {
    return static_cast<char>(static_cast<unsigned char>(value & 0xFFU));
}

std::string BigEndian(std::uint32_t value) {
    return {Byte(value >> 24U), Byte(value >> 16U), Byte(value >> 8U), Byte(value)};
}

std::array<std::uint32_t, 256> MakeCrcTable() {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t n = 0; n < table.size(); ++n) {
        std::uint32_t c = n;
        for (int bit = 0; bit < 8; ++bit) {
            c = (c & 1U) != 0 ? 0xEDB88320U ^ (c >> 1U) : c >> 1U;
        }
        table[n] = c;
    }
    return table;
}

std::uint32_t Crc32(std::string_view bytes) {
    static const std::array<std::uint32_t, 256> table = MakeCrcTable();
    std::uint32_t crc = 0xFFFFFFFFU;
    for (const char byte : bytes) {
        crc = table[(crc ^ static_cast<unsigned char>(byte)) & 0xFFU] ^ (crc >> 8U);
    }
    return ~crc;
}

std::uint32_t Adler32(std::string_view bytes) {
    constexpr std::uint32_t kPrime = 65521;
    std::uint32_t a = 1;
    std::uint32_t b = 0;
    for (const char byte : bytes) {
        a = (a + static_cast<unsigned char>(byte)) % kPrime;
        b = (b + a) % kPrime;
    }
    return b << 16U | a;
}

void AddChunk(std::string& file, std::string_view type, std::string_view content) {
    const std::string body = std::string(type).append(content);
    file += BigEndian(static_cast<std::uint32_t>(content.size()));
    file += body;
    file += BigEndian(Crc32(body));
}

/// The rows, each after the filter byte "none".
std::string Rows(std::span<const Color> pixels, std::size_t width) {
    std::string rows;
    rows.reserve(pixels.size() * 4 + pixels.size() / width);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        if (i % width == 0) {
            rows += '\0';
        }
        const Color c = pixels[i];
        for (const std::uint32_t channel : {c.R(), c.G(), c.B(), c.A()}) {
            rows += Byte(channel);
        }
    }
    return rows;
}

/// A zlib stream of stored blocks.
std::string Stored(std::string_view bytes) {
    std::string stream = {Byte(0x78), Byte(0x01)};
    for (std::size_t at = 0; at < bytes.size(); at += kMaxBlock) {
        const std::string_view block = bytes.substr(at, kMaxBlock);
        const auto length = static_cast<std::uint32_t>(block.size());
        const bool isLast = at + block.size() == bytes.size();
        for (const std::uint32_t byte : {isLast ? 1U : 0U, length, length >> 8U, ~length, ~length >> 8U}) {
            stream += Byte(byte);
        }
        stream += block;
    }
    return stream + BigEndian(Adler32(bytes));
}

} // namespace

std::string StoredPng(std::span<const Color> pixels, std::size_t width) {
    constexpr std::string_view kRgbaOf8Bits("\x08\x06\0\0\0", 5);
    const auto height = static_cast<std::uint32_t>(pixels.size() / width);
    std::string file = "\x89PNG\r\n\x1A\n";
    AddChunk(file, "IHDR",
             BigEndian(static_cast<std::uint32_t>(width)) + BigEndian(height) + std::string(kRgbaOf8Bits));
    const std::string stream = Stored(Rows(pixels, width));
    for (std::size_t at = 0; at < stream.size(); at += kMaxChunk) {
        AddChunk(file, "IDAT", std::string_view(stream).substr(at, kMaxChunk));
    }
    AddChunk(file, "IEND", "");
    return file;
}

} // namespace penlode::svg
