#include "documents/large/RunThinner.h"

#include "penlode/engine/LineThinning.h"

#include <algorithm>
#include <array>

namespace millichart::documents {

using penlode::kMinDataLinePoints;

void RunThinner::Add(const CurveRow& row, std::size_t cell) {
    BeginRow(row.Value, row.Value, cell);
    if (m_isLong) {
        AddLong(row, cell);
        return;
    }
    m_short.push_back({row, cell});
    if (m_short.size() == kMinDataLinePoints) {
        Lengthen();
    }
}

/// Rows that were left out cannot be put into a short run.
void RunThinner::Add(const Extremes& rows, std::size_t cell) {
    std::array<CurveRow, 4> all;
    if (const std::size_t count = rows.List(all); count == rows.Count) {
        for (std::size_t i = 0; i < count; ++i) {
            Add(all[i], cell);
        }
        return;
    }
    BeginRow(rows.Low.Value, rows.High.Value, cell);
    Lengthen();
    AddLong(rows, cell);
}

void RunThinner::AddGap(const CurveRow& row) {
    if (m_isInRun) {
        EndRun();
    }
    if (m_isInGap) {
        m_gap = row;
        m_hasGapEnd = true;
        return;
    }
    Put(row);
    m_isInGap = true;
}

void RunThinner::Finish() {
    if (m_isInRun) {
        EndRun();
    }
    EndGap();
}

void RunThinner::BeginRow(double least, double most, std::size_t cell) {
    if (!m_isInRun) {
        EndGap();
        m_isInRun = true;
        m_begin = m_values.size();
        m_firstCell = cell;
        m_least = least;
        m_most = most;
    }
    m_lastCell = cell;
    m_least = std::min(m_least, least);
    m_most = std::max(m_most, most);
}

void RunThinner::Lengthen() {
    m_isLong = true;
    for (const CellRow& row : m_short) {
        AddLong(row.Row, row.Cell);
    }
    m_short.clear();
}

template <class Rows> void RunThinner::AddLong(const Rows& rows, std::size_t cell) {
    if (m_rows.Count != 0 && cell != m_cell) {
        PutCell();
    }
    m_cell = cell;
    m_rows.Append(rows);
}

void RunThinner::PutCell() {
    std::array<CurveRow, 4> rows;
    const std::size_t count = m_rows.List(rows);
    if (count < m_rows.Count && !m_hasLost) {
        m_hasLost = true;
        m_lostAt = m_values.size();
        Put(rows.front());
    }
    for (std::size_t i = 0; i < count; ++i) {
        Put(rows[i]);
    }
    m_rows = {};
}

void RunThinner::Put(const CurveRow& row) {
    m_values.push_back(row.Value);
    m_times.push_back(static_cast<std::int32_t>(row.Time));
}

void RunThinner::EndRun() {
    for (const CellRow& row : m_short) {
        Put(row.Row);
    }
    m_short.clear();
    if (m_isLong) {
        PutCell();
    }
    constexpr std::size_t kFewest = kMinDataLinePoints + 1; // one of which thinning leaves out again
    if (const std::size_t count = m_values.size() - m_begin; m_hasLost && count < kFewest) {
        const auto at = static_cast<std::ptrdiff_t>(m_lostAt);
        m_values.insert(m_values.begin() + at, kFewest - count, m_values[m_lostAt]);
        m_times.insert(m_times.begin() + at, kFewest - count, m_times[m_lostAt]);
    }
    m_isLong = false;
    m_isInRun = false;
    m_hasLost = false;
    if (m_firstCell == m_lastCell) {
        DropPieces();
    }
}

void RunThinner::EndGap() {
    if (m_hasGapEnd) {
        Put(m_gap);
    }
    m_isInGap = false;
    m_hasGapEnd = false;
}

/// The first and the last of a cell stay.
void RunThinner::DropPieces() {
    if (m_piecesCell != m_firstCell) {
        m_pieces.clear();
        m_piecesCell = m_firstCell;
    }
    m_pieces.push_back({m_begin, m_most - m_least});
    while (m_pieces.size() > 2 && m_values.size() - m_pieces.front().Begin > kMostWithin) {
        const auto least =
            std::min_element(m_pieces.begin() + 1, m_pieces.end() - 1,
                             [](const Piece& a, const Piece& b) { return a.Height < b.Height; });
        const std::size_t begin = least->Begin;
        const std::size_t end = std::next(least)->Begin;
        const auto erase = [begin, end](auto& list) {
            list.erase(list.begin() + static_cast<std::ptrdiff_t>(begin),
                       list.begin() + static_cast<std::ptrdiff_t>(end));
        };
        erase(m_values);
        erase(m_times);
        for (auto later = m_pieces.erase(least); later != m_pieces.end(); ++later) {
            later->Begin -= end - begin;
        }
    }
}

} // namespace millichart::documents
