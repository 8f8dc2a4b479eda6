#include "penlode/streams/JsonFault.h"

#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <array>
#include <utility>

namespace penlode {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kDigits = "0123456789ABCDEF";

struct Rule {
    std::string_view Sign;
    std::string_view Expected;
};

/// By the beginning of the parser's reason.
constexpr std::array<Rule, 9> kLexicalRules = {{
    {"invalid BOM", "UTF-8"},
    {"invalid string: missing closing quote", "a closing quote"},
    {"invalid string: control character", "control characters written as escapes"},
    {"invalid string: '\\u'", "four hexadecimal digits after \\u"},
    {"invalid string: surrogate", "both halves of a surrogate pair"},
    {"invalid string: forbidden", "one of \" \\ / b f n r t u after the backslash"},
    {"invalid string: ill-formed UTF-8", "UTF-8"},
    {"invalid number", "a digit"},
    {"number overflow", "a number of at most 1.79e308"},
}};

/// By what the parser was reading.
constexpr std::array<Rule, 5> kSyntaxRules = {{
    {"while parsing object key ", "a key in double quotes"},
    {"while parsing object separator ", "a colon after the key"},
    {"while parsing object ", "a comma or }"},
    {"while parsing array ", "a comma or ]"},
    {"while parsing value ", "a value"},
}};

/// The parser's sentence is "… while parsing CONTEXT - REASON"; a number's overflow has no context.
struct Message {
    std::string_view Context;
    std::string_view Reason;

    explicit Message(std::string_view message) {
        const std::size_t dash = message.find(" - ");
        const std::size_t overflow = message.find("number overflow");
        if (overflow < dash) {
            Reason = message.substr(overflow);
        } else if (dash != std::string_view::npos) {
            Context = message.substr(0, dash + 1);
            Reason = message.substr(dash + 3);
        }
    }
};

std::string Expectation(const Message& message) {
    for (const Rule& rule : kLexicalRules) {
        if (message.Reason.starts_with(rule.Sign)) {
            return std::string(rule.Expected);
        }
    }
    if (message.Reason.ends_with("expected end of input")) {
        return "the end of the document";
    }
    for (const Rule& rule : kSyntaxRules) {
        if (message.Context.find(rule.Sign) != std::string_view::npos) {
            return std::string(rule.Expected);
        }
    }
    return "JSON";
}

bool IsContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

bool IsWordByte(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           c == '+' || c == '-' || c == '.';
}

std::size_t WordStart(std::string_view json, std::size_t offset) {
    while (offset > 0 && IsWordByte(json[offset - 1])) {
        --offset;
    }
    return offset;
}

std::string Hex(unsigned char byte) {
    return {kDigits[byte >> 4U], kDigits[byte & 0xFU]};
}

std::string ByteAt(std::string_view json, std::size_t offset) {
    return "byte 0x" + Hex(static_cast<unsigned char>(json[offset]));
}

/// The character whose bytes begin at `offset`, or its first byte in hexadecimal if it is not UTF-8.
std::string CharacterAt(std::string_view json, std::size_t offset) {
    std::size_t end = offset + 1;
    while (end < json.size() && IsContinuation(json[end])) {
        ++end;
    }
    const std::string_view bytes = json.substr(offset, std::min<std::size_t>(end - offset, 4));
    std::string character = CStringUtil::WideToUtf8(CStringUtil::Utf8ToWideString(bytes));
    return character == bytes ? character : ByteAt(json, offset);
}

std::size_t ColumnsBetween(std::string_view json, std::size_t begin, std::size_t end) {
    const std::string_view part = json.substr(begin, end - begin);
    return part.size() - static_cast<std::size_t>(std::count_if(part.begin(), part.end(), IsContinuation));
}

/// Where a literal begins that breaks off at `last`, such as tru; `last` itself if no literal was begun.
std::size_t LiteralStart(std::string_view json, std::size_t last) {
    const std::size_t start = WordStart(json, last);
    const std::string_view begun = json.substr(start, last - start);
    const std::array<std::string_view, 3> literals = {"true", "false", "null"};
    const bool part = std::any_of(literals.begin(), literals.end(), [begun](std::string_view literal) {
        return literal.starts_with(begun) && literal != begun;
    });
    return part ? start : last;
}

/// A token that stands in the wrong place is named by its beginning, a broken one by its beginning or by the
/// byte in a text that broke it. The parser's token is to be trusted for texts only; before others it may
/// still hold what came earlier.
std::size_t FaultOffset(std::string_view json, std::size_t bytesRead, std::size_t tokenSize,
                        std::string_view reason) {
    if (bytesRead > json.size() || bytesRead == 0) {
        return json.size();
    }
    const std::size_t last = bytesRead - 1;
    if (reason.starts_with("invalid literal")) {
        return LiteralStart(json, last);
    }
    if (reason.starts_with("invalid number")) {
        return WordStart(json, last);
    }
    if (reason.starts_with("invalid")) {
        return last;
    }
    if (json[last] == '"') {
        return bytesRead - std::min(bytesRead, tokenSize);
    }
    return IsWordByte(json[last]) ? WordStart(json, last) : last;
}

std::string Finding(std::string_view json, std::size_t offset, std::string_view token,
                    std::string_view reason) {
    const bool inside = offset < json.size();
    if (inside && reason.starts_with("invalid string: ill-formed")) {
        return ByteAt(json, offset);
    }
    const bool wholeText = inside && json[offset] == '"' && reason.starts_with("unexpected");
    return wholeText ? Shortened(std::string(token)) : FoundAt(json, offset);
}

} // namespace

