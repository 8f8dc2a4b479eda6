#pragma once

#include "penlode/Image.h"

#include <cstdint>
#include <string>

/// The picture in a PNG file's bytes, by libpng; without pixels if it is none. Its resolution is left alone.
penlode::Image DecodePng(const std::string& file);

/// True for RGBA, false for RGB.
bool PngHasAlpha(const std::string& file);

/// A big-endian number in the file's first chunk of that name. Throws std::out_of_range if there is none.
std::uint32_t PngNumber(const std::string& file, const char* chunk, std::size_t offset);
