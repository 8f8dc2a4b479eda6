#pragma once

#include "penlode/Export.h"
#include "penlode/streams/Diagnostic.h"

#include <cstddef>
#include <string>
#include <string_view>

/// Places in a JSON text, and plain words for what a parser cannot read there. Internal to the keyed stream,
/// but for Shortened.
namespace penlode {

/// Texts of a document that appear in problems are no longer than this, in characters.
inline constexpr std::size_t kMaxShown = 60;

/// At most kMaxShown characters of a UTF-8 text; a cut is marked by "…".
PENLODE_API std::string Shortened(std::string text);

/// An Unreadable problem at a byte offset, given as line and column in characters, both from 1. A byte order
/// mark takes no column.
Diagnostic UnreadableAt(std::string_view json, std::size_t offset, std::string found, std::string expected);

/// Where and why the parser stopped: the bytes it had read, the token it had read last, and its own message.
Diagnostic ParserFault(std::string_view json, std::size_t bytesRead, std::string_view token,
                       std::string_view message);

/// The word or character at a byte offset, for people.
std::string FoundAt(std::string_view json, std::size_t offset);

/// Where the first group or list stands that is nested deeper than `levels`; the text up to there must be
/// well-formed.
std::size_t OffsetOfLevelBeyond(std::string_view json, std::size_t levels);

/// Where the document's value begins.
std::size_t OffsetOfRoot(std::string_view json);

} // namespace penlode