std::string Shortened(std::string text) {
    std::size_t characters = 0;
    std::size_t cut = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        characters += IsContinuation(text[i]) ? 0 : 1;
        if (characters < kMaxShown) {
            cut = i + 1;
        } else if (characters > kMaxShown) {
            return text.substr(0, cut) + "…";
        }
    }
    return text;
}

std::string FoundAt(std::string_view json, std::size_t offset) {
    if (offset >= json.size()) {
        return "the end of the document";
    }
    const auto byte = static_cast<unsigned char>(json[offset]);
    if (byte == '\n' || byte == '\r') {
        return "a line break";
    }
    if (byte < ' ') {
        return "U+00" + Hex(byte);
    }
    const std::string_view rest = json.substr(offset);
    const auto end = std::find_if_not(rest.begin(), rest.end(), IsWordByte);
    return end == rest.begin() ? CharacterAt(json, offset) : Shortened(std::string(rest.begin(), end));
}

Diagnostic UnreadableAt(std::string_view json, std::size_t offset, std::string found, std::string expected) {
    const std::string_view before = json.substr(0, offset);
    const auto line = 1 + std::count(before.begin(), before.end(), '\n');
    const std::size_t lastBreak = before.rfind('\n');
    const std::size_t mark = before.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
    const std::size_t begin = lastBreak == std::string_view::npos ? mark : lastBreak + 1;
    const std::size_t column = 1 + ColumnsBetween(json, begin, offset);
    Diagnostic fault = StreamProblem(DiagnosticKind::Unreadable,
                                     "line " + std::to_string(line) + ", column " + std::to_string(column),
                                     std::move(found), std::move(expected));
    fault.Line = static_cast<std::size_t>(line);
    return fault;
}

Diagnostic ParserFault(std::string_view json, std::size_t bytesRead, std::string_view token,
                       std::string_view message) {
    const Message parts(message);
    const std::size_t offset = FaultOffset(json, bytesRead, token.size(), parts.Reason);
    return UnreadableAt(json, offset, Finding(json, offset, token, parts.Reason), Expectation(parts));
}

std::size_t OffsetOfLevelBeyond(std::string_view json, std::size_t levels) {
    std::size_t depth = 0;
    bool quoted = false;
    for (std::size_t i = 0; i < json.size(); ++i) {
        const char c = json[i];
        if (quoted) {
            i += c == '\\' ? 1 : 0;
            quoted = c != '"';
        } else if (c == '"') {
            quoted = true;
        } else if ((c == '{' || c == '[') && ++depth > levels) {
            return i;
        } else if (c == '}' || c == ']') {
            --depth;
        }
    }
    return json.size();
}

std::size_t OffsetOfRoot(std::string_view json) {
    const std::size_t mark = json.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
    return std::min(json.find_first_not_of(" \t\r\n", mark), json.size());
}

} // namespace penlode
