#pragma once

#include "penlode/streams/JsonTree.h"

#include <string_view>

/// A value set at a place in a tree. Internal to the keyed stream.
namespace penlode {

/// The place is keys and indexes joined by "/"; groups that are missing on the way are made, and an index
/// just behind a list's items adds one. The value is JSON, and what is none is a text. False where there is
/// no such place, as below a text.
bool SetValue(JsonTree& tree, std::string_view place, std::string_view value);

} // namespace penlode
