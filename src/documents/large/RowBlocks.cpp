#include "documents/large/RowBlocks.h"

#include "documents/large/OuterRows.h"
#include "penlode/engine/LineThinning.h"

#include <algorithm>

namespace millichart::documents {

void RowBlocks::Take(const PlainRow& row, std::size_t line, std::uint64_t begin, std::uint64_t end,
                     bool isInOrder) {
    m_isInOrder = isInOrder;
    if (!m_isOpen) {
        Begin(row, line, begin);
    }
    Block& block = m_blocks.back();
    ++block.Rows;
    block.FirstTime = std::min(block.FirstTime, row.Time);
    block.LastTime = std::max(block.LastTime, row.Time);
    Extremes* const own = &m_extremes[(m_blocks.size() - 1) * m_curves];
    for (std::size_t curve = 0; curve < m_curves; ++curve) {
        const double value = ShownValue(row.Values[curve], m_rules, curve);
        if (IsGap(value, m_rules)) {
            block.HasGap = true;
        } else if (m_isInOrder) {
            own[curve].Append(CurveRow{row.Time, value});
        } else {
            own[curve].Merge(CurveRow{row.Time, value});
        }
    }
    m_end = end;
    m_isOpen = end - block.Begin < m_bytes || block.Rows < penlode::kMinDataLinePoints;
}

void RowBlocks::Begin(const PlainRow& row, std::size_t line, std::uint64_t begin) {
    constexpr std::size_t kFewest = 1024;
    if (m_blocks.empty()) {
        m_curves = row.Values.size();
        const std::size_t ofBlock = sizeof(Block) + m_curves * sizeof(Extremes);
        m_mostBlocks = std::max(m_mostMemory / ofBlock / 2 * 2, kFewest);
        m_blocks.reserve(m_mostBlocks);
        m_extremes.reserve(m_mostBlocks * m_curves);
    } else if (m_blocks.size() == m_mostBlocks) {
        JoinNeighbours();
    }
    m_blocks.push_back({begin, line, 0, row.Time, row.Time, false});
    m_extremes.resize(m_extremes.size() + m_curves);
    m_isOpen = true;
}

void RowBlocks::JoinNeighbours() {
    for (std::size_t i = 0; i + 1 < m_blocks.size(); i += 2) {
        Block block = m_blocks[i];
        const Block& next = m_blocks[i + 1];
        block.Rows += next.Rows;
        block.FirstTime = std::min(block.FirstTime, next.FirstTime);
        block.LastTime = std::max(block.LastTime, next.LastTime);
        block.HasGap = block.HasGap || next.HasGap;
        m_blocks[i / 2] = block;
        for (std::size_t curve = 0; curve < m_curves; ++curve) {
            Extremes joined = Of(i, curve);
            if (m_isInOrder) {
                joined.Append(Of(i + 1, curve));
            } else {
                joined.Merge(Of(i + 1, curve));
            }
            m_extremes[i / 2 * m_curves + curve] = joined;
        }
    }
    m_blocks.resize(m_blocks.size() / 2);
    m_extremes.resize(m_blocks.size() * m_curves);
    m_bytes *= 2;
}

} // namespace millichart::documents
