#pragma once

#include "penlode/streams/Diagnostic.h"
#include "penlode/streams/JsonTree.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace penlode {

/// Loads from a tree: marks in it what is asked for, and tells what is missing or of no use. Internal to the
/// keyed stream, whose tags and texts are narrow.
class JsonReader {
public:
    explicit JsonReader(JsonTree& tree) : m_tree(tree) {}

    void Parse(std::string_view json);

    bool IsUnreadable() const { return m_isUnreadable; }

    const std::vector<Diagnostic>& Problems() const { return m_problems; }

    std::vector<Diagnostic> UnknownKeys() const;

    /// Null where the document has none.
    const JsonGroup* Current() const { return m_tree.GroupOrNull(CurrentNode()); }

    std::string Tag() const { return m_open.empty() ? std::string() : m_open.back().Tag; }

    bool Push(const std::string& tag, int index);
    void Pop();

    std::optional<std::string> Text(const std::string& tag, const std::string& defaultText);
    std::optional<std::vector<std::string>> Texts(const std::string& tag,
                                                  const std::vector<std::string>& defaults);
    std::vector<double> NumbersAndGaps(const std::string& tag);
    std::size_t CountGroups(const std::string& tag);

    void Refuse(const std::string& tag, const std::string& found, const std::string& expected);

private:
    struct OpenGroup {
        JsonNode Node; ///< Null for a group that is not in the document; nothing is found in it
        std::string Tag;
        std::string Place;
    };

    const JsonNode& CurrentNode() const { return m_open.empty() ? m_tree.Root() : m_open.back().Node; }

    JsonNode* Ask(const std::string& tag);
    const JsonList* AskList(const std::string& tag, const std::vector<std::string>& defaults);
    JsonNode* Enter(const std::string& tag, int index, std::string& place);
    std::string PlaceOf(const std::string& tag) const;
    std::string PlaceOf(const std::string& tag, std::size_t item) const;
    double NumberOrGap(const std::string& tag, const JsonNode& item, std::size_t index);

    bool HasRoom() const;
    void ReportMissing(std::string place, std::string taken);
    void Report(DiagnosticKind kind, const JsonNode& value, std::string place, std::string expected);
    bool NameWhatWasExpected(const std::string& place, const std::string& expected);
    void AddUnknown(const JsonNode& group, const std::string& place, std::vector<Diagnostic>& unknown) const;

    JsonTree& m_tree;
    std::vector<OpenGroup> m_open;
    bool m_isUnreadable = false;
    std::vector<Diagnostic> m_problems;
    /// What was told of places that hold no text, by place.
    std::unordered_map<std::string, std::size_t> m_wrongTypes;
};

} // namespace penlode
