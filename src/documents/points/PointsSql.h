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

/// What a data base is asked of a table of points. Rows without a time or, where there are series, without
/// one count for nothing.
///
/// A row is a gap when it has no value, or one that no chart draws or a logarithmic axis has no place for.
class PointsSql {
public:
    PointsSql(const SqlSession& session, const PointsTable& table, std::vector<RowCondition> conditions,
              bool isLogarithmic);

    /// A row a curve: its series, if there are any; its first and last time, rows, gaps, the least and the
    /// greatest number under its values, and those of what is no gap.
    SqlQuestion Extents() const;

    /// One row: how many times are no whole numbers.
    SqlQuestion Fractions() const;

    /// Rows of times from `first` on, summed up by steps, gaps left out: series, if there are any; time and
    /// value of the first; of the lowest; of the highest, its time with the other sign; of the last; how
    /// many. Only where `HasArrays`.
    SqlQuestion Summaries(const CellSteps& steps, std::int64_t first) const;

    /// For any other data base, rows that may show: series, if there are any; two times, and the value of a
    /// row of each; the first time of all the rows that were summed up with these, and how many they are.
    SqlQuestion Extremes(const CellSteps& steps, std::int64_t first) const;

    /// Gaps by steps: series, if there are any; a time and how many.
    SqlQuestion Gaps(const CellSteps& steps, std::int64_t first) const;

    /// Each row: series, if there are any; time and value.
    SqlQuestion Rows() const;

    /// The rows of such times, in the order of theirs, and of equal times in that of their values, those
    /// without one first.
    SqlQuestion Rows(std::span<const TimeSpan> spans) const;

    bool HasSeries() const { return !m_series.empty(); }

    /// Can a data base compare lists of numbers, so that it finds the value of the first time in one look?
    bool HasArrays() const { return m_dialect == SqlDialect::Postgres; }

private:
    enum class Of { All, Values, Gaps };

    std::string From(Of rows, const std::string& more = {}) const;
    std::string Stepped(Of rows, const CellSteps& steps, std::int64_t first) const;
    std::string Grouped(const CellSteps& steps, std::int64_t first) const;
    std::string ByTime() const;
    std::string Floor(const std::string& number) const;
    std::string SeriesThen(const std::string& columns, const std::string& of = {}) const;
    SqlQuestion Asked(std::string text, int sources) const;

    SqlDialect m_dialect;
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
