#pragma once

#include "penlode/Geometry.h"

#include <string>

/// Sizes of pages and figures, as people write them.
namespace cli {

/// 80x60 and 80x60mm, 8x6cm, 3x2in, A5, A4-landscape, in either case. In mm; each side is above 0 and at most
/// 5000.
bool ParseSize(const std::string& text, penlode::SizeF& size);

inline constexpr const char* kSizeForm =
    "WIDTHxHEIGHT in mm, each at most 5000, such as 80x60, 8x6cm, 3x2in, A5 or A4-landscape";

/// "80 x 60 mm", rounded to 0.001
std::string Millimetres(penlode::SizeF size);

} // namespace cli
