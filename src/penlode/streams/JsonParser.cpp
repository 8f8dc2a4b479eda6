#include "penlode/streams/JsonParser.h"

#include "penlode/streams/JsonFault.h"
#include "penlode/streams/JsonText.h"
#include "penlode/text/Digits.h"

// RapidJSON counts in 32 bits unless told otherwise; a text of 4 GB would overflow them.
#define RAPIDJSON_NO_SIZETYPEDEFINE

namespace rapidjson {
using SizeType = std::size_t;
}

#include <algorithm>
#include <cstdlib>
#include <new>
#include <optional>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>
#include <utility>

namespace penlode {
namespace {

using rapidjson::SizeType;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr const char* kMaxNumber = "a number of at most 1.79e308";
/// Levels are kept off the machine's stack. RapidJSON's own numbers are neither exact nor safe from exponents
/// of many digits.
constexpr unsigned kFlags = rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag |
                            rapidjson::kParseNumbersAsStringsFlag;

/// RapidJSON's own allocator does not look whether it got memory.
struct Allocator {
    static void* Realloc(void* memory, std::size_t, std::size_t size) {
        void* const moved = std::realloc(memory, size);
        return moved != nullptr ? moved : throw std::bad_alloc();
    }

    static void Free(void* memory) { std::free(memory); }
};

using Reader = rapidjson::GenericReader<rapidjson::UTF8<>, rapidjson::UTF8<>, Allocator>;

/// Of a number that RapidJSON takes, but no double can hold: is it too large, rather than too near to zero?
bool IsHuge(std::string_view number) {
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    const std::size_t digits = std::min(number.find_first_not_of("eE+", mark), number.size());
    // Out of range if negative only.
    const auto exponent = digits == number.size() ? std::optional(0) : NumberOf<int>(number.substr(digits));
    const std::size_t point = std::min(number.find('.'), mark);
    const std::size_t first = number.find_first_of("123456789");
    return exponent && *exponent + static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first) > 0;
}

/// Nothing where the number is too large for any type.
std::optional<JsonNode> NumberNode(std::string_view number) {
    if (const auto integer = NumberOf<std::int64_t>(number)) {
        return JsonNode::Integer(*integer);
    }
    if (const auto natural = NumberOf<std::uint64_t>(number)) {
        return JsonNode::Natural(*natural);
    }
    if (const auto real = NumberOf<double>(number)) {
        return JsonNode::Real(*real);
    }
    return IsHuge(number) ? std::nullopt : std::optional(JsonNode::Real(number.front() == '-' ? -0.0 : 0.0));
}

/// Where the second half of a surrogate pair is escaped without the first, which RapidJSON lets pass.
std::size_t FindLoneHalf(std::string_view token) {
    constexpr std::size_t kPair = std::string_view("\\uD83D\\uDE00").size();
    std::size_t at = token.find('\\');
    while (at != std::string_view::npos) {
        const bool isHalf =
            token[at + 1] == 'u' && (token[at + 2] == 'd' || token[at + 2] == 'D') && token[at + 3] >= '8';
        if (isHalf && (token[at + 3] | 0x20) >= 'c') {
            return at;
        }
        at = token.find('\\', at + (isHalf ? kPair : 2));
    }
    return at;
}

Diagnostic FaultAt(std::string_view json, std::size_t offset, std::string expected) {
    return UnreadableAt(json, offset, FoundAt(json, offset), std::move(expected));
}

/// What stands here is sound, but not here. A text is told whole, and so is the word that a number breaks
/// into.
Diagnostic Misplaced(std::string_view json, std::size_t offset, const char* expected) {
    const std::string_view rest = json.substr(offset);
    rapidjson::MemoryStream in(rest.data(), rest.size());
    rapidjson::BaseReaderHandler<> ignore;
    if (rest.starts_with('"') && Reader().Parse<kFlags | rapidjson::kParseStopWhenDoneFlag>(in, ignore)) {
        return UnreadableAt(json, offset, Shortened(std::string(rest.substr(0, in.Tell()))), expected);
    }
    return FaultAt(json, !rest.empty() && IsWordByte(rest.front()) ? WordStart(json, offset) : offset,
                   expected);
}

/// A number or bare word that breaks off here is told whole, but for one that the document cuts off.
Diagnostic BrokenOff(std::string_view json, std::size_t offset) {
    const std::size_t start = WordStart(json, offset);
    const bool isNumber = json.substr(start).find_first_of("-0123456789") == 0;
    return FaultAt(json, offset < json.size() ? start : offset, isNumber ? "a digit" : "a value");
}

Diagnostic LoneHalf(std::string_view json, std::size_t offset) {
    constexpr std::size_t kEscape = std::string_view("\\uD83D").size();
    return UnreadableAt(json, offset, std::string(json.substr(offset, kEscape)),
                        "both halves of a surrogate pair");
}

/// `stop` is how far RapidJSON read.
Diagnostic FaultOf(std::string_view json, const rapidjson::ParseResult& result, std::size_t stop) {
    const std::size_t offset = result.Offset();
    switch (result.Code()) {
    case rapidjson::kParseErrorDocumentRootNotSingular:
        return Misplaced(json, offset, "the end of the document");
    case rapidjson::kParseErrorObjectMissName:
        return Misplaced(json, offset, "a key in double quotes");
    case rapidjson::kParseErrorObjectMissColon:
        return Misplaced(json, offset, "a colon after the key");
    case rapidjson::kParseErrorObjectMissCommaOrCurlyBracket:
        return Misplaced(json, offset, "a comma or }");
    case rapidjson::kParseErrorArrayMissCommaOrSquareBracket:
        return Misplaced(json, offset, "a comma or ]");
    case rapidjson::kParseErrorStringUnicodeEscapeInvalidHex:
        return FaultAt(json, stop, "four hexadecimal digits after \\u");
    case rapidjson::kParseErrorStringUnicodeSurrogateInvalid:
        return LoneHalf(json, offset);
    case rapidjson::kParseErrorStringInvalidEncoding:
        return UnreadableAt(json, offset, ByteAt(json, offset), "UTF-8");
    case rapidjson::kParseErrorStringEscapeInvalid:
    case rapidjson::kParseErrorStringMissQuotationMark:
        if (offset == json.size()) {
            return FaultAt(json, offset, "a closing quote");
        }
        return json[offset] == '\\'
                   ? FaultAt(json, offset + 1, "one of \" \\ / b f n r t u after the backslash")
                   : FaultAt(json, offset, "control characters written as escapes");
    case rapidjson::kParseErrorNumberTooBig:
        return FaultAt(json, offset, kMaxNumber);
    default:
        return BrokenOff(json, offset);
    }
}

/// Makes the tree of what RapidJSON reads. Events give false where it is to stop, the fault then being the
/// only problem.
class TreeBuilder : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, TreeBuilder> {
public:
    TreeBuilder(std::string_view json, const rapidjson::MemoryStream& in, std::vector<Diagnostic>& problems)
        : m_json(json), m_in(in), m_problems(problems) {
        m_tree.CountLines(json);
    }

