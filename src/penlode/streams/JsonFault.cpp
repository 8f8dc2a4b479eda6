#include "penlode/streams/JsonFault.h"

#include "penlode/text/Digits.h"
#include "penlode/text/StringUtil.h"
#include "penlode/text/Utf8.h"

#include <algorithm>
#include <utility>

namespace penlode {
namespace {

/// The character whose bytes begin at `offset`, or its first byte in hexadecimal if it is not UTF-8.
std::string CharacterAt(std::string_view json, std::size_t offset) {
    std::size_t end = offset + 1;
    while (end < json.size() && IsUtf8Continuation(json[end])) {
        ++end;
    }
    const std::string_view bytes = json.substr(offset, std::min<std::size_t>(end - offset, 4));
    std::string character = CStringUtil::WideToUtf8(CStringUtil::Utf8ToWideString(bytes));
    return character == bytes ? character : ByteAt(json, offset);
}

std::size_t ColumnsBetween(std::string_view json, std::size_t begin, std::size_t end) {
    const std::string_view part = json.substr(begin, end - begin);
    return part.size() -
           static_cast<std::size_t>(std::count_if(part.begin(), part.end(), IsUtf8Continuation));
}

} // namespace

bool IsWordByte(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           c == '+' || c == '-' || c == '.';
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
        return "U+00" + HexDigits(byte, 2);
    }
    const std::string_view rest = json.substr(offset);
    const auto end = std::find_if_not(rest.begin(), rest.end(), IsWordByte);
    return end == rest.begin() ? CharacterAt(json, offset) : Shortened(std::string(rest.begin(), end));
}

Diagnostic UnreadableAt(std::string_view json, std::size_t offset, std::string found, std::string expected) {
    const std::string_view before = json.substr(0, offset);
    const auto line = 1 + std::count(before.begin(), before.end(), '\n');
    const std::size_t lastBreak = before.rfind('\n');
    const std::size_t begin = lastBreak == std::string_view::npos ? 0 : lastBreak + 1;
    const std::size_t column = 1 + ColumnsBetween(json, begin, offset);
    Diagnostic fault = StreamProblem(DiagnosticKind::Unreadable,
                                     "line " + std::to_string(line) + ", column " + std::to_string(column),
                                     std::move(found), std::move(expected));
    fault.Line = static_cast<std::size_t>(line);
    return fault;
}

std::string ByteAt(std::string_view json, std::size_t offset) {
    return "byte 0x" + HexDigits(static_cast<unsigned char>(json[offset]), 2);
}

std::size_t WordStart(std::string_view json, std::size_t offset) {
    while (offset > 0 && IsWordByte(json[offset - 1])) {
        --offset;
    }
    return offset;
}

} // namespace penlode
