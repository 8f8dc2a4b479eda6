#pragma once

#include "penlode/Color.h"
#include "penlode/Font.h"
#include "penlode/Owned.h"

#include <cstdint>
#include <string>

namespace millichart {

/// How one text looks. Readable as constructed: black on nothing, without a frame. What a load gives where
/// keys are missing is the serializer's (CTextPropertySerialize), and differs.
struct TextProperty {
    penlode::Owned<penlode::Font> Font = penlode::Font{}; ///< may be null: nothing is measured or drawn
    penlode::Color TextColor = penlode::kBlack;
    penlode::Color EdgeColor = penlode::kBlack; ///< of the frame round the text's box
    penlode::Color BkColor = penlode::kWhite;   ///< fill of the text's box
    std::int32_t DrawEdge = 0;                  ///< non-zero: frame the box
    std::int32_t DrawBackGround = 0;            ///< non-zero: fill the box
    /// Stand round every label that a chart generates from values: a pie's or a bar's whole label, each tick
    /// label of a value axis. Names and captions never get them, nor does a label without any part. Narrow
    /// (GBK; CStringUtil::Utf8ToAnsi).
    std::string Prefix;
    std::string Postfix;
    std::int32_t Angle = 0; ///< degrees, counter-clockwise on screen

    friend bool operator==(const TextProperty&, const TextProperty&) = default;
};

/// A generated label between its look's prefix and postfix; an empty one stays empty.
inline std::string Decorated(const std::string& text, const TextProperty& property) {
    return text.empty() ? text : property.Prefix + text + property.Postfix;
}

} // namespace millichart
