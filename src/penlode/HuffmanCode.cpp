#include "penlode/HuffmanCode.h"

#include <algorithm>
#include <functional>
#include <queue>
#include <utility>

namespace penlode {
namespace {

/// Huffman's own way: the two rarest trees become one, until one is left. Gives each symbol's depth in it.
std::vector<std::uint32_t> DepthsFor(std::span<const std::uint32_t> frequencies) {
    using Tree = std::pair<std::uint64_t, std::size_t>;
    std::priority_queue<Tree, std::vector<Tree>, std::greater<>> trees;
    for (std::size_t i = 0; i < frequencies.size(); ++i) {
        if (frequencies[i] > 0) {
            trees.push({frequencies[i], i});
        }
    }
    std::vector<std::size_t> parents(2 * frequencies.size(), 0);
    std::size_t next = frequencies.size();
    while (trees.size() > 1) {
        const Tree a = trees.top();
        trees.pop();
        const Tree b = trees.top();
        trees.pop();
        parents[a.second] = parents[b.second] = next;
        trees.push({a.first + b.first, next++});
    }
    std::vector<std::uint32_t> depths(next, 0);
    for (std::size_t node = next - 1; node-- > 0;) {
        depths[node] = parents[node] == 0 ? 0U : depths[parents[node]] + 1U;
    }
    depths.resize(frequencies.size());
    return depths;
}

std::uint32_t Reversed(std::uint32_t bits, std::uint32_t length) {
    std::uint32_t reversed = 0;
    for (; length > 0; --length, bits >>= 1U) {
        reversed = reversed << 1U | (bits & 1U);
    }
    return reversed;
}

} // namespace

HuffmanCode::HuffmanCode(std::vector<std::uint32_t> frequencies, std::uint32_t longest)
    : m_lengths(DepthsFor(frequencies)) {
    // The more alike the frequencies, the flatter the tree.
    while (*std::max_element(m_lengths.begin(), m_lengths.end()) > longest) {
        for (std::uint32_t& frequency : frequencies) {
            frequency = (frequency + 1U) / 2U;
        }
        m_lengths = DepthsFor(frequencies);
    }
    AssignBits(longest);
}

/// Codes of one length follow each other in the order of their symbols, after all shorter ones.
void HuffmanCode::AssignBits(std::uint32_t longest) {
    m_bits.assign(m_lengths.size(), 0);
    std::uint32_t next = 0;
    for (std::uint32_t length = 1; length <= longest; ++length, next <<= 1U) {
        for (std::size_t symbol = 0; symbol < m_lengths.size(); ++symbol) {
            if (m_lengths[symbol] == length) {
                m_bits[symbol] = Reversed(next++, length);
            }
        }
    }
}

} // namespace penlode
