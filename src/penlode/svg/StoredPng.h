#pragma once

#include "penlode/Color.h"

#include <cstddef>
#include <span>
#include <string>

namespace penlode::svg {

/// A PNG file of straight-alpha pixels, row by row from the top, `width` in a row: 8 bits a channel, RGBA,
/// stored without compression.
std::string StoredPng(std::span<const Color> pixels, std::size_t width);

} // namespace penlode::svg
