#pragma once

namespace penlode {

/// Whether a byte of UTF-8 goes on with a character that began before it.
constexpr bool IsUtf8Continuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

} // namespace penlode