    bool Null() {
        TakeToken();
        return Add({});
    }

    bool Bool(bool value) {
        TakeToken();
        return Add(JsonNode::Boolean(value));
    }

    bool RawNumber(const char* /*text*/, SizeType /*length*/, bool /*copy*/) {
        const auto number = NumberNode(TakeToken());
        return number ? Add(*number) : Fail(FaultAt(m_json, m_start, kMaxNumber));
    }

    bool String(const char* text, SizeType length, bool /*copy*/) {
        JsonNode node;
        m_tree.AsText(node).assign(text, length);
        return HasWholePairs(TakeToken()) && Add(node);
    }

    bool Key(const char* text, SizeType length, bool /*copy*/) {
        if (!HasWholePairs(TakeToken())) {
            return false;
        }
        Level& level = m_levels.back();
        const auto [entry, isNew] = level.Group->FindOrAdd({text, length});
        level.Entry = entry;
        entry->Value = {0, Offset()};
        if (!isNew) {
            RefuseDouble(entry->Value);
        }
        return true;
    }

    bool StartObject() {
        JsonNode node;
        return Open(node, {&m_tree.AsGroup(node), nullptr, nullptr});
    }

    bool EndObject(SizeType /*count*/) { return Close(); }

    bool StartArray() {
        JsonNode node;
        return Open(node, {nullptr, nullptr, &m_tree.AsList(node)});
    }

