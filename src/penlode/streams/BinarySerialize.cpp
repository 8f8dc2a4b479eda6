#include "penlode/streams/BinarySerialize.h"

#include "penlode/text/Digits.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <utility>

namespace penlode {
namespace {

constexpr std::string_view kMagic = "MCPS";
constexpr std::uint32_t kVersion = 1;
constexpr std::size_t kWordSize = 4;

std::uint32_t WordOf(std::string_view bytes) {
    std::uint32_t word = 0;
    for (std::size_t i = kWordSize; i > 0; --i) {
        word = word << 8U | static_cast<unsigned char>(bytes[i - 1]);
    }
    return word;
}

void AppendWord(std::string& bytes, std::uint32_t word) {
    for (std::size_t i = 0; i < kWordSize; ++i) {
        bytes += static_cast<char>(word >> 8U * i & 0xFFU);
    }
}

/// A length field holds 32 bits; what is longer is cut, so that the stream stays readable.
std::uint32_t StoredLength(std::size_t length) {
    constexpr std::size_t kMaxLength = std::numeric_limits<std::uint32_t>::max();
    return static_cast<std::uint32_t>(std::min(length, kMaxLength));
}

void AppendText(std::string& bytes, std::string_view text) {
    const std::uint32_t length = StoredLength(text.size());
    AppendWord(bytes, length);
    bytes += text.substr(0, length);
}

std::string ByteCount(std::size_t count) {
    return std::to_string(count) + (count == 1 ? " byte" : " bytes");
}

std::string HexBytes(std::string_view bytes) {
    std::string text = "bytes";
    for (const char c : bytes) {
        text += ' ' + HexDigits(static_cast<unsigned char>(c), 2);
    }
    return text;
}

} // namespace

CBinarySerialize::CBinarySerialize() : m_bytes(kMagic), m_saving(true) {
    AppendWord(m_bytes, kVersion);
}

CBinarySerialize::CBinarySerialize(std::string_view bytes) : m_bytes(bytes), m_saving(false) {
    const auto magic = Take(kMagic.size(), "\"MCPS\"");
    if (magic && *magic != kMagic) {
        Fail(0, HexBytes(*magic), "\"MCPS\"");
    }
    const auto version = TakeWord("a version");
    if (version && *version != kVersion) {
        Fail(kMagic.size(), "version " + std::to_string(*version), "version " + std::to_string(kVersion));
    }
}

void CBinarySerialize::Write(Color value) {
    WriteWord(value.Argb);
}

void CBinarySerialize::Write(const std::string& value) {
    if (m_saving) {
        AppendText(m_bytes, value);
    }
}

void CBinarySerialize::Write(float value) {
    WriteWord(std::bit_cast<std::uint32_t>(value));
}

void CBinarySerialize::Write(std::int32_t value) {
    WriteWord(std::bit_cast<std::uint32_t>(value));
}

void CBinarySerialize::Write(const std::vector<std::string>& values) {
    const std::uint32_t count = StoredLength(values.size());
    WriteWord(count);
    for (std::size_t i = 0; i < count; ++i) {
        Write(values[i]);
    }
}

void CBinarySerialize::Write(const Font* font) {
    if (WritePresence(font != nullptr)) {
        Write(CStringUtil::WideToAnsiString(font->Family));
        Write(font->Size);
        Write(font->Style);
    }
}

void CBinarySerialize::Write(const Pen* pen) {
    if (WritePresence(pen != nullptr)) {
        Write(pen->GetColor());
        Write(pen->GetWidth());
        Write(static_cast<std::int32_t>(pen->GetDashStyle()));
    }
}

void CBinarySerialize::Read(Color& value) {
    value.Argb = TakeWord("a colour").value_or(value.Argb);
}

void CBinarySerialize::Read(std::string& value) {
    if (const auto length = TakeLength("a text", 1)) {
        value = Take(*length, "a text").value();
    }
}

void CBinarySerialize::Read(float& value) {
    if (const auto word = TakeWord("a number")) {
        value = std::bit_cast<float>(*word);
    }
}

void CBinarySerialize::Read(std::int32_t& value) {
    if (const auto word = TakeWord("a whole number")) {
        value = std::bit_cast<std::int32_t>(*word);
    }
}

void CBinarySerialize::Read(std::vector<std::string>& values) {
    const auto count = TakeLength("a list", kWordSize);
    if (!count) {
        return;
    }
    std::vector<std::string> texts;
    for (std::uint32_t i = 0; i < *count; ++i) {
        Read(texts.emplace_back());
        if (Failed()) {
            return;
        }
    }
    values = std::move(texts);
}

template <class Object, class ReadFields>
void CBinarySerialize::ReadObject(Object** object, ReadFields readFields) {
    const bool present = TakePresence();
    Object read;
    if (present) {
        readFields(read);
    }
    if (!Failed()) {
        *object = present ? new Object(std::move(read)) : nullptr;
    }
}

void CBinarySerialize::Read(Font** font) {
    ReadObject(font, [this](Font& read) {
        std::string family;
        Read(family);
        Read(read.Size);
        Read(read.Style);
        read.Family = CStringUtil::AnsiToWideString(family);
    });
}

void CBinarySerialize::Read(Pen** pen) {
    ReadObject(pen, [this](Pen& read) {
        Color color;
        float width = 0.0F;
        Read(color);
        Read(width);
        ReadDashStyle(read);
        read.SetColor(color);
        read.SetWidth(width);
    });
}

void CBinarySerialize::WriteWord(std::uint32_t word) {
    if (m_saving) {
        AppendWord(m_bytes, word);
    }
}

bool CBinarySerialize::WritePresence(bool present) {
    if (m_saving) {
        m_bytes += static_cast<char>(present);
    }
    return present;
}

void CBinarySerialize::Refuse(const std::string& found, const std::string& expected) {
    if (!Failed() && !m_saving) {
        Fail(m_position, found, expected);
    }
}

void CBinarySerialize::Fail(std::size_t offset, std::string found, std::string expected) {
    m_problem = StreamProblem(DiagnosticKind::Unreadable, "byte " + std::to_string(offset), std::move(found),
                              std::move(expected));
}

std::optional<std::string_view> CBinarySerialize::Take(std::size_t size, const char* what) {
    if (Failed()) {
        return std::nullopt;
    }
    if (m_saving) {
        Fail(m_bytes.size(), "a stream that is saving", "a stream that is loading");
        return std::nullopt;
    }
    if (size > Remaining()) {
        Fail(m_position, "the end after " + ByteCount(Remaining()), what + (" of " + ByteCount(size)));
        return std::nullopt;
    }
    m_position += size;
    return std::string_view(m_bytes).substr(m_position - size, size);
}

std::optional<std::uint32_t> CBinarySerialize::TakeWord(const char* what) {
    const auto bytes = Take(kWordSize, what);
    return bytes ? std::optional(WordOf(*bytes)) : std::nullopt;
}

std::optional<std::uint32_t> CBinarySerialize::TakeLength(const char* what, std::size_t itemSize) {
    const auto length = TakeWord(what);
    const std::size_t maximum = Remaining() / itemSize;
    if (length && *length > maximum) {
        m_position -= kWordSize;
        Fail(m_position, "a length of " + std::to_string(*length),
             what + (" whose length is at most " + std::to_string(maximum)));
        return std::nullopt;
    }
    return length;
}

bool CBinarySerialize::TakePresence() {
    const auto byte = Take(1, "a presence flag");
    const auto flag = static_cast<unsigned char>(byte ? byte->front() : '\0');
    if (flag > 1) {
        Fail(--m_position, std::to_string(flag), "0 for nothing or 1 for an object");
    }
    return flag == 1;
}

void CBinarySerialize::ReadDashStyle(Pen& pen) {
    std::int32_t style = 0;
    Read(style);
    if (!Failed() && pen.SetDashStyle(static_cast<DashStyle>(style)) != Status::Ok) {
        m_position -= kWordSize;
        Fail(m_position, std::to_string(style), "a dash style from 0 to 5");
    }
}

} // namespace penlode
