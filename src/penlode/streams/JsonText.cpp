#include "penlode/streams/JsonText.h"

#include "penlode/streams/JsonFault.h"
#include "penlode/text/Digits.h"

#include <cmath>

namespace penlode {
namespace {

/// A number that shows that it need not be whole: 20.0, 0.0001, 1e+300.
std::string RealText(double value) {
    const double size = std::abs(value);
    if (size != 0.0 && (size < 1e-4 || size >= 1e15)) {
        return Digits(value, std::chars_format::scientific);
    }
    std::string text = Digits(value, std::chars_format::fixed);
    return text.find('.') == std::string::npos ? text + ".0" : text;
}

char ShortEscape(char c) {
    constexpr std::string_view kCharacters = "\b\t\n\f\r\"\\";
    constexpr std::string_view kEscapes = "btnfr\"\\";
    const std::size_t at = kCharacters.find(c);
    return at == std::string_view::npos ? '\0' : kEscapes[at];
}

std::string Quoted(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (const char escape = ShortEscape(c)) {
            quoted += {'\\', escape};
        } else if (byte < 0x20) {
            quoted += "\\u" + HexDigits(byte, 4, kLowerDigits);
        } else {
            quoted += c;
        }
    }
    return quoted + '"';
}

/// Writes values behind each other, on lines of their own or on one that may be cut.
class Printer {
public:
    Printer(const JsonTree& tree, bool onLines, std::size_t limit)
        : m_tree(tree), m_onLines(onLines), m_limit(limit) {}

    std::string Print(const JsonNode& node) {
        Add(node, 0);
        return std::move(m_text);
    }

private:
    void Add(const JsonNode& node, std::size_t level) {
        if (node.Is(JsonType::Group)) {
            AddAll(m_tree.Group(node).Entries(), "{}", level, [this, level](const JsonGroup::Entry& entry) {
                m_text += Quoted(*entry.Key) + (m_onLines ? ": " : ":");
                Add(entry.Value, level + 1);
            });
        } else if (node.Is(JsonType::List)) {
            AddAll(m_tree.List(node), "[]", level,
                   [this, level](const JsonNode& item) { Add(item, level + 1); });
        } else {
            m_text += ScalarText(node);
        }
    }

    template <class Items, class AddItem>
    void AddAll(const Items& items, std::string_view brackets, std::size_t level, AddItem addItem) {
        m_text += brackets.front();
        for (const auto& item : items) {
            if (m_text.size() > m_limit) {
                return;
            }
            m_text += &item == &items.front() ? "" : ",";
            BreakLine(level + 1);
            addItem(item);
        }
        if (!items.empty()) {
            BreakLine(level);
        }
        m_text += brackets.back();
    }

    void BreakLine(std::size_t level) {
        if (m_onLines) {
            m_text.append(1, '\n').append(2 * level, ' ');
        }
    }

    std::string ScalarText(const JsonNode& node) const {
        switch (node.Type) {
        case JsonType::Text:
            return Quoted(m_tree.Text(node));
        case JsonType::Boolean:
            return node.Bits != 0 ? "true" : "false";
        case JsonType::Real:
            return RealText(*node.Number());
        case JsonType::Null:
            return "null";
        default:
            return *m_tree.ScalarText(node);
        }
    }

    const JsonTree& m_tree;
    bool m_onLines;
    std::size_t m_limit; ///< bytes after which nothing more is of use
    std::string m_text;
};

} // namespace

std::string DocumentText(const JsonTree& tree) {
    return Printer(tree, true, std::string::npos).Print(tree.Root()) + '\n';
}

std::string Shown(const JsonTree& tree, const JsonNode& node) {
    constexpr std::size_t kMaxCharacter = 4;
    return Shortened(Printer(tree, false, kMaxShown * kMaxCharacter).Print(node));
}

} // namespace penlode
