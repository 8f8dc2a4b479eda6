#pragma once

#include "documents/points/CellRows.h"
#include "documents/points/CellSteps.h"
#include "documents/points/RowCondition.h"
#include "documents/tables/PointsTable.h"
#include "documents/tables/SqlSession.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace millichart::documents {

/// Of each cell by its number, where its rows end. All are as many as cells.
struct CellBounds {
    std::vector<std::int32_t> First;
    std::vector<std::int32_t> Last;
    std::vector<double> Lowest;
    std::vector<double> Highest;
};

/// What a data base is asked of a table of points. Rows without a time or, where there are series, without
/// one count for nothing.
///
/// A row is a gap when it has no value, or one that no chart draws or a logarithmic axis has no place for.
class PointsSql {
public:
    PointsSql(const SqlSession& session, const PointsTable& table, std::vector<RowCondition> conditions,
              bool isLogarithmic);

    /// A row a curve: its series, if there are any; its first and last time, rows, those with any value, and
    /// the least and the greatest of these.
    SqlQuestion Extents() const;

    /// The same of the rows that are no gaps.
    SqlQuestion ValueExtents() const;

    /// One row: the first time that is no whole number, if any is none.
    SqlQuestion Fractions() const;

    /// A row a cell, where there are no series: its number; first and last time, least and greatest value,
    /// rows. Only where `HasBuckets`.
    SqlQuestion Cells(std::span<const std::int32_t> starts) const;

    /// For what `Cells` answered: rows of these times and values, a row a cell and value: the cell's number;
    /// first and last time, value.
    SqlQuestion RowsOfCells(std::span<const std::int32_t> starts, const CellBounds& bounds) const;

    /// For any data base, rows that may show, with times from `first` on: series, if there are any; two
    /// times, and the value of a row of each; the first time of all the rows that were summed up with these,
    /// and how many they are.
    SqlQuestion Extremes(const CellSteps& steps, std::int64_t first) const;

    /// Gaps by steps: series, if there are any; a time and how many.
    SqlQuestion Gaps(const CellSteps& steps, std::int64_t first) const;

    /// Each row: series, if there are any; time and value.
    SqlQuestion Rows() const;

    /// The rows of such times, in the order of theirs, and of equal times in that of their values, those
    /// without one first.
    SqlQuestion Rows(std::span<const TimeSpan> spans) const;

    bool HasSeries() const { return !m_series.empty(); }

    /// Does the data base find a number among sorted ones, or any, at once?
    bool HasBuckets() const { return m_hasBuckets; }

private:
    enum class Of { All, Values, Gaps };

    SqlQuestion ExtentsOf(Of rows) const;
    std::string From(Of rows, const std::string& more = {}) const;
    std::string Stepped(Of rows, const CellSteps& steps, std::int64_t first) const;
    std::string Grouped(const CellSteps& steps, std::int64_t first) const;
    std::string ByTime() const;
    std::string Floor(const std::string& number) const;
    std::string SeriesThen(const std::string& columns, const std::string& of = {}) const;
    SqlQuestion Asked(std::string text, int sources) const;

    std::string Bucketed(std::span<const std::int32_t> starts, const std::string& more) const;

    SqlDialect m_dialect;
    bool m_hasBuckets;
    std::string m_table;
    std::string m_time;
    std::string m_value;
    std::string m_series;
    std::string m_where;
    std::string m_isValue;
    std::string m_isGap;
    std::vector<SqlValue> m_values;
};

} // namespace millichart::documents
