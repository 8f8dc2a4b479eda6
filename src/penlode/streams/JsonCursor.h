#pragma once

#include "penlode/streams/JsonTree.h"

#include <cstddef>
#include <string>
#include <vector>

namespace penlode {

/// Where in a tree a stream is: the groups that are open. Internal to the keyed stream, whose tags are
/// narrow.
class JsonCursor {
public:
    explicit JsonCursor(JsonTree& tree) : m_tree(tree) {}

    /// Null where the tree has no such group.
    JsonGroup* Current() const { return m_tree.GroupOrNull(CurrentNode()); }

    std::string Tag() const { return m_open.empty() ? std::string() : m_open.back().Tag; }

    void Pop() {
        if (!m_open.empty()) {
            m_open.pop_back();
        }
    }

    void PopAll() { m_open.clear(); }

protected:
    struct OpenGroup {
        JsonNode Node; ///< Null for a group that is not there; nothing is found or kept in it
        std::string Tag;
        std::string Place = {};  ///< of a load
        std::size_t Levels = {}; ///< of a save: down to it, the root counted
    };

    const JsonNode& CurrentNode() const { return m_open.empty() ? m_tree.Root() : m_open.back().Node; }

    JsonTree& m_tree;
    std::vector<OpenGroup> m_open;
};

} // namespace penlode
