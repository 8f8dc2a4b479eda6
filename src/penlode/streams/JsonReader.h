#pragma once

#include "penlode/streams/Diagnostic.h"
#include "penlode/streams/JsonCursor.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace penlode {

/// Loads from a tree: marks in it what is asked for, and tells what is missing or of no use. Texts are
/// narrow. Internal to the keyed stream.
class JsonReader : public JsonCursor {
public:
    using JsonCursor::JsonCursor;

    void Parse(std::string_view json);

    bool IsUnreadable() const { return m_isUnreadable; }

    const std::vector<Diagnostic>& Problems() const { return m_problems; }

    std::vector<Diagnostic> UnknownKeys() const;

    bool Push(const std::string& tag, int index);
    void Load(const std::string& tag, std::string& text, const std::string& defaultText);
    void Load(const std::string& tag, std::vector<std::string>& texts,
              const std::vector<std::string>& defaults);
    std::vector<double> NumbersAndGaps(const std::string& tag);
    std::size_t CountGroups(const std::string& tag);

    void Refuse(const std::string& tag, const std::string& found, const std::string& expected);

private:
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

    bool m_isUnreadable = false;
    std::vector<Diagnostic> m_problems;
    /// What was told of places that hold no text, by place.
    std::unordered_map<std::string, std::size_t> m_wrongTypes;
};

} // namespace penlode
