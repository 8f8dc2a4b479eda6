#pragma once

#include "foundation/TextProperty.h"

#include <cstdint>
#include <string>

namespace millichart {

/// The caption of a bar or line chart.
struct CaptionProp {
    std::int32_t ShowCaption = 0; ///< non-zero: drawn
    std::string Caption;          ///< narrow (GBK; CStringUtil::Utf8ToAnsi)
    TextProperty CaptionTextProperty;

    friend bool operator==(const CaptionProp&, const CaptionProp&) = default;
};

} // namespace millichart
