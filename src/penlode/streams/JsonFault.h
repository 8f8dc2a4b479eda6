#pragma once

#include "penlode/streams/Diagnostic.h"

#include <cstddef>
#include <string>
#include <string_view>

/// Places in a JSON text that cannot be read, for people. Internal to the keyed stream.
namespace penlode {

/// An Unreadable problem at a byte offset, given as line and column in characters, both from 1.
Diagnostic UnreadableAt(std::string_view json, std::size_t offset, std::string found, std::string expected);

/// The word or character at a byte offset.
std::string FoundAt(std::string_view json, std::size_t offset);
/// The byte there.
std::string ByteAt(std::string_view json, std::size_t offset);

/// One of a number or a bare word.
bool IsWordByte(char c);
/// Where the number or bare word begins that goes on at `offset`.
std::size_t WordStart(std::string_view json, std::size_t offset);

} // namespace penlode
