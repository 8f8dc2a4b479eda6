#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The parts of a PNG file (ISO/IEC 15948).
namespace penlode {

inline constexpr std::string_view kPngSignature = "\x89PNG\r\n\x1A\n";

/// Four bytes, the highest first.
std::string BigEndian(std::uint32_t value);

/// Length, type, content and checksum.
void AddPngChunk(std::string& file, std::string_view type, std::string_view content);

/// A stream of any length, in as many IDAT chunks as it takes.
void AddPngStream(std::string& file, std::string_view stream);

} // namespace penlode
