#include "penlode/streams/JsonWriter.h"

#include "penlode/streams/TextForms.h"
#include "penlode/text/Digits.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace penlode {
namespace {

/// 5 rather than 5.0; null for what JSON has no number for.
JsonNode NumberNode(double number) {
    if (!std::isfinite(number)) {
        return {};
    }
    const bool isMinusZero = number == 0.0 && std::signbit(number);
    return IsPlainWhole(number) && !isMinusZero ? JsonNode::Integer(static_cast<std::int64_t>(number))
                                                : JsonNode::Real(number);
}

} // namespace

bool JsonWriter::Push(const std::string& tag, int index) {
    const std::size_t levels = (m_open.empty() ? 1 : m_open.back().Levels) + (index < 0 ? 1 : 2);
    // One level is left for a list in the innermost group.
    const bool hasPlace = levels < kMaxLevels && HasPlaceFor(tag, index);
    JsonNode group;
    if (hasPlace) {
        JsonNode& entry = *Entry(tag);
        const bool isLone = index < 0 || (index == 0 && entry.Is(JsonType::Group));
        JsonNode& node = isLone ? entry : Item(entry, static_cast<std::size_t>(index));
        m_tree.AsGroup(node);
        group = node;
    }
    m_open.push_back({group, tag, {}, levels});
    return hasPlace;
}

/// A list becomes longer by one group at a time.
bool JsonWriter::HasPlaceFor(const std::string& tag, int index) const {
    const JsonGroup* const group = Current();
    if (group == nullptr || index <= 0) {
        return group != nullptr;
    }
    const JsonNode* const entry = group->Find(CStringUtil::AnsiToUtf8(tag));
    return entry != nullptr && entry->Is(JsonType::List) &&
           static_cast<std::size_t>(index) <= m_tree.List(*entry).size();
}

JsonNode& JsonWriter::Item(JsonNode& entry, std::size_t index) {
    JsonList& items = m_tree.AsList(entry);
    items.resize(std::max(items.size(), index + 1));
    return items[index];
}

void JsonWriter::Save(const std::string& tag, const std::string& text) {
    if (JsonNode* const entry = Entry(tag)) {
        SaveText(*entry, text);
    }
}

/// A number stays one, as people write it, where it is read as the very text or the text is a record's
/// number: 2e+05 is 200000. So does a boolean.
void JsonWriter::SaveText(JsonNode& node, const std::string& text) {
    double number = 0.0;
    std::string form = text;
    if (node.Number() && ser_evaluate(number, form, false)) {
        const bool isFlag = node.Is(JsonType::Boolean) && (text == "0" || text == "1");
        node = isFlag ? JsonNode::Boolean(text == "1") : NumberNode(number);
        if (m_tree.ScalarText(node) == text || Digits(static_cast<float>(number)) == text) {
            return;
        }
    }
    m_tree.AsText(node) = CStringUtil::AnsiToUtf8(text);
}

void JsonWriter::Save(const std::string& tag, const std::vector<std::string>& texts) {
    if (JsonNode* const entry = Entry(tag)) {
        JsonList& items = m_tree.AsList(*entry);
        // Behind numbers come numbers.
        items.resize(texts.size(), !items.empty() && items.back().Number() ? items.back() : JsonNode());
        for (std::size_t i = 0; i < texts.size(); ++i) {
            SaveText(items[i], texts[i]);
        }
    }
}

void JsonWriter::Save(const std::string& tag, std::span<const double> numbers) {
    if (JsonNode* const entry = Entry(tag)) {
        JsonList& items = m_tree.AsList(*entry);
        items.resize(numbers.size());
        std::transform(numbers.begin(), numbers.end(), items.begin(), NumberNode);
    }
}

void JsonWriter::Remove(const std::string& tag) {
    if (JsonGroup* const group = Current()) {
        group->Remove(CStringUtil::AnsiToUtf8(tag));
    }
}

/// The entry of the open group, made if need be; null where nothing is kept.
JsonNode* JsonWriter::Entry(const std::string& tag) {
    JsonGroup* const group = Current();
    return group == nullptr ? nullptr : &group->FindOrAdd(CStringUtil::AnsiToUtf8(tag)).first->Value;
}

} // namespace penlode
