#pragma once

#include "documents/large/LineRules.h"
#include "documents/large/LooseCell.h"
#include "documents/large/PlainRows.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace millichart::documents {

/// What is remembered of rows that come once: cells as wide as a power of two, in the unit in which times are
/// written. When the times reach over too many, cells become twice as wide. Half of them are in use then, so
/// that a column of a picture holds many.
class PipeCells {
public:
    /// As many cells as fit in `most` bytes of memory.
    PipeCells(const LineRules& rules, std::size_t most) : m_rules(rules), m_mostMemory(most) {}

    void Take(const PlainRow& row);

    /// By their times; each has as many curves as the rows.
    std::size_t Count() const { return m_curves == 0 ? 0 : m_cells.size() / m_curves; }

    const LooseCell& Of(std::size_t cell, std::size_t curve) const {
        return m_cells[cell * m_curves + curve];
    }

private:
    std::int64_t IndexOf(double time) const;
    void MakeRoom(double time);
    void JoinNeighbours();

    const LineRules& m_rules;
    std::size_t m_mostMemory;
    std::size_t m_mostCells = 0;
    std::size_t m_curves = 0;
    int m_power = 0;                ///< of 2: a cell's width
    std::int64_t m_first = 0;       ///< the index of the first cell
    std::vector<LooseCell> m_cells; ///< a cell's curves after the other's
};

} // namespace millichart::documents
