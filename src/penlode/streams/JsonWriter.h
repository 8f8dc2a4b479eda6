#pragma once

#include "penlode/streams/JsonCursor.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace penlode {

/// Saves into a tree, keeping what it holds under other keys. Texts are narrow. Internal to the keyed stream.
class JsonWriter : public JsonCursor {
public:
    using JsonCursor::JsonCursor;

    /// False for a group that cannot be saved; nothing is kept in it.
    bool Push(const std::string& tag, int index);
    void Save(const std::string& tag, const std::string& text);
    void Save(const std::string& tag, const std::vector<std::string>& texts);
    void Save(const std::string& tag, std::span<const double> numbers);
    void Remove(const std::string& tag);

private:
    void SaveText(JsonNode& node, const std::string& text);
    JsonNode* Entry(const std::string& tag);
    JsonNode& Item(JsonNode& entry, std::size_t index);
    bool HasPlaceFor(const std::string& tag, int index) const;
};

} // namespace penlode
