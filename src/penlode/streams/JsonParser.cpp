#include "penlode/streams/JsonParser.h"

#include "penlode/streams/JsonFault.h"
#include "penlode/streams/JsonText.h"
#include "penlode/text/Utf8.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace penlode {
namespace {

constexpr const char* kUtf8 = "UTF-8";
constexpr const char* kValue = "a value";
constexpr const char* kDigit = "a digit";
constexpr const char* kKey = "a key in double quotes";
constexpr const char* kDocumentEnd = "the end of the document";

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsPlain(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x20 && byte < 0x80 && c != '"' && c != '\\';
}

int HexValue(char c) {
    return IsDigit(c)               ? c - '0'
           : (c >= 'a' && c <= 'f') ? c - 'a' + 10
           : (c >= 'A' && c <= 'F') ? c - 'A' + 10
                                    : -1;
}

/// Of a number that no double can hold: is it too large, rather than too near to zero?
bool IsHuge(std::string_view number) {
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    const std::size_t digits = std::min(number.find_first_not_of("eE+", mark), number.size());
    std::int64_t exponent = 0;
    const auto parsed = std::from_chars(number.data() + digits, number.data() + number.size(), exponent);
    if (parsed.ec == std::errc::result_out_of_range) {
        return number[digits] != '-';
    }
    const std::size_t point = std::min(number.find('.'), mark);
    const std::size_t first = number.find_first_of("123456789");
    return exponent + static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first) > 0;
}

/// Reads a text into a tree, value within value; kMaxLevels bounds how deep. Each member that reads gives
/// false when it cannot go on, the fault then being the only problem.
class Parser {
public:
    Parser(std::string_view json, std::vector<Diagnostic>& problems) : m_json(json), m_problems(problems) {}

    bool Document();

    JsonTree Tree() { return std::move(m_tree); }

private:
    /// What stands round the value that is read: a list, or a group and the key in it.
    struct Level {
        const JsonList* List;
        const std::string* Key;
    };

    bool Value(JsonNode& value);
    bool Group(JsonNode& value);
    bool Entry(JsonGroup& group);
    bool List(JsonNode& value);
    bool Text(JsonNode& value);
    bool Literal(JsonNode& value);
    bool Number(JsonNode& value);
    bool NumberToken();
    bool Digits();
    bool Real(std::size_t start, JsonNode& value);
    bool Mark();
    bool String(std::string& text);
    bool Escape(std::string& text);
    bool UnicodeEscape(std::string& text);
    bool HexDigits(char32_t& unit);
    bool Character(std::string& text);
    bool OpenLevel();
    bool Next(char c, const char* expected);
    bool Unexpected(const char* expected);
    bool Fail(std::size_t offset, const char* expected);
    bool Fail(std::size_t offset, std::string found, std::string expected);
    void RefuseDouble(const JsonNode& entry);

    std::uint32_t Offset() const {
        return static_cast<std::uint32_t>(std::min<std::size_t>(m_at, JsonNode::kNowhere));
    }

    bool Ended() const { return m_at == m_json.size(); }

    /// A zero byte also at the end; whoever does not expect one then looks at Ended.
    char Peek() const { return Ended() ? '\0' : m_json[m_at]; }

    char PeekValue() {
        while (!Ended() && (m_json[m_at] == ' ' || m_json[m_at] == '\n' || m_json[m_at] == '\r' ||
                            m_json[m_at] == '\t')) {
            ++m_at;
        }
        return Peek();
    }

    bool Take(char c) {
        const bool taken = !Ended() && m_json[m_at] == c;
        m_at += taken ? 1 : 0;
        return taken;
    }

    std::string_view m_json;
    std::size_t m_at = 0;
    JsonTree m_tree;
    std::vector<Diagnostic>& m_problems;
    std::vector<Level> m_levels;
};

bool Parser::Document() {
    m_tree.CountLines(m_json);
    JsonNode root;
    if (!Mark()) {
        return false;
    }
    PeekValue();
    const std::size_t start = m_at;
    if (!Value(root)) {
        return false;
    }
    PeekValue();
    if (!Ended()) {
        return Unexpected(kDocumentEnd);
    }
    if (!root.Is(JsonType::Group)) {
        return Fail(start, Shown(m_tree, root), "a group in braces");
    }
    m_tree.SetRoot(root);
    return true;
}

/// A byte order mark that is begun is to be whole.
bool Parser::Mark() {
    if (Peek() == kByteOrderMark.front()) {
        for (const char c : kByteOrderMark) {
            if (!Take(c)) {
                return Fail(m_at, kUtf8);
            }
        }
    }
    return true;
}

bool Parser::Value(JsonNode& value) {
    const char c = PeekValue();
    const std::uint32_t offset = Offset();
    const bool read = c == '{'                 ? Group(value)
                      : c == '['               ? List(value)
                      : c == '"'               ? Text(value)
                      : c == '-' || IsDigit(c) ? Number(value)
                                               : Literal(value);
    value.Offset = offset;
    return read;
}

