#include "penlode/streams/JsonReader.h"

#include "penlode/streams/JsonParser.h"
#include "penlode/streams/JsonText.h"
#include "penlode/streams/TextForms.h"
#include "penlode/text/StringUtil.h"

#include <cmath>
#include <limits>
#include <utility>

namespace penlode {
namespace {

using Kind = DiagnosticKind;

constexpr const char* kText = "a text";
constexpr const char* kGroup = "a group";

std::string ListText(const std::vector<std::string>& texts) {
    if (texts.empty()) {
        return "an empty list";
    }
    std::string joined = CStringUtil::AnsiToUtf8(texts.front());
    for (std::size_t i = 1; i < texts.size(); ++i) {
        joined += ", " + CStringUtil::AnsiToUtf8(texts[i]);
    }
    return joined;
}

} // namespace

void JsonReader::Parse(std::string_view json) {
    m_tree = ParseJson(json, m_problems);
    m_isUnreadable = !m_problems.empty() && m_problems.front().Kind == Kind::Unreadable;
}

std::vector<Diagnostic> JsonReader::UnknownKeys() const {
    std::vector<Diagnostic> unknown;
    AddUnknown(m_tree.Root(), "", unknown);
    return unknown;
}

bool JsonReader::Push(const std::string& tag, int index) {
    std::string place = PlaceOf(tag);
    const JsonNode* const group = Enter(tag, index, place);
    m_open.push_back({group == nullptr ? JsonNode() : *group, tag, std::move(place)});
    return group != nullptr;
}

/// Adds the index to the place of a group that stands in a list.
JsonNode* JsonReader::Enter(const std::string& tag, int index, std::string& place) {
    JsonNode* entry = Ask(tag);
    if (entry != nullptr && entry->Is(JsonType::List) && index >= 0) {
        entry->Entered = true;
        JsonList& items = m_tree.List(*entry);
        const auto item = static_cast<std::size_t>(index);
        entry = item < items.size() ? &items[item] : nullptr;
        place = JoinedPlace(place, std::to_string(index));
    } else if (entry != nullptr && index > 0) {
        Report(Kind::WrongType, *entry, place, "a list of groups");
        return nullptr;
    }
    if (entry == nullptr) {
        ReportMissing(place, kGroup);
        return nullptr;
    }
    entry->Asked = true;
    if (!entry->Is(JsonType::Group)) {
        Report(Kind::WrongType, *entry, place, kGroup);
        return nullptr;
    }
    entry->Entered = true;
    return entry;
}

void JsonReader::Load(const std::string& tag, std::string& text, const std::string& defaultText) {
    const JsonNode* const entry = Ask(tag);
    const auto loaded = entry == nullptr ? std::nullopt : m_tree.ScalarText(*entry);
    text = loaded.value_or(defaultText);
    if (entry == nullptr) {
        ReportMissing(PlaceOf(tag), CStringUtil::AnsiToUtf8(defaultText));
    } else if (!loaded) {
        Report(Kind::WrongType, *entry, PlaceOf(tag), kText);
    }
}

/// An item that is no text is empty, so that the others keep their places.
void JsonReader::Load(const std::string& tag, std::vector<std::string>& texts,
                      const std::vector<std::string>& defaults) {
    const JsonList* const items = AskList(tag, defaults);
    if (items == nullptr) {
        texts = defaults;
        return;
    }
    texts.clear();
    texts.reserve(items->size());
    for (const JsonNode& item : *items) {
        auto text = m_tree.ScalarText(item);
        if (!text && HasRoom()) {
            Report(Kind::WrongType, item, PlaceOf(tag, texts.size()), kText);
        }
        texts.push_back(std::move(text).value_or(std::string()));
    }
}

std::vector<double> JsonReader::NumbersAndGaps(const std::string& tag) {
    std::vector<double> numbers;
    if (const JsonList* const items = AskList(tag, {})) {
        numbers.reserve(items->size());
        for (const JsonNode& item : *items) {
            numbers.push_back(NumberOrGap(tag, item, numbers.size()));
        }
    }
    return numbers;
}

double JsonReader::NumberOrGap(const std::string& tag, const JsonNode& item, std::size_t index) {
    constexpr double gap = std::numeric_limits<double>::quiet_NaN();
    if (const auto number = item.Number()) {
        return *number;
    }
    std::string text = item.Is(JsonType::Text) ? m_tree.Text(item) : std::string();
    const bool isGap = item.Is(JsonType::Null) || (item.Is(JsonType::Text) && text.empty());
    double number = gap;
    if (!isGap && !(ser_evaluate(number, text, false) && std::isfinite(number))) {
        Report(Kind::Refused, item, PlaceOf(tag, index), kFloatForm);
        return gap;
    }
    return number;
}

std::size_t JsonReader::CountGroups(const std::string& tag) {
    JsonNode* const entry = Ask(tag);
    if (entry == nullptr || !entry->Is(JsonType::List)) {
        return 0;
    }
    entry->Entered = true;
    return m_tree.List(*entry).size();
}

/// Shows the value as the document has it; the tag of a list's item ends as in "values/3".
void JsonReader::Refuse(const std::string& tag, const std::string& found, const std::string& expected) {
    const std::string place = PlaceOf(tag);
    const std::string form = CStringUtil::AnsiToUtf8(expected);
    if (NameWhatWasExpected(place, form) || !HasRoom()) {
        return;
    }
    const JsonNode* const value = m_tree.Find(CurrentNode(), CStringUtil::AnsiToUtf8(tag));
    JsonNode shown = value == nullptr ? JsonNode() : *value;
    if (value == nullptr || !value->IsScalar()) {
        m_tree.AsText(shown) = CStringUtil::AnsiToUtf8(found);
    }
    Report(Kind::Refused, shown, place, form);
}

JsonNode* JsonReader::Ask(const std::string& tag) {
    JsonGroup* const group = m_tree.GroupOrNull(CurrentNode());
    JsonNode* const entry = group == nullptr ? nullptr : group->Find(CStringUtil::AnsiToUtf8(tag));
    if (entry != nullptr) {
        entry->Asked = true;
    }
    return entry;
}

/// The items of a list that is asked for; null, and reported, when there is none.
const JsonList* JsonReader::AskList(const std::string& tag, const std::vector<std::string>& defaults) {
    const JsonNode* const entry = Ask(tag);
    if (entry == nullptr) {
        ReportMissing(PlaceOf(tag), ListText(defaults));
        return nullptr;
    }
    if (!entry->Is(JsonType::List)) {
        Report(Kind::WrongType, *entry, PlaceOf(tag), "a list");
        return nullptr;
    }
    return &m_tree.List(*entry);
}

std::string JsonReader::PlaceOf(const std::string& tag) const {
    return JoinedPlace(m_open.empty() ? std::string() : m_open.back().Place, CStringUtil::AnsiToUtf8(tag));
}

std::string JsonReader::PlaceOf(const std::string& tag, std::size_t item) const {
    return JoinedPlace(PlaceOf(tag), std::to_string(item));
}

/// A document that could not be read has one problem, not one for each key that it therefore lacks.
bool JsonReader::HasRoom() const {
    return !m_isUnreadable && m_problems.size() < kMaxDiagnostics;
}

void JsonReader::ReportMissing(std::string place, std::string taken) {
    if (HasRoom()) {
        m_problems.push_back(StreamProblem(Kind::MissingKey, std::move(place), "", std::move(taken)));
    }
}

void JsonReader::Report(Kind kind, const JsonNode& value, std::string place, std::string expected) {
    if (!HasRoom()) {
        return;
    }
    if (kind == Kind::WrongType) {
        m_wrongTypes.emplace(place, m_problems.size());
    }
    m_problems.push_back(StreamProblem(kind, std::move(place), Shown(m_tree, value), std::move(expected)));
    m_problems.back().Line = m_tree.LineOf(value);
}

/// A value of which was told that it is no text need not be told to be the wrong text, but who refuses it
/// knows better what it should be.
bool JsonReader::NameWhatWasExpected(const std::string& place, const std::string& expected) {
    const auto told = m_wrongTypes.find(place);
    if (told == m_wrongTypes.end()) {
        return false;
    }
    Diagnostic& problem = m_problems[told->second];
    const std::size_t line = problem.Line;
    problem = StreamProblem(Kind::WrongType, place, problem.Found, expected);
    problem.Line = line;
    return true;
}

void JsonReader::AddUnknown(const JsonNode& parent, const std::string& place,
                            std::vector<Diagnostic>& unknown) const {
    const auto look = [&](const JsonNode& node, const std::string& key) {
        if (!node.Asked) {
            unknown.push_back(
                StreamProblem(Kind::UnknownKey, JoinedPlace(place, key), Shown(m_tree, node), ""));
            unknown.back().Line = m_tree.LineOf(node);
        } else if (node.Entered) {
            AddUnknown(node, JoinedPlace(place, key), unknown);
        }
    };
    if (parent.Is(JsonType::Group)) {
        for (const JsonGroup::Entry& entry : m_tree.Group(parent).Entries()) {
            look(entry.Value, *entry.Key);
        }
        return;
    }
    std::size_t index = 0;
    for (const JsonNode& item : m_tree.List(parent)) {
        look(item, std::to_string(index++));
    }
}

} // namespace penlode
