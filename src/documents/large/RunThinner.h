#pragma once

#include "documents/large/Extremes.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace millichart::documents {

/// Thins the rows of one curve, which come in the order of their times, a cell after the other. No cell is
/// wider than a column of the picture.
///
/// A run is what lies between two gaps. One of fewer points than data have stays as it is, as it is drawn as
/// a figure. Of a longer one each cell keeps what Extremes do. Where that leaves rows out, one comes twice,
/// or more often in a run that became short: then the run is drawn as one of many points, as it was, and a
/// point that follows itself in its column changes nothing else.
///
/// Gaps may be as many as rows. Of the runs that lie within one cell with their gaps only so many stay as
/// have kMostWithin rows, the highest ones, as they cover the others.
class RunThinner {
public:
    static constexpr std::size_t kMostWithin = 256;

    /// Takes the rows that stay; a gap is a row with the value that it has.
    RunThinner(std::vector<double>& values, std::vector<std::int32_t>& times)
        : m_values(values), m_times(times) {}

    void Add(const CurveRow& row, std::size_t cell);

    /// Rows without a gap between them.
    void Add(const Extremes& rows, std::size_t cell);

    void AddGap(const CurveRow& row);

    void Finish();

private:
    struct CellRow {
        CurveRow Row;
        std::size_t Cell;
    };

    /// What a run within a cell has put out, with the gap behind it.
    struct Piece {
        std::size_t Begin;
        double Height;
    };

    void BeginRow(double least, double most, std::size_t cell);
    void Lengthen();
    template <class Rows> void AddLong(const Rows& rows, std::size_t cell);
    void PutCell();
    void Put(const CurveRow& row);
    void EndRun();
    void EndGap();
    void DropPieces();

    std::vector<double>& m_values;
    std::vector<std::int32_t>& m_times;

    std::vector<CellRow> m_short; ///< all rows of the run, while it is short
    bool m_isLong = false;
    bool m_isInRun = false;
    Extremes m_rows;          ///< of a long run, in its last cell
    std::size_t m_cell = 0;   ///< of these
    std::size_t m_begin = 0;  ///< of what the run has put out
    std::size_t m_lostAt = 0; ///< the row that comes twice
    bool m_hasLost = false;

    std::size_t m_firstCell = 0; ///< of the run
    std::size_t m_lastCell = 0;
    double m_least = 0.0;
    double m_most = 0.0;

    bool m_isInGap = false;
    CurveRow m_gap{}; ///< its last row, which is not put out yet
    bool m_hasGapEnd = false;

    std::vector<Piece> m_pieces; ///< in m_piecesCell
    std::size_t m_piecesCell = SIZE_MAX;
};

} // namespace millichart::documents
