#pragma once

#include "documents/large/Extremes.h"
#include "documents/large/LineRules.h"
#include "documents/large/PlainRows.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace millichart::documents {

/// What is remembered of the rows of a long text: where each block of them begins, and its extremes. Those of
/// a block within one column of a picture say all of it, so that it need not be read again. When there are
/// too many blocks, neighbours become one.
class RowBlocks {
public:
    struct Block {
        std::uint64_t Begin = 0; ///< its first byte
        std::size_t Line = 0;    ///< of its first row
        std::size_t Rows = 0;
        double FirstTime = 0.0; ///< the least
        double LastTime = 0.0;
        bool HasGap = false; ///< of any curve
    };

    /// A block has so many bytes at least, and as many rows as data have points, until there are too many:
    /// more than fit in `most` bytes of memory.
    RowBlocks(const LineRules& rules, std::size_t bytes, std::size_t most)
        : m_rules(rules), m_bytes(bytes), m_mostMemory(most) {}

    /// Of a row that lies from one byte up to the other. `isInOrder` while no time was before that above it.
    void Take(const PlainRow& row, std::size_t line, std::uint64_t begin, std::uint64_t end, bool isInOrder);

    const std::vector<Block>& Blocks() const { return m_blocks; }

    const Extremes& Of(std::size_t block, std::size_t curve) const {
        return m_extremes[block * m_curves + curve];
    }

    /// The first byte behind the last row.
    std::uint64_t End() const { return m_end; }

private:
    void Begin(const PlainRow& row, std::size_t line, std::uint64_t begin);
    void JoinNeighbours();

    const LineRules& m_rules;
    std::size_t m_bytes;
    std::size_t m_mostMemory;
    std::size_t m_mostBlocks = 0;
    std::size_t m_curves = 0;
    std::vector<Block> m_blocks;
    std::vector<Extremes> m_extremes; ///< a block's curves after the other's
    bool m_isOpen = false;
    std::uint64_t m_end = 0;
    bool m_isInOrder = true;
};

} // namespace millichart::documents
