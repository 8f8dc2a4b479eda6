#pragma once

#include "penlode/streams/Diagnostic.h"
#include "penlode/streams/ISerialize.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace penlode {

/// The positional stream as little-endian binary.
///
///     "MCPS"  u32 version (1)  then the values:
///     i32, f32 (IEEE 754), colour u32 ARGB
///     text     u32 bytes, GBK bytes
///     list     u32 items, texts
///     font     u8 present; family as text, f32 size, i32 style
///     pen      u8 present; u32 ARGB, f32 width, i32 dash style
///
/// Lengths are checked against the bytes that are left before anything is allocated. A write to a stream that
/// loads does nothing; a read from one that saves fails.
class PENLODE_API CBinarySerialize final : public ISerialize {
public:
    /// An empty stream to save into.
    CBinarySerialize();
    /// A stream to load from. The bytes are copied.
    explicit CBinarySerialize(std::string_view bytes);

    /// What was saved, header included.
    const std::string& Bytes() const { return m_bytes; }

    /// What stopped a load, with the byte offset at which it stopped.
    const std::optional<Diagnostic>& Problem() const { return m_problem; }

    /// Bytes not read yet.
    std::size_t Remaining() const { return m_bytes.size() - m_position; }

    bool IsSaving() const override { return m_saving; }

    void Write(Color value) override;
    void Write(const std::string& value) override;
    void Write(float value) override;
    void Write(std::int32_t value) override;
    void Write(const std::vector<std::string>& values) override;
    void Write(const Font* font) override;
    void Write(const Pen* pen) override;
    void Read(Color& value) override;
    void Read(std::string& value) override;
    void Read(float& value) override;
    void Read(std::int32_t& value) override;
    void Read(std::vector<std::string>& values) override;
    void Read(Font** font) override;
    void Read(Pen** pen) override;

    bool Failed() const override { return m_problem.has_value(); }

    void Refuse(const std::string& found, const std::string& expected) override;

private:
    void WriteWord(std::uint32_t word);
    bool WritePresence(bool present);

    void Fail(std::size_t offset, std::string found, std::string expected);
    /// The next `size` bytes, or nothing and a problem. `what` names the value for the problem's text.
    std::optional<std::string_view> Take(std::size_t size, const char* what);
    std::optional<std::uint32_t> TakeWord(const char* what);
    /// A count of items that take at least `itemSize` bytes each.
    std::optional<std::uint32_t> TakeLength(const char* what, std::size_t itemSize);
    /// Is there an object? Not in a stream that failed.
    bool TakePresence();
    template <class Object, class ReadFields> void ReadObject(Object** object, ReadFields readFields);
    void ReadDashStyle(Pen& pen);

    std::string m_bytes;
    std::size_t m_position = 0;
    bool m_saving;
    std::optional<Diagnostic> m_problem;
};

} // namespace penlode
