#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// GB 18030-2022, the superset of GBK in which narrow texts are read and written.
///
///     1 byte     00-7F                          ASCII
///     2 bytes    81-FE, 40-7E or 80-FE          the 21003 characters of GBK and what fits beside them
///     4 bytes    81-FE, 30-39, 81-FE, 30-39     every other character
///
/// It holds every Unicode scalar value exactly once.
namespace penlode {

/// Stands for what could not be read.
inline constexpr char32_t kReplacementCharacter = 0xFFFD;

/// A character at some place of a text, and how much of the text it takes there: at least 1.
struct DecodedCharacter {
    char32_t CodePoint = kReplacementCharacter;
    std::size_t Length = 1;
};

/// The character at `position`, which must lie inside the text. A lone 0x80 is the euro sign, as Windows'
/// GBK has it. A byte that begins nothing valid is a replacement character by itself, so that whatever
/// follows it is read afresh.
DecodedCharacter DecodeGb18030(std::string_view text, std::size_t position);

/// Adds one character; it must be a Unicode scalar value. The euro sign is written A2E3.
void AppendGb18030(std::string& text, char32_t codePoint);

} // namespace penlode
