#pragma once

#include "penlode/HuffmanCode.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace penlode {

/// Compresses rows of pixels to a zlib stream (RFC 1950, RFC 1951), looking for nothing but pixels that
/// repeat the one before. Drawings, less the row above, are hardly anything else, and a run costs the same
/// however long it is: several times faster than a search for all repetitions, and as small.
class RunDeflater {
public:
    /// Pixels of 3 or 4 bytes.
    explicit RunDeflater(std::size_t pixelSize);

    void Put(unsigned char byte) {
        m_low += byte;
        m_high += m_low;
        Token(byte);
    }

    /// The last pixel put, `pixels` times more.
    void Repeat(const unsigned char* pixel, std::size_t pixels);

    /// To be called once in a million bytes at least, put or repeated: sums grow.
    void EndRow() {
        m_low %= kAdlerPrime;
        m_high %= kAdlerPrime;
    }

    /// The whole stream. Nothing may follow.
    std::string Finish();

private:
    static constexpr std::uint64_t kAdlerPrime = 65521;
    static constexpr std::size_t kTokensInBlock = 65536;

    void Token(std::size_t token) {
        m_tokens.push_back(static_cast<std::uint16_t>(token));
        if (m_tokens.size() == kTokensInBlock) {
            WriteBlock(false);
        }
    }

    void WriteBlock(bool isLast);
    void WriteCodes(const HuffmanCode& symbols);
    void WriteTokens(const HuffmanCode& symbols);
    void WriteBits(std::uint32_t bits, std::uint32_t count);

    std::size_t m_pixelSize;
    std::vector<std::uint16_t> m_tokens; ///< a byte, or 256 and the length of a run in bytes
    std::uint64_t m_low = 1;             ///< the two sums of Adler's checksum
    std::uint64_t m_high = 0;
    std::uint64_t m_pending = 0; ///< bits that do not fill a byte yet
    std::uint32_t m_pendingCount = 0;
    std::string m_stream;
};

} // namespace penlode
