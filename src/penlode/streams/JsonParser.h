#pragma once

#include "penlode/streams/Diagnostic.h"
#include "penlode/streams/JsonTree.h"

#include <string_view>
#include <vector>

namespace penlode {

/// The tree of a JSON document whose root is a group; an empty one, with one Unreadable problem, for a text
/// that is none. Of a key that stands more than once the last value counts, and each one too many is a
/// Refused problem. Internal to the keyed stream.
JsonTree ParseJson(std::string_view json, std::vector<Diagnostic>& problems);

} // namespace penlode
