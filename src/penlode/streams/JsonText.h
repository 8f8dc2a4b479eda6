#pragma once

#include "penlode/streams/JsonTree.h"

#include <string>

/// A tree as text. Internal to the keyed stream.
namespace penlode {

/// The document, indented by two blanks, with a final line feed.
std::string DocumentText(const JsonTree& tree);

/// A value on one line for people, no longer than kMaxShown.
std::string Shown(const JsonTree& tree, const JsonNode& node);

} // namespace penlode
