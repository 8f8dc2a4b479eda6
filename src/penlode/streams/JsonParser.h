#pragma once

#include "penlode/streams/Diagnostic.h"
#include "penlode/streams/JsonTree.h"

#include <string_view>
#include <vector>

namespace penlode {

/// A document made to be nothing but problems shall not fill the memory with them.
inline constexpr std::size_t kMaxProblems = 10000;

/// The tree of a JSON document whose root is a group; an empty one, with one Unreadable problem, for a text
/// that is none. Of a key that stands more than once the last value counts, and each one too many is a
/// Refused problem. Internal to the keyed stream.
JsonTree ParseJson(std::string_view json, std::vector<Diagnostic>& problems);

} // namespace penlode
