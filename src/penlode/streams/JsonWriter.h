#pragma once

#include "penlode/streams/JsonTree.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace penlode {

/// Saves into a tree, keeping what it holds under other keys. Internal to the keyed stream, whose tags and
/// texts are narrow.
class JsonWriter {
public:
    explicit JsonWriter(JsonTree& tree) : m_tree(tree) {}

    /// Null for a group that cannot be saved; nothing is kept in it.
    const JsonGroup* Current() const { return CurrentGroup(); }

    std::string Tag() const { return m_open.empty() ? std::string() : m_open.back().Tag; }

    bool Push(const std::string& tag, int index);
    void Pop();

    void PopAll() { m_open.clear(); }

    void Save(const std::string& tag, const std::string& text);
    void Save(const std::string& tag, const std::vector<std::string>& texts);
    void Save(const std::string& tag, std::span<const double> numbers);
    void Remove(const std::string& tag);

private:
    struct OpenGroup {
        JsonGroup* Group;
        std::string Tag;
        std::size_t Levels; ///< down to it, the root counted
    };

    JsonGroup* CurrentGroup() const {
        return m_open.empty() ? &m_tree.Group(m_tree.Root()) : m_open.back().Group;
    }

    void SaveText(JsonNode& node, const std::string& text);
    JsonNode* Entry(const std::string& tag);
    JsonNode& Item(JsonNode& entry, std::size_t index);
    bool HasPlaceFor(const std::string& tag, int index) const;

    JsonTree& m_tree;
    std::vector<OpenGroup> m_open;
};

} // namespace penlode
