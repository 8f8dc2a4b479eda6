#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

/// What UTF-8 characters are made of. Internal to the library.
namespace penlode {

/// Bytes that a UTF-8 lead asks for, and what the first of them may be: the limits shut out overlong forms,
/// surrogates and what lies beyond U+10FFFF. The others are 80-BF.
struct Utf8Form {
    std::size_t Continuations = 0;
    std::uint8_t Low = 0x80;
    std::uint8_t High = 0xBF;
};

inline Utf8Form Utf8FormOf(std::uint8_t lead) {
    if (lead >= 0xC2 && lead <= 0xDF) {
        return {1};
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        return {2, std::uint8_t(lead == 0xE0 ? 0xA0 : 0x80), std::uint8_t(lead == 0xED ? 0x9F : 0xBF)};
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        return {3, std::uint8_t(lead == 0xF0 ? 0x90 : 0x80), std::uint8_t(lead == 0xF4 ? 0x8F : 0xBF)};
    }
    return {0};
}

inline void AppendUtf8(std::string& text, char32_t codePoint) {
    const auto add = [&text](char32_t byte) {
        text.push_back(static_cast<char>(static_cast<std::uint8_t>(byte)));
    };
    if (codePoint < 0x80) {
        add(codePoint);
        return;
    }
    if (codePoint < 0x800) {
        add(0xC0 | codePoint >> 6);
    } else {
        if (codePoint < 0x10000) {
            add(0xE0 | codePoint >> 12);
        } else {
            add(0xF0 | codePoint >> 18);
            add(0x80 | (codePoint >> 12 & 0x3F));
        }
        add(0x80 | (codePoint >> 6 & 0x3F));
    }
    add(0x80 | (codePoint & 0x3F));
}

} // namespace penlode
