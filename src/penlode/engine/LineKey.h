#pragma once

#include "penlode/Font.h"

#include <cstddef>
#include <functional>
#include <string>

namespace penlode {

/// The style bits that choose a face.
inline constexpr std::int32_t kFaceStyles = FontStyle::Bold | FontStyle::Italic;

/// What a line of text that is set at one size depends on.
struct LineKey {
    std::wstring Family;
    std::int32_t Style;
    std::wstring Text;

    friend bool operator==(const LineKey&, const LineKey&) = default;
};

struct LineKeyHash {
    std::size_t operator()(const LineKey& key) const {
        const std::hash<std::wstring> hash;
        return hash(key.Text) * 31U + hash(key.Family) * 7U + static_cast<std::size_t>(key.Style);
    }
};

} // namespace penlode
