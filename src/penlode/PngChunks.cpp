#include "penlode/PngChunks.h"

#include <array>
#include <cstddef>

namespace penlode {
namespace {

constexpr std::size_t kLongestChunk = std::size_t{1} << 24U;

/// Bytes that are taken into the checksum at once.
constexpr std::size_t kStep = 4;

/// Table k is for a byte that k others follow.
using CrcTables = std::array<std::array<std::uint32_t, 256>, kStep>;

CrcTables MakeCrcTables() {
    CrcTables tables{};
    for (std::uint32_t n = 0; n < 256; ++n) {
        std::uint32_t c = n;
        for (int bit = 0; bit < 8; ++bit) {
            c = (c & 1U) != 0 ? 0xEDB88320U ^ (c >> 1U) : c >> 1U;
        }
        tables[0][n] = c;
    }
    for (std::size_t k = 1; k < kStep; ++k) {
        for (std::size_t n = 0; n < 256; ++n) {
            const std::uint32_t c = tables[k - 1][n];
            tables[k][n] = tables[0][c & 0xFFU] ^ (c >> 8U);
        }
    }
    return tables;
}

/// The checksum of some bytes and those that follow them.
std::uint32_t Crc32(std::uint32_t crc, std::string_view bytes) {
    static const CrcTables tables = MakeCrcTables();
    const auto byte = [&](std::size_t i) { return std::uint32_t{static_cast<unsigned char>(bytes[i])}; };
    crc = ~crc;
    std::size_t i = 0;
    for (; i + kStep <= bytes.size(); i += kStep) {
        crc ^= byte(i) | byte(i + 1) << 8U | byte(i + 2) << 16U | byte(i + 3) << 24U;
        crc = tables[3][crc & 0xFFU] ^ tables[2][crc >> 8U & 0xFFU] ^ tables[1][crc >> 16U & 0xFFU] ^
              tables[0][crc >> 24U];
    }
    for (; i < bytes.size(); ++i) {
        crc = tables[0][(crc ^ byte(i)) & 0xFFU] ^ (crc >> 8U);
    }
    return ~crc;
}

} // namespace

std::string BigEndian(std::uint32_t value) {
    std::string bytes;
    for (std::uint32_t shift = 32; shift > 0; shift -= 8) {
        bytes += static_cast<char>(static_cast<unsigned char>(value >> (shift - 8)));
    }
    return bytes;
}

void AddPngChunk(std::string& file, std::string_view type, std::string_view content) {
    file.append(BigEndian(static_cast<std::uint32_t>(content.size()))).append(type).append(content);
    file += BigEndian(Crc32(Crc32(0, type), content));
}

void AddPngStream(std::string& file, std::string_view stream) {
    for (std::size_t at = 0; at < stream.size(); at += kLongestChunk) {
        AddPngChunk(file, "IDAT", stream.substr(at, kLongestChunk));
    }
}

} // namespace penlode
