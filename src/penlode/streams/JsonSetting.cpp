#include "penlode/streams/JsonSetting.h"

#include "penlode/streams/JsonParser.h"
#include "penlode/text/Digits.h"

#include <string>
#include <vector>

namespace penlode {
namespace {

constexpr const char* kValue = "value";

/// A value of another tree, as one of this; it stands nowhere in the document.
JsonNode Adopted(JsonTree& tree, const JsonTree& other, const JsonNode& value) {
    JsonNode own{value.Bits, JsonNode::kNowhere, value.Type};
    if (value.Is(JsonType::Text)) {
        own = {};
        tree.AsText(own) = other.Text(value);
    } else if (value.Is(JsonType::List)) {
        own = {};
        JsonList items;
        for (const JsonNode& item : other.List(value)) {
            items.push_back(Adopted(tree, other, item));
        }
        tree.AsList(own) = std::move(items);
    } else if (value.Is(JsonType::Group)) {
        own = {};
        JsonGroup& group = tree.AsGroup(own);
        for (const JsonGroup::Entry& entry : other.Group(value).Entries()) {
            const JsonNode adopted = Adopted(tree, other, entry.Value);
            group.FindOrAdd(*entry.Key).first->Value = adopted;
        }
    }
    return own;
}

/// A number is one only if it reads as the very text, as 007 and 1.50 do not.
JsonNode ValueNode(JsonTree& tree, std::string_view value) {
    std::vector<Diagnostic> problems;
    const JsonTree parsed =
        ParseJson("{\"" + std::string(kValue) + "\":" + std::string(value) + "}", problems);
    const JsonGroup& root = parsed.Group(parsed.Root());
    const JsonNode* const node = root.Entries().size() == 1 ? root.Find(kValue) : nullptr;
    const bool isOther = node != nullptr && node->Type >= JsonType::Integer && node->Type <= JsonType::Real &&
                         parsed.ScalarText(*node) != value;
    if (problems.empty() && node != nullptr && !isOther) {
        return Adopted(tree, parsed, *node);
    }
    JsonNode text;
    tree.AsText(text) = value;
    return text;
}

/// The entry or item of a node; null if there can be none.
JsonNode* Below(JsonTree& tree, JsonNode& node, std::string_view key) {
    if (node.Is(JsonType::Null)) {
        tree.AsGroup(node);
    }
    if (node.Is(JsonType::Group)) {
        return &tree.Group(node).FindOrAdd(std::string(key)).first->Value;
    }
    const auto index = NumberOf<std::size_t>(key);
    if (!node.Is(JsonType::List) || !index || *index > tree.List(node).size()) {
        return nullptr;
    }
    JsonList& items = tree.List(node);
    if (*index == items.size()) {
        items.emplace_back();
    }
    return &items[*index];
}

} // namespace

bool SetValue(JsonTree& tree, std::string_view place, std::string_view value) {
    JsonNode root = tree.Root();
    JsonNode* node = &root;
    for (std::size_t levels = 1; node != nullptr && !place.empty() && levels < kMaxLevels; ++levels) {
        const std::size_t slash = place.find('/');
        node = Below(tree, *node, place.substr(0, slash));
        place = slash == std::string_view::npos ? std::string_view() : place.substr(slash + 1);
    }
    if (node == nullptr || node == &root || !place.empty()) {
        return false;
    }
    *node = ValueNode(tree, value);
    return true;
}

} // namespace penlode
