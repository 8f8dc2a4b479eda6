#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

/// The tree of a JSON document, with its keys in their order. Internal to the keyed stream.
namespace penlode {

/// Groups and lists within each other, the root counted.
inline constexpr std::size_t kMaxLevels = 64;

enum class JsonType : std::uint8_t { Null, Boolean, Integer, Natural, Real, Text, List, Group };

/// One value. A list of a million numbers is a million of these and nothing else.
struct JsonNode {
    static constexpr std::uint32_t kNowhere = std::numeric_limits<std::uint32_t>::max();

    std::uint64_t Bits = 0; ///< of the number, or which of the tree's texts, lists or groups
    /// Where its key stands in the document or, in a list, itself; kNowhere for what was saved since, and
    /// beyond 4 GB.
    std::uint32_t Offset = kNowhere;
    JsonType Type = JsonType::Null;
    bool Asked = false;   ///< a load asked for it
    bool Entered = false; ///< a load asked for what is in it

    static JsonNode Boolean(bool value) { return {value ? 1U : 0U, kNowhere, JsonType::Boolean}; }

    static JsonNode Integer(std::int64_t value);

    static JsonNode Natural(std::uint64_t value) { return {value, kNowhere, JsonType::Natural}; }

    static JsonNode Real(double value);

    bool Is(JsonType type) const { return Type == type; }

    bool IsScalar() const { return Type < JsonType::List; }

    /// Of a number or a boolean.
    std::optional<double> Number() const;
};

static_assert(sizeof(JsonNode) == 16);

using JsonList = std::vector<JsonNode>;

/// Entries in the order in which they were added.
class JsonGroup {
public:
    JsonGroup() = default;
    JsonGroup(JsonGroup&&) = default;
    JsonGroup& operator=(JsonGroup&&) = default; // and no copy, whose keys would belong to the other

    struct Entry {
        const std::string* Key;
        JsonNode Value;
    };

    const std::vector<Entry>& Entries() const { return m_entries; }

    const JsonNode* Find(const std::string& key) const;
    JsonNode* Find(const std::string& key);
    /// The entry, and whether it is new.
    std::pair<Entry*, bool> FindOrAdd(std::string key);
    void Remove(const std::string& key);

private:
    std::vector<Entry> m_entries;
    std::unordered_map<std::string, std::size_t> m_places; ///< owns the keys
};

/// Holds what nodes stand for. Lists and groups keep their addresses.
class JsonTree {
public:
    /// An empty group.
    JsonTree() { AsGroup(m_root); }

    JsonTree(JsonTree&&) = default;
    JsonTree& operator=(JsonTree&&) = default;

    /// What a node stands for, which is made a text, list or group of its own unless it is one.
    std::string& AsText(JsonNode& node) { return As(JsonType::Text, node, m_texts); }

    JsonList& AsList(JsonNode& node) { return As(JsonType::List, node, m_lists); }

    JsonGroup& AsGroup(JsonNode& node) { return As(JsonType::Group, node, m_groups); }

    const JsonNode& Root() const { return m_root; }

    void SetRoot(const JsonNode& root) { m_root = root; }

    const std::string& Text(const JsonNode& node) const { return m_texts[node.Bits]; }

    const JsonList& List(const JsonNode& node) const { return m_lists[node.Bits]; }

    JsonList& List(const JsonNode& node) { return m_lists[node.Bits]; }

    const JsonGroup& Group(const JsonNode& node) const { return m_groups[node.Bits]; }

    JsonGroup& Group(const JsonNode& node) { return m_groups[node.Bits]; }

    JsonGroup* GroupOrNull(const JsonNode& node) {
        return node.Is(JsonType::Group) ? &m_groups[node.Bits] : nullptr;
    }

    /// Remembers where the lines of the document begin.
    void CountLines(std::string_view json);
    /// From 1; 0 for what the document did not hold.
    std::size_t LineOf(const JsonNode& node) const;
    /// The value below a node at keys and indexes joined by "/"; null if there is none. A place whose keys
    /// hold very many "/" themselves is not found.
    const JsonNode* Find(const JsonNode& node, std::string_view place) const;

    /// The narrow text of a text, number or boolean; nothing for the rest.
    std::optional<std::string> ScalarText(const JsonNode& node) const;

private:
    template <class Thing> static Thing& As(JsonType type, JsonNode& node, std::deque<Thing>& things) {
        if (!node.Is(type)) {
            things.emplace_back();
            node.Bits = things.size() - 1;
            node.Type = type;
        }
        return things[node.Bits];
    }

    std::deque<std::string> m_texts;
    std::deque<JsonList> m_lists;
    std::deque<JsonGroup> m_groups;
    std::vector<std::size_t> m_lineEnds;
    JsonNode m_root;
};

std::string JoinedPlace(const std::string& place, const std::string& key);

} // namespace penlode