bool Parser::OpenLevel() {
    if (m_levels.size() == kMaxLevels) {
        return Fail(m_at, FoundAt(m_json, m_at),
                    "at most " + std::to_string(kMaxLevels) + " levels of nesting");
    }
    ++m_at;
    return true;
}

bool Parser::Group(JsonNode& value) {
    if (!OpenLevel()) {
        return false;
    }
    JsonGroup& group = m_tree.AsGroup(value);
    m_levels.push_back({nullptr, nullptr});
    if (PeekValue() == '}') {
        ++m_at;
    } else {
        do {
            if (!Entry(group)) {
                return false;
            }
        } while (Take(','));
        if (!Next('}', "a comma or }")) {
            return false;
        }
    }
    m_levels.pop_back();
    return true;
}

/// Stands before the next comma or brace afterwards.
bool Parser::Entry(JsonGroup& group) {
    if (PeekValue() != '"') {
        return Unexpected(kKey);
    }
    const std::uint32_t offset = Offset();
    std::string key;
    if (!String(key) || !Next(':', "a colon after the key")) {
        return false;
    }
    const auto [entry, isNew] = group.FindOrAdd(std::move(key));
    m_levels.back().Key = entry->Key;
    entry->Value = {0, offset};
    if (!isNew) {
        RefuseDouble(entry->Value);
    }
    const bool read = Value(entry->Value);
    entry->Value.Offset = offset;
    PeekValue();
    return read;
}

bool Parser::List(JsonNode& value) {
    if (!OpenLevel()) {
        return false;
    }
    JsonList& items = m_tree.AsList(value);
    m_levels.push_back({&items, nullptr});
    if (PeekValue() == ']') {
        ++m_at;
    } else {
        do {
            JsonNode item;
            if (!Value(item)) {
                return false;
            }
            items.push_back(item);
            PeekValue();
        } while (Take(','));
        if (!Next(']', "a comma or ]")) {
            return false;
        }
    }
    m_levels.pop_back();
    return true;
}

bool Parser::Text(JsonNode& value) {
    return String(m_tree.AsText(value));
}

bool Parser::Literal(JsonNode& value) {
    const std::string_view rest = m_json.substr(m_at);
    for (const auto& [name, node] : {std::pair<std::string_view, JsonNode>("null", {}),
                                     {"true", JsonNode::Boolean(true)},
                                     {"false", JsonNode::Boolean(false)}}) {
        if (rest.starts_with(name)) {
            value = node;
            m_at += name.size();
            return true;
        }
        if (name.starts_with(rest)) {
            return Fail(m_json.size(), kValue);
        }
    }
    return Fail(m_at, kValue);
}

bool Parser::Number(JsonNode& value) {
    const std::size_t start = m_at;
    if (!NumberToken()) {
        return false;
    }
    const char* const begin = m_json.data() + start;
    const char* const end = m_json.data() + m_at;
    const bool isWhole =
        std::find_if(begin, end, [](char c) { return c == '.' || c == 'e' || c == 'E'; }) == end;
    std::int64_t integer = 0;
    if (isWhole && std::from_chars(begin, end, integer).ec == std::errc()) {
        value = JsonNode::Integer(integer);
        return true;
    }
    std::uint64_t natural = 0;
    if (isWhole && std::from_chars(begin, end, natural).ec == std::errc()) {
        value = JsonNode::Natural(natural);
        return true;
    }
    return Real(start, value);
}

bool Parser::Real(std::size_t start, JsonNode& value) {
    const std::string_view token = m_json.substr(start, m_at - start);
    double number = 0.0;
    const auto parsed = std::from_chars(token.data(), token.data() + token.size(), number);
    if (parsed.ec == std::errc::result_out_of_range) {
        if (IsHuge(token)) {
            return Fail(start, "a number of at most 1.79e308");
        }
        number = token.front() == '-' ? -0.0 : 0.0;
    }
    value = JsonNode::Real(number);
    return true;
}

/// Moves behind a number. One that breaks off is told whole, but for one that the document cuts off.
bool Parser::NumberToken() {
    const std::size_t start = m_at;
    Take('-');
    bool isNumber = Take('0') || Digits();
    if (isNumber && Take('.')) {
        isNumber = Digits();
    }
    if (isNumber && (Take('e') || Take('E'))) {
        if (!Take('+')) {
            Take('-');
        }
        isNumber = Digits();
    }
    return isNumber || Fail(Ended() ? m_at : WordStart(m_json, start), kDigit);
}

bool Parser::Digits() {
    const std::size_t start = m_at;
    while (IsDigit(Peek())) {
        ++m_at;
    }
    return m_at > start;
}

