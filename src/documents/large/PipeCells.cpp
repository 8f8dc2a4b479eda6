#include "documents/large/PipeCells.h"

#include "documents/large/OuterRows.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace millichart::documents {
namespace {

constexpr int kFinest = -30; // less than a time's last decimal

/// So wide that an index of this time is far from any limit.
int LeastPower(double time) {
    constexpr int kIndexBits = 50;
    return time == 0.0 ? kFinest : std::max(kFinest, std::ilogb(time) - kIndexBits);
}

std::int64_t HalfOf(std::int64_t index) {
    return index >= 0 ? index / 2 : -((1 - index) / 2);
}

} // namespace

void PipeCells::Take(const PlainRow& row) {
    if (m_curves == 0) {
        constexpr std::size_t kFewest = 4096;
        m_curves = std::max<std::size_t>(row.Values.size(), 1);
        m_mostCells = std::max(m_mostMemory / (m_curves * sizeof(LooseCell)), kFewest);
        m_cells.reserve(m_mostCells * m_curves);
        m_power = LeastPower(row.Time);
        m_first = IndexOf(row.Time);
    }
    MakeRoom(row.Time);
    const auto cell = static_cast<std::size_t>(IndexOf(row.Time) - m_first);
    for (std::size_t curve = 0; curve < row.Values.size(); ++curve) {
        LooseCell& own = m_cells[cell * m_curves + curve];
        const CurveRow taken{row.Time, ShownValue(row.Values[curve], m_rules, curve)};
        if (IsGap(taken.Value, m_rules)) {
            own.AddGap(taken);
        } else {
            own.Rows.Merge(taken);
        }
    }
}

std::int64_t PipeCells::IndexOf(double time) const {
    return static_cast<std::int64_t>(std::floor(std::ldexp(time, -m_power)));
}

/// For a cell with that time.
void PipeCells::MakeRoom(double time) {
    while (LeastPower(time) > m_power) {
        JoinNeighbours();
    }
    std::int64_t index = IndexOf(time);
    const auto count = static_cast<std::int64_t>(Count());
    if (index >= m_first && index < m_first + count) {
        return;
    }
    while (std::max(m_first + static_cast<std::int64_t>(Count()), index + 1) - std::min(m_first, index) >
           static_cast<std::int64_t>(m_mostCells)) {
        JoinNeighbours();
        index = IndexOf(time);
    }
    const auto before = static_cast<std::size_t>(std::max<std::int64_t>(m_first - index, 0));
    const auto needed = static_cast<std::size_t>(std::max<std::int64_t>(index + 1 - m_first, 0));
    m_cells.insert(m_cells.begin(), before * m_curves, LooseCell());
    m_first -= static_cast<std::int64_t>(before);
    m_cells.resize(std::max(m_cells.size(), (needed + before) * m_curves));
}

void PipeCells::JoinNeighbours() {
    const std::int64_t first = HalfOf(m_first);
    const std::size_t count = Count();
    for (std::size_t i = 0; i < count; ++i) {
        const auto to = static_cast<std::size_t>(HalfOf(m_first + static_cast<std::int64_t>(i)) - first);
        for (std::size_t curve = 0; curve < m_curves; ++curve) {
            LooseCell cell = std::exchange(m_cells[i * m_curves + curve], LooseCell());
            m_cells[to * m_curves + curve].Merge(cell);
        }
    }
    const std::int64_t end = count == 0 ? first : HalfOf(m_first + static_cast<std::int64_t>(count) - 1) + 1;
    m_cells.resize(static_cast<std::size_t>(end - first) * m_curves);
    m_first = first;
    ++m_power;
}

} // namespace millichart::documents
