#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace penlode {

/// A prefix code as deflate (RFC 1951) has it: of the symbols' lengths, from which the codes follow. Symbols
/// that do not occur have none.
class HuffmanCode {
public:
    /// The shortest code for these frequencies of which no symbol is longer than `longest` bits, or nearly
    /// so. At least two symbols occur.
    HuffmanCode(std::vector<std::uint32_t> frequencies, std::uint32_t longest);

    std::size_t Size() const { return m_lengths.size(); }

    /// In bits; 0 for a symbol that does not occur.
    std::uint32_t LengthOf(std::size_t symbol) const { return m_lengths[symbol]; }

    /// As it is written, its first bit lowest.
    std::uint32_t BitsOf(std::size_t symbol) const { return m_bits[symbol]; }

private:
    void AssignBits(std::uint32_t longest);

    std::vector<std::uint32_t> m_lengths;
    std::vector<std::uint32_t> m_bits;
};

} // namespace penlode