    bool EndArray(SizeType /*count*/) { return Close(); }

    JsonTree Tree() {
        if (!m_root.Is(JsonType::Group)) {
            Fail(UnreadableAt(m_json, m_root.Offset, Shown(m_tree, m_root), "a group in braces"));
            return {};
        }
        m_tree.SetRoot(m_root);
        return std::move(m_tree);
    }

private:
    /// A group and the entry in it that is read, or a list.
    struct Level {
        JsonGroup* Group;
        JsonGroup::Entry* Entry;
        JsonList* List;
    };

    /// What was just read: since the last of its kind, there was nothing but what may stand between tokens.
    std::string_view TakeToken() {
        m_start = m_json.find_first_not_of(" \n\r\t,:[]{}", m_end);
        m_end = m_in.Tell();
        return m_json.substr(m_start, m_end - m_start);
    }

    std::uint32_t Offset() const {
        return static_cast<std::uint32_t>(std::min<std::size_t>(m_start, JsonNode::kNowhere));
    }

    bool Add(JsonNode node) {
        node.Offset = Offset();
        if (m_levels.empty()) {
            m_root = node;
        } else if (const Level& level = m_levels.back(); level.List != nullptr) {
            level.List->push_back(node);
        } else {
            node.Offset = level.Entry->Value.Offset;
            level.Entry->Value = node;
        }
        return true;
    }

    bool Open(const JsonNode& node, const Level& level) {
        m_start = m_in.Tell();
        if (m_levels.size() == kMaxLevels) {
            static const std::string expected =
                "at most " + std::to_string(kMaxLevels) + " levels of nesting";
            return Fail(FaultAt(m_json, m_start, expected.c_str()));
        }
        Add(node);
        m_levels.push_back(level);
        return true;
    }

    bool Close() {
        m_levels.pop_back();
        return true;
    }

    bool HasWholePairs(std::string_view token) {
        const std::size_t half = FindLoneHalf(token);
        return half == std::string_view::npos || Fail(LoneHalf(m_json, m_start + half));
    }

    bool Fail(Diagnostic fault) {
        m_problems = {std::move(fault)};
        return false;
    }

    /// Keys are cut, since a place is made for each of any number of doubled keys.
    void RefuseDouble(const JsonNode& entry) {
        if (m_problems.size() >= kMaxDiagnostics) {
            return;
        }
        std::string place;
        for (const Level& level : m_levels) {
            place = JoinedPlace(place, level.List != nullptr ? std::to_string(level.List->size() - 1)
                                                             : Shortened(*level.Entry->Key));
        }
        m_problems.push_back(
            StreamProblem(DiagnosticKind::Refused, std::move(place), "the key again", "each key once"));
        m_problems.back().Line = m_tree.LineOf(entry);
    }

    std::string_view m_json;
    const rapidjson::MemoryStream& m_in;
    std::size_t m_start = 0; ///< of the token
    std::size_t m_end = 0;   ///< of the last token that is no bracket
    JsonTree m_tree;
    JsonNode m_root;
    std::vector<Level> m_levels;
    std::vector<Diagnostic>& m_problems;
};

} // namespace

JsonTree ParseJson(std::string_view json, std::vector<Diagnostic>& problems) {
    json.remove_prefix(json.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0);
    rapidjson::MemoryStream in(json.data(), json.size());
    TreeBuilder builder(json, in, problems);
    rapidjson::ParseResult result = Reader().Parse<kFlags>(in, builder);
    if (!result.IsError() && in.Tell() < json.size()) { // RapidJSON ends at a zero byte
        result.Set(rapidjson::kParseErrorDocumentRootNotSingular, in.Tell());
    }
    if (!result.IsError()) {
        return builder.Tree();
    }
    if (result.Code() != rapidjson::kParseErrorTermination) {
        problems = {FaultOf(json, result, in.Tell())};
    }
    return {};
}

} // namespace penlode
