#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <vector>

namespace millichart::documents {

/// A row of a curve, with a value. Rows come in the order of their times, and of equal times in that of their
/// values.
struct PointRow {
    std::int32_t Time = 0;
    double Value = 0.0;

    friend bool operator==(const PointRow&, const PointRow&) = default;
};

/// What shows of the rows of one cell.
struct CellSummary {
    PointRow First;
    PointRow Lowest;  ///< the first of them
    PointRow Highest; ///< the first of them
    PointRow Last;
    std::uint64_t Rows = 0;

    /// The summary of one row, or of `rows` that are alike; 0 where they are counted elsewhere.
    static CellSummary Of(PointRow row, std::uint64_t rows = 1) { return {row, row, row, row, rows}; }

    /// Sums up the rows of both.
    void Join(const CellSummary& other);
};

/// A row of a part of the table that was asked for whole.
struct WholeRow {
    PointRow Row;
    bool IsGap = false; ///< has no value, or none that has a place: it breaks the line
};

/// Times from the first up to the last, both included.
struct TimeSpan {
    std::int32_t First = 0;
    std::int32_t Last = 0;
};

/// The rows of one curve as a picture shows them: summaries of cells; and where a line breaks, or is so short
/// that no rows of it may be missing, whole rows instead.
class CellRows {
public:
    /// `starts` stay while this is used.
    explicit CellRows(std::span<const std::int32_t> starts) : m_starts(starts) {}

    /// Of rows that all lie in one cell.
    void Take(const CellSummary& summary);

    /// So many gaps, all in one cell.
    void TakeGaps(std::int32_t time, std::uint64_t rows);

    /// The cells that must be known whole.
    std::vector<TimeSpan> WantedWhole() const;

    /// All that is known of their cells goes, as their rows come by `TakeWhole`. Gives how many rows that
    /// are.
    std::uint64_t ForgetCells(std::span<const TimeSpan> spans);

    /// A row of such a cell. They come in their order.
    void TakeWhole(const WholeRow& row);

    /// Appends the rows of the line in their order. Where rows were left out between two gaps, one comes so
    /// often that there are enough to be thinned, and one of them is.
    void AppendLine(std::vector<std::int32_t>& times, std::vector<double>& values) const;

private:
    struct Cell {
        std::optional<CellSummary> Summary = {};
        std::uint64_t Gaps = 0;
        std::vector<WholeRow> Whole = {}; ///< in place of both
    };

    std::size_t NumberOf(std::int32_t time) const;
    Cell& CellOf(std::int32_t time);
    TimeSpan SpanOf(std::size_t cell) const;
    std::vector<std::size_t> WantedCells() const;

    std::span<const std::int32_t> m_starts;
    std::map<std::size_t, Cell> m_cells;
    Cell* m_latest = nullptr; ///< of most rows the cell is that of the row before
    TimeSpan m_latestSpan = {};
};

} // namespace millichart::documents
