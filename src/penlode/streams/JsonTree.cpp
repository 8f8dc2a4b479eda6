#include "penlode/streams/JsonTree.h"

#include "penlode/text/Digits.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <bit>

namespace penlode {

JsonNode JsonNode::Integer(std::int64_t value) {
    return {std::bit_cast<std::uint64_t>(value), kNowhere, JsonType::Integer};
}

JsonNode JsonNode::Real(double value) {
    return {std::bit_cast<std::uint64_t>(value), kNowhere, JsonType::Real};
}

std::optional<double> JsonNode::Number() const {
    switch (Type) {
    case JsonType::Boolean:
    case JsonType::Natural:
        return static_cast<double>(Bits);
    case JsonType::Integer:
        return static_cast<double>(std::bit_cast<std::int64_t>(Bits));
    case JsonType::Real:
        return std::bit_cast<double>(Bits);
    default:
        return std::nullopt;
    }
}

const JsonNode* JsonGroup::Find(const std::string& key) const {
    const auto place = m_places.find(key);
    return place == m_places.end() ? nullptr : &m_entries[place->second].Value;
}

JsonNode* JsonGroup::Find(const std::string& key) {
    const auto place = m_places.find(key);
    return place == m_places.end() ? nullptr : &m_entries[place->second].Value;
}

std::pair<JsonGroup::Entry*, bool> JsonGroup::FindOrAdd(std::string key) {
    const auto [place, isNew] = m_places.try_emplace(std::move(key), m_entries.size());
    if (isNew) {
        m_entries.push_back({&place->first, {}});
    }
    return {&m_entries[place->second], isNew};
}

void JsonGroup::Remove(const std::string& key) {
    const auto place = m_places.find(key);
    if (place == m_places.end()) {
        return;
    }
    const auto index = static_cast<std::ptrdiff_t>(place->second);
    const auto later = m_entries.erase(m_entries.begin() + index);
    m_places.erase(place);
    std::for_each(later, m_entries.end(), [this](const Entry& entry) { --m_places.at(*entry.Key); });
}

void JsonTree::CountLines(std::string_view json) {
    for (std::size_t at = json.find('\n'); at != std::string_view::npos; at = json.find('\n', at + 1)) {
        m_lineEnds.push_back(at);
    }
}

std::size_t JsonTree::LineOf(const JsonNode& node) const {
    if (node.Offset == JsonNode::kNowhere) {
        return 0;
    }
    const auto end = std::lower_bound(m_lineEnds.begin(), m_lineEnds.end(), node.Offset);
    return static_cast<std::size_t>(end - m_lineEnds.begin()) + 1;
}

/// A key may hold "/" itself, so that each beginning of the place may be one.
const JsonNode* JsonTree::Find(const JsonNode& node, std::string_view place) const {
    constexpr int kMaxCuts = 16;
    std::size_t cut = 0;
    for (int i = 0; i < kMaxCuts && cut != std::string_view::npos; ++i) {
        cut = place.find('/', i == 0 ? 0 : cut + 1);
        const std::string_view key = place.substr(0, cut);
        const JsonNode* child = nullptr;
        if (node.Is(JsonType::Group)) {
            child = Group(node).Find(std::string(key));
        } else if (const auto index = NumberOf<std::size_t>(key); node.Is(JsonType::List) && index) {
            child = *index < List(node).size() ? &List(node)[*index] : nullptr;
        }
        if (child != nullptr && cut != std::string_view::npos) {
            child = Find(*child, place.substr(cut + 1));
        }
        if (child != nullptr) {
            return child;
        }
    }
    return nullptr;
}

std::optional<std::string> JsonTree::ScalarText(const JsonNode& node) const {
    switch (node.Type) {
    case JsonType::Text:
        return CStringUtil::Utf8ToAnsi(Text(node));
    case JsonType::Boolean:
    case JsonType::Natural:
        return Digits(node.Bits);
    case JsonType::Integer:
        return Digits(std::bit_cast<std::int64_t>(node.Bits));
    case JsonType::Real:
        return PlainDigits(std::bit_cast<double>(node.Bits));
    default:
        return std::nullopt;
    }
}

std::string JoinedPlace(const std::string& place, const std::string& key) {
    return place.empty() ? key : place + '/' + key;
}

} // namespace penlode
