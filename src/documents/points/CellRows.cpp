#include "documents/points/CellRows.h"

#include "penlode/engine/LineThinning.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <tuple>

namespace millichart::documents {
namespace {

bool ComesBefore(const PointRow& a, const PointRow& b) {
    return std::tie(a.Time, a.Value) < std::tie(b.Time, b.Value);
}

bool IsLower(const PointRow& a, const PointRow& b) {
    return std::tie(a.Value, a.Time) < std::tie(b.Value, b.Time);
}

bool IsHigher(const PointRow& a, const PointRow& b) {
    return a.Value != b.Value ? a.Value > b.Value : a.Time < b.Time;
}

/// The rows of a summary that differ, in their order.
std::vector<PointRow> RowsOf(const CellSummary& summary) {
    std::vector<PointRow> rows{summary.First, summary.Lowest, summary.Highest, summary.Last};
    std::sort(rows.begin(), rows.end(), ComesBefore);
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    if (rows.size() == 1 && summary.Rows > 1) {
        rows.push_back(rows.front()); // the last of rows that are alike
    }
    return rows;
}

/// A line from one gap to the next.
class Run {
public:
    Run(std::vector<std::int32_t>& times, std::vector<double>& values)
        : m_times(times), m_values(values), m_begin(times.size()) {}

    void Put(const PointRow& row) {
        m_times.push_back(row.Time);
        m_values.push_back(row.Value);
    }

    void Put(const CellSummary& summary) {
        const std::vector<PointRow> rows = RowsOf(summary);
        if (rows.size() < summary.Rows) {
            m_thinned = m_times.size();
        }
        for (const PointRow& row : rows) {
            Put(row);
        }
    }

    /// The line that has all rows is thinned, so this one must be. A row that comes again within its column
    /// is left out.
    void End() {
        if (m_thinned != kNone) {
            constexpr std::size_t kEnough = penlode::kMinDataLinePoints + 1;
            const std::size_t rows = m_times.size() - m_begin;
            const std::size_t more = std::max<std::size_t>(kEnough - std::min(kEnough, rows), 1);
            Repeat(m_times, more);
            Repeat(m_values, more);
        }
        m_thinned = kNone;
        m_begin = m_times.size();
    }

private:
    static constexpr std::size_t kNone = SIZE_MAX;

    template <class Number> void Repeat(std::vector<Number>& numbers, std::size_t more) const {
        const auto at = static_cast<std::ptrdiff_t>(m_thinned);
        const Number number = numbers[m_thinned];
        numbers.insert(numbers.begin() + at, more, number);
    }

    std::vector<std::int32_t>& m_times;
    std::vector<double>& m_values;
    std::size_t m_begin;
    std::size_t m_thinned = kNone; ///< the first row of the last cell of which rows were left out
};

} // namespace

void CellSummary::Join(const CellSummary& other) {
    First = ComesBefore(other.First, First) ? other.First : First;
    Lowest = IsLower(other.Lowest, Lowest) ? other.Lowest : Lowest;
    Highest = IsHigher(other.Highest, Highest) ? other.Highest : Highest;
    Last = ComesBefore(Last, other.Last) ? other.Last : Last;
    Rows += other.Rows;
}

TimeSpan CellRows::SpanOf(std::size_t cell) const {
    using Limits = std::numeric_limits<std::int32_t>;
    return {cell == 0 ? Limits::min() : m_starts[cell - 1],
            cell == m_starts.size() ? Limits::max() : m_starts[cell] - 1};
}

std::size_t CellRows::NumberOf(std::int32_t time) const {
    return static_cast<std::size_t>(std::upper_bound(m_starts.begin(), m_starts.end(), time) -
                                    m_starts.begin());
}

CellRows::Cell& CellRows::CellOf(std::int32_t time) {
    if (m_latest == nullptr || time < m_latestSpan.First || time > m_latestSpan.Last) {
        const std::size_t cell = NumberOf(time);
        m_latest = &m_cells[cell];
        m_latestSpan = SpanOf(cell);
    }
    return *m_latest;
}

void CellRows::Take(const CellSummary& summary) {
    std::optional<CellSummary>& known = CellOf(summary.First.Time).Summary;
    if (known) {
        known->Join(summary);
    } else {
        known = summary;
    }
}

void CellRows::TakeGaps(std::int32_t time, std::uint64_t rows) {
    CellOf(time).Gaps += rows;
}

void CellRows::TakeWhole(const WholeRow& row) {
    CellOf(row.Row.Time).Whole.push_back(row);
}

/// Those with a gap; and those between two of them, or an end of the line, that have rows to be left out but
/// too few in all for the line to be thinned.
std::vector<std::size_t> CellRows::WantedCells() const {
    std::vector<std::size_t> wanted;
    std::vector<std::size_t> thinned;
    std::uint64_t rows = 0;
    const auto endRun = [&] {
        if (rows < penlode::kMinDataLinePoints) {
            wanted.insert(wanted.end(), thinned.begin(), thinned.end());
        }
        thinned.clear();
        rows = 0;
    };
    for (const auto& [number, cell] : m_cells) {
        if (cell.Gaps > 0) {
            endRun();
            wanted.push_back(number);
            continue;
        }
        if (cell.Summary) {
            rows += cell.Summary->Rows;
            if (RowsOf(*cell.Summary).size() < cell.Summary->Rows) {
                thinned.push_back(number);
            }
        }
    }
    endRun();
    return wanted;
}

std::vector<TimeSpan> CellRows::WantedWhole() const {
    std::vector<TimeSpan> spans;
    for (const std::size_t number : WantedCells()) {
        spans.push_back(SpanOf(number));
    }
    return spans;
}

std::uint64_t CellRows::ForgetCells(std::span<const TimeSpan> spans) {
    std::uint64_t rows = 0;
    for (const TimeSpan& span : spans) {
        for (auto at = m_cells.lower_bound(NumberOf(span.First));
             at != m_cells.end() && SpanOf(at->first).First <= span.Last; ++at) {
            rows += (at->second.Summary ? at->second.Summary->Rows : 0) + at->second.Gaps;
            at->second = {};
        }
    }
    return rows;
}

void CellRows::AppendLine(std::vector<std::int32_t>& times, std::vector<double>& values) const {
    Run run(times, values);
    for (const auto& [number, cell] : m_cells) {
        if (cell.Summary) {
            run.Put(*cell.Summary);
        }
        for (const WholeRow& whole : cell.Whole) {
            if (whole.IsGap) {
                run.End();
            }
            run.Put(whole.Row);
            if (whole.IsGap) {
                run.End();
            }
        }
    }
    run.End();
}

} // namespace millichart::documents