bool Parser::String(std::string& text) {
    ++m_at;
    for (;;) {
        const std::size_t start = m_at;
        while (!Ended() && IsPlain(m_json[m_at])) {
            ++m_at;
        }
        text.append(m_json, start, m_at - start);
        if (Ended()) {
            return Fail(m_at, "a closing quote");
        }
        if (Take('"')) {
            return true;
        }
        if (!(Take('\\') ? Escape(text) : Character(text))) {
            return false;
        }
    }
}

/// What follows a backslash.
bool Parser::Escape(std::string& text) {
    constexpr std::string_view kEscapes = "\"\\/bfnrt";
    constexpr std::string_view kCharacters = "\"\\/\b\f\n\r\t";
    if (Take('u')) {
        return UnicodeEscape(text);
    }
    const std::size_t which = Ended() ? std::string_view::npos : kEscapes.find(Peek());
    if (which == std::string_view::npos) {
        return Fail(m_at, "one of \" \\ / b f n r t u after the backslash");
    }
    text += kCharacters[which];
    ++m_at;
    return true;
}

/// What follows \u: a character, or a half of one beyond U+FFFF and \u with the other half.
bool Parser::UnicodeEscape(std::string& text) {
    constexpr const char* kBothHalves = "both halves of a surrogate pair";
    char32_t unit = 0;
    if (!HexDigits(unit)) {
        return false;
    }
    if (unit >= 0xDC00 && unit < 0xE000) {
        return Fail(m_at - 1, kBothHalves);
    }
    if (unit >= 0xD800 && unit < 0xDC00) {
        char32_t low = 0;
        if (!Take('\\') || !Take('u')) {
            return Fail(m_at, kBothHalves);
        }
        if (!HexDigits(low)) {
            return false;
        }
        if (low < 0xDC00 || low >= 0xE000) {
            return Fail(m_at - 1, kBothHalves);
        }
        unit = 0x10000 + ((unit - 0xD800) << 10U) + (low - 0xDC00);
    }
    AppendUtf8(text, unit);
    return true;
}

bool Parser::HexDigits(char32_t& unit) {
    for (int i = 0; i < 4; ++i) {
        const int digit = HexValue(Peek());
        if (digit < 0) {
            return Fail(m_at, "four hexadecimal digits after \\u");
        }
        unit = unit << 4U | static_cast<char32_t>(digit);
        ++m_at;
    }
    return true;
}

/// One beyond ASCII, byte by byte.
bool Parser::Character(std::string& text) {
    const auto lead = static_cast<std::uint8_t>(Peek());
    if (lead < 0x20) {
        return Fail(m_at, "control characters written as escapes");
    }
    const std::size_t start = m_at;
    Utf8Form form = Utf8FormOf(lead);
    bool isGood = form.Continuations > 0;
    for (std::size_t i = 0; isGood && i < form.Continuations; ++i) {
        ++m_at;
        const auto byte = static_cast<std::uint8_t>(Peek());
        isGood = byte >= form.Low && byte <= form.High;
        form = {form.Continuations};
    }
    if (!isGood) {
        return Fail(m_at, FoundByteAt(m_json, m_at), kUtf8);
    }
    ++m_at;
    text.append(m_json, start, m_at - start);
    return true;
}

/// Takes the character that must follow, blanks aside.
bool Parser::Next(char c, const char* expected) {
    return PeekValue() == c ? Take(c) : Unexpected(expected);
}

/// What stands here is sound by itself, but not here; what is not even sound is told as that.
bool Parser::Unexpected(const char* expected) {
    const std::size_t start = m_at;
    const char c = Peek();
    if (c == '"') {
        std::string text;
        return String(text) &&
               Fail(start, Shortened(std::string(m_json.substr(start, m_at - start))), expected);
    }
    if (c == '-' || IsDigit(c)) {
        return NumberToken() && Fail(WordStart(m_json, start), expected);
    }
    return Fail(start, expected);
}

bool Parser::Fail(std::size_t offset, const char* expected) {
    return Fail(offset, FoundAt(m_json, offset), expected);
}

bool Parser::Fail(std::size_t offset, std::string found, std::string expected) {
    m_problems = {UnreadableAt(m_json, offset, std::move(found), std::move(expected))};
    return false;
}

/// Keys are cut, since a place is made for each of any number of doubled keys.
void Parser::RefuseDouble(const JsonNode& entry) {
    if (m_problems.size() >= kMaxProblems) {
        return;
    }
    std::string place;
    for (const Level& level : m_levels) {
        place = JoinedPlace(place, level.List != nullptr ? std::to_string(level.List->size())
                                                         : Shortened(*level.Key));
    }
    m_problems.push_back(
        StreamProblem(DiagnosticKind::Refused, std::move(place), "the key again", "each key once"));
    m_problems.back().Line = m_tree.LineOf(entry);
}

} // namespace

JsonTree ParseJson(std::string_view json, std::vector<Diagnostic>& problems) {
    Parser parser(json, problems);
    return parser.Document() ? parser.Tree() : JsonTree();
}

} // namespace penlode
