#pragma once

#include "penlode/GraphicsTypes.h"

#include <cstdint>

namespace penlode {

/// Where a text stands in its layout rectangle: across (`Alignment`) and down (`LineAlignment`).
/// Flags and language are carried for hosts and have no effect on what is drawn.
struct StringFormat {
    std::int32_t Flags = 0;
    std::uint16_t Language = 0;
    StringAlignment Alignment = StringAlignment::Near;
    StringAlignment LineAlignment = StringAlignment::Near;

    friend bool operator==(const StringFormat&, const StringFormat&) = default;
};

} // namespace penlode
