#pragma once

#include "penlode/Export.h"
#include "penlode/streams/Diagnostic.h"

#include <cstddef>
#include <string>
#include <string_view>

/// Places in a JSON text that cannot be read, for people. Internal to the keyed stream, but for Shortened.
namespace penlode {

/// Texts of a document that appear in problems are no longer than this, in characters.
inline constexpr std::size_t kMaxShown = 60;

inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// At most kMaxShown characters of a UTF-8 text; a cut is marked by "…".
PENLODE_API std::string Shortened(std::string text);

/// An Unreadable problem at a byte offset, given as line and column in characters, both from 1. A byte order
/// mark takes no column.
Diagnostic UnreadableAt(std::string_view json, std::size_t offset, std::string found, std::string expected);

/// The word or character at a byte offset.
std::string FoundAt(std::string_view json, std::size_t offset);
/// The byte there, or that the document ends.
std::string FoundByteAt(std::string_view json, std::size_t offset);

/// Where the number or bare word begins that goes on at `offset`.
std::size_t WordStart(std::string_view json, std::size_t offset);

} // namespace penlode
