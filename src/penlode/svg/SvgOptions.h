#pragma once

#include "penlode/Color.h"

#include <optional>
#include <string>

namespace penlode {

/// What a document is made of beside its drawing. Texts are UTF-8.
struct SvgOptions {
    std::string Title;               ///< none if empty
    std::string Description;         ///< none if empty
    std::optional<Color> Background; ///< fills the page before anything is drawn
    bool TextAsOutlines = false;     ///< glyphs as shapes: the same look everywhere, texts only as labels
};

} // namespace penlode
