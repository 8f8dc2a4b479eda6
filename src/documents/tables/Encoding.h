#pragma once

#include <optional>
#include <string>
#include <string_view>

/// In which encoding a table's text is written, which nobody tells but its bytes.
namespace millichart::documents {

/// Is this well-formed UTF-8?
bool IsUtf8(std::string_view text);

/// Is this UTF-16, by its byte order mark or by the zeros that separators, digits and line breaks have in it?
bool IsUtf16(std::string_view bytes);

/// The UTF-8 of UTF-16 or GB18030, GBK included; nothing of bytes that are neither. Texts in a Western code
/// page, some of which would pass for GB18030 in rare characters, are neither too.
std::optional<std::string> DecodedText(std::string_view bytes);

} // namespace millichart::documents
