#pragma once

#include "penlode/streams/Diagnostic.h"

#include <cstddef>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The tree of a JSON document, with its keys in their order. Internal to the keyed stream; the JSON library
/// is included nowhere else.
namespace penlode {

using Json = nlohmann::ordered_json;

/// Groups and lists within each other, the root counted.
inline constexpr std::size_t kMaxLevels = 64;

/// A document made to be nothing but problems shall not fill the memory with them.
inline constexpr std::size_t kMaxProblems = 10000;

/// The document's root group; an empty one, with one Unreadable problem, for a text that has none. Of a key
/// that stands more than once the last value counts, and each one too many is a Refused problem.
Json BuildJsonTree(std::string_view json, std::vector<Diagnostic>& problems);

std::string JoinedPlace(const std::string& place, const std::string& key);

/// A value as the document has it, for people.
std::string Shown(const Json& value);

/// The narrow text of a text, number or boolean; nothing for the rest.
std::optional<std::string> ScalarText(const Json& value);

} // namespace penlode
