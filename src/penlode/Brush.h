#pragma once

#include "penlode/Color.h"

namespace penlode {

/// Fills an area with one colour.
struct SolidBrush {
    Color FillColor;

    friend bool operator==(const SolidBrush&, const SolidBrush&) = default;
};

} // namespace penlode
