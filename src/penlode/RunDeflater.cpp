#include "penlode/RunDeflater.h"

#include "penlode/PngChunks.h"

#include <algorithm>
#include <array>
#include <utility>

namespace penlode {
namespace {

constexpr std::size_t kEndOfBlock = 256;
constexpr std::size_t kSymbols = 286;
constexpr std::size_t kLongestMatch = 258;
constexpr std::uint32_t kLongestCode = 15;
constexpr std::uint32_t kLongestLengthCode = 7;

/// A match's length as a symbol and so many more bits.
struct LengthSymbol {
    std::uint32_t Symbol;
    std::uint32_t ExtraBits;
    std::uint32_t Extra;
};

LengthSymbol SymbolFor(std::size_t match) {
    if (match == kLongestMatch) {
        return {285, 0, 0};
    }
    const auto length = static_cast<std::uint32_t>(match - 3);
    if (length < 8) {
        return {257 + length, 0, 0};
    }
    // Each further power of two has four symbols.
    std::uint32_t extra = 1;
    while (length >> (extra + 3U) != 0) {
        ++extra;
    }
    return {257 + 4 * extra + (length >> extra), extra, length & ((1U << extra) - 1U)};
}

const std::array<LengthSymbol, kLongestMatch + 1>& LengthSymbols() {
    static const auto table = [] {
        std::array<LengthSymbol, kLongestMatch + 1> symbols{};
        for (std::size_t match = 3; match <= kLongestMatch; ++match) {
            symbols[match] = SymbolFor(match);
        }
        return symbols;
    }();
    return table;
}

/// The order in which a block gives the lengths of the code for lengths.
constexpr std::array<std::size_t, 19> kOrderOfLengths{16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                                      11, 4,  12, 3, 13, 2, 14, 1, 15};

HuffmanCode CodeFor(const std::vector<std::uint16_t>& tokens) {
    std::vector<std::uint32_t> frequencies(kSymbols, 0);
    for (const std::uint16_t token : tokens) {
        ++frequencies[token < 256 ? token : LengthSymbols()[token - 256U].Symbol];
    }
    frequencies[kEndOfBlock] = 1;
    // A code has two symbols.
    frequencies[0] = std::max(frequencies[0], 1U);
    return {std::move(frequencies), kLongestCode};
}

} // namespace

RunDeflater::RunDeflater(std::size_t pixelSize) : m_pixelSize(pixelSize), m_stream("\x78\x01") {
    m_tokens.reserve(kTokensInBlock);
}

void RunDeflater::Repeat(const unsigned char* pixel, std::size_t pixels) {
    std::size_t bytes = pixels * m_pixelSize;
    if (std::all_of(pixel, pixel + m_pixelSize, [](unsigned char byte) { return byte == 0; })) {
        m_high += m_low * bytes;
    } else {
        for (std::size_t i = 0; i < bytes; ++i) {
            m_low += pixel[i % m_pixelSize];
            m_high += m_low;
        }
    }
    const std::size_t longest = kLongestMatch / m_pixelSize * m_pixelSize;
    for (; bytes > 0; bytes -= std::min(bytes, longest)) {
        Token(256 + std::min(bytes, longest));
    }
}

std::string RunDeflater::Finish() {
    WriteBlock(true);
    WriteBits(0, 7);
    EndRow();
    return m_stream + BigEndian(static_cast<std::uint32_t>(m_high << 16U | m_low));
}

void RunDeflater::WriteBlock(bool isLast) {
    WriteBits(isLast ? 1 : 0, 1);
    WriteBits(2, 2);
    const HuffmanCode symbols = CodeFor(m_tokens);
    WriteCodes(symbols);
    WriteTokens(symbols);
    m_tokens.clear();
}

/// The lengths of the block's codes, themselves in a code. The one distance, a pixel back, has one bit.
void RunDeflater::WriteCodes(const HuffmanCode& symbols) {
    std::vector<std::uint32_t> lengths;
    for (std::size_t symbol = 0; symbol < kSymbols; ++symbol) {
        lengths.push_back(symbols.LengthOf(symbol));
    }
    lengths.resize(kSymbols + m_pixelSize, 0);
    lengths.back() = 1;
    std::vector<std::uint32_t> frequencies(kOrderOfLengths.size(), 0);
    for (const std::uint32_t length : lengths) {
        ++frequencies[length];
    }
    const HuffmanCode code(frequencies, kLongestLengthCode);
    WriteBits(kSymbols - 257, 5);
    WriteBits(static_cast<std::uint32_t>(m_pixelSize - 1), 5);
    WriteBits(static_cast<std::uint32_t>(kOrderOfLengths.size() - 4), 4);
    for (const std::size_t length : kOrderOfLengths) {
        WriteBits(code.LengthOf(length), 3);
    }
    for (const std::uint32_t length : lengths) {
        WriteBits(code.BitsOf(length), code.LengthOf(length));
    }
}

void RunDeflater::WriteTokens(const HuffmanCode& symbols) {
    for (const std::uint16_t token : m_tokens) {
        if (token < 256) {
            WriteBits(symbols.BitsOf(token), symbols.LengthOf(token));
            continue;
        }
        const LengthSymbol& length = LengthSymbols()[token - 256U];
        WriteBits(symbols.BitsOf(length.Symbol), symbols.LengthOf(length.Symbol));
        // After the length, the distance's one bit, which is 0.
        WriteBits(length.Extra, length.ExtraBits + 1);
    }
    WriteBits(symbols.BitsOf(kEndOfBlock), symbols.LengthOf(kEndOfBlock));
}

void RunDeflater::WriteBits(std::uint32_t bits, std::uint32_t count) {
    m_pending |= std::uint64_t{bits} << m_pendingCount;
    for (m_pendingCount += count; m_pendingCount >= 8; m_pendingCount -= 8, m_pending >>= 8U) {
        m_stream += static_cast<char>(static_cast<unsigned char>(m_pending));
    }
}

} // namespace penlode
