#include "documents/tables/Encoding.h"

#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <utility>

namespace millichart::documents {
namespace {

using penlode::CStringUtil;

constexpr std::uint64_t kBeyondAscii = 0x8080808080808080U;

bool IsAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80U;
}

/// The first byte from `at` on that is no ASCII; looked for eight at a time.
const char* EndOfAscii(const char* at, const char* end) {
    for (std::uint64_t word = 0; end - at >= static_cast<std::ptrdiff_t>(sizeof word); at += sizeof word) {
        std::memcpy(&word, at, sizeof word);
        if ((word & kBeyondAscii) != 0) {
            break;
        }
    }
    return std::find_if_not(at, end, IsAscii);
}

enum class ByteOrder { None, LowFirst, HighFirst };

/// Without a mark: at least one unit in ten of the first is ASCII, and no unit is so in the other order.
ByteOrder OrderOf(std::string_view bytes) {
    constexpr std::size_t kLooked = 4096;
    if (bytes.starts_with("\xFF\xFE")) {
        return ByteOrder::LowFirst;
    }
    if (bytes.starts_with("\xFE\xFF")) {
        return ByteOrder::HighFirst;
    }
    std::array<std::size_t, 2> zeros{};
    const std::size_t looked = std::min(bytes.size(), kLooked) / 2 * 2;
    for (std::size_t i = 0; i < looked; ++i) {
        zeros[i % 2] += bytes[i] == '\0' ? 1 : 0;
    }
    const auto isOrder = [&](std::size_t high) { return zeros[high] * 20 >= looked && zeros[1 - high] == 0; };
    if (zeros[0] == zeros[1]) {
        return ByteOrder::None;
    }
    return isOrder(1) ? ByteOrder::LowFirst : isOrder(0) ? ByteOrder::HighFirst : ByteOrder::None;
}

/// Where wide texts are UTF-32, a pair of surrogates is one character of it.
void AppendUnit(std::wstring& text, std::uint32_t unit) {
    const auto last = text.empty() ? 0U : static_cast<std::uint32_t>(text.back());
    if (sizeof(wchar_t) > 2 && unit >> 10U == 0x37U && last >> 10U == 0x36U) {
        text.back() = static_cast<wchar_t>(0x10000U + ((last & 0x3FFU) << 10U | (unit & 0x3FFU)));
    } else {
        text += static_cast<wchar_t>(unit);
    }
}

std::string Utf8OfUtf16(std::string_view bytes, ByteOrder order) {
    const std::size_t low = order == ByteOrder::LowFirst ? 0 : 1;
    std::wstring text;
    text.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto byte = [&](std::size_t at) -> std::uint32_t {
            return static_cast<unsigned char>(bytes[i + at]);
        };
        AppendUnit(text, byte(1 - low) << 8U | byte(low));
    }
    return CStringUtil::WideToUtf8(text);
}

/// Is it plausible as GB18030? Common Chinese characters have a second byte beyond ASCII. An accented letter
/// before a plain one, which reads as a rare character, has not.
bool IsMostlyCommon(std::string_view bytes) {
    std::size_t common = 0;
    std::size_t rare = 0;
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t length = CStringUtil::AnsiCharLength(bytes, at);
        if (length == 2) {
            ++(IsAscii(bytes[at + 1]) ? rare : common);
        }
        at += length;
    }
    return common > rare;
}

} // namespace

/// Long texts are mostly ASCII, so only the runs between are looked at closely.
bool IsUtf8(std::string_view text) {
    const char* const textEnd = text.data() + text.size();
    for (const char* at = text.data(); (at = EndOfAscii(at, textEnd)) != textEnd;) {
        const char* const end = std::find_if(at, textEnd, IsAscii);
        const std::string_view run(at, static_cast<std::size_t>(end - at));
        if (penlode::CStringUtil::WideToUtf8(penlode::CStringUtil::Utf8ToWideString(run)) != run) {
            return false;
        }
        at = end;
    }
    return true;
}

bool IsUtf16(std::string_view bytes) {
    return OrderOf(bytes) != ByteOrder::None;
}

std::optional<std::string> DecodedText(std::string_view bytes) {
    if (const ByteOrder order = OrderOf(bytes); order != ByteOrder::None) {
        return Utf8OfUtf16(bytes, order);
    }
    std::string text = CStringUtil::AnsiToUtf8(std::string(bytes));
    const bool isRead = text.find("\xEF\xBF\xBD") == std::string::npos && IsMostlyCommon(bytes);
    return isRead ? std::optional(std::move(text)) : std::nullopt;
}

} // namespace millichart::documents
