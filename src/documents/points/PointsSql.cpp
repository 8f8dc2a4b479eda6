#include "documents/points/PointsSql.h"

#include "charts/curve/CurveProp.h"
#include "penlode/text/Digits.h"

#include <algorithm>
#include <charconv>

namespace millichart::documents {
namespace {

std::string Double(const std::string& number) {
    return "CAST(" + number + " AS DOUBLE PRECISION)";
}

/// With an exponent it is a floating point number everywhere, but some take it for a decimal one at first.
std::string Literal(double number) {
    return Double(penlode::Digits(number, std::chars_format::scientific));
}

/// A schema before a point is a name of its own.
std::string QuotedPath(const SqlSession& session, const std::string& path) {
    std::string quoted;
    for (std::size_t begin = 0; begin <= path.size();) {
        const std::size_t end = std::min(path.find('.', begin), path.size());
        quoted += (begin == 0 ? "" : ".") + session.Quoted(path.substr(begin, end - begin));
        begin = end + 1;
    }
    return quoted;
}

/// A constant array, which only PostgreSQL has.
template <class Numbers> std::string List(const Numbers& numbers, const char* type) {
    std::string list = "'{";
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        list += (i == 0 ? "" : ",") + penlode::Digits(numbers[i]);
    }
    return list + "}'::" + type + "[]";
}

/// Each number of both once.
template <class Numbers> Numbers Together(Numbers numbers, const Numbers& others) {
    numbers.insert(numbers.end(), others.begin(), others.end());
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    return numbers;
}

} // namespace

PointsSql::PointsSql(const SqlSession& session, const PointsTable& table,
                     std::vector<RowCondition> conditions, bool isLogarithmic)
    : m_dialect(session.Dialect()), m_hasBuckets(session.HasFastLists()),
      m_table(QuotedPath(session, table.Name)), m_time(session.Quoted(table.Time)),
      m_value(session.Quoted(table.Value)) {
    m_where = m_time + " IS NOT NULL";
    if (!table.Series.empty()) {
        m_series = session.Quoted(table.Series);
        m_where += " AND " + m_series + " IS NOT NULL";
    }
    for (RowCondition& condition : conditions) {
        m_where += " AND " + session.Quoted(condition.Column) + " " + condition.Operator + " ?";
        m_values.push_back(std::move(condition.Value));
    }
    const std::string least = penlode::Digits(kCurveNullThreshold, std::chars_format::scientific);
    m_isValue = m_value + (isLogarithmic ? " > 0" : " >= " + least);
    m_isGap = "(" + m_value + " IS NULL OR " + m_value + (isLogarithmic ? " <= 0" : " < " + least) + ")";
}

std::string PointsSql::From(Of rows, const std::string& more) const {
    const std::string which = rows == Of::Values ? " AND " + m_isValue
                              : rows == Of::Gaps ? " AND " + m_isGap
                                                 : "";
    return " FROM " + m_table + " WHERE " + m_where + which + more;
}

/// "s, " and the columns, where there are series.
std::string PointsSql::SeriesThen(const std::string& columns, const std::string& of) const {
    return (HasSeries() ? of + "s, " : "") + columns;
}

SqlQuestion PointsSql::Asked(std::string text, int sources) const {
    SqlQuestion question{std::move(text)};
    for (int i = 0; i < sources; ++i) {
        question.Values.insert(question.Values.end(), m_values.begin(), m_values.end());
    }
    return question;
}

std::string PointsSql::Floor(const std::string& number) const {
    switch (m_dialect) {
    case SqlDialect::Sqlite:
        return "CAST(" + number + " AS INTEGER)"; // no step is negative
    case SqlDialect::Postgres:
        return "FLOOR(" + number + ")";
    default:
        return "{fn FLOOR(" + number + ")}";
    }
}

SqlQuestion PointsSql::Extents() const {
    return ExtentsOf(Of::All);
}

SqlQuestion PointsSql::ValueExtents() const {
    return ExtentsOf(Of::Values);
}

SqlQuestion PointsSql::ExtentsOf(Of rows) const {
    const std::string series = HasSeries() ? m_series + ", " : "";
    return Asked("SELECT " + series + "MIN(" + m_time + "), MAX(" + m_time + "), COUNT(*), COUNT(" + m_value +
                     "), MIN(" + m_value + "), MAX(" + m_value + ")" + From(rows) +
                     (HasSeries() ? " GROUP BY " + m_series : ""),
                 1);
}

SqlQuestion PointsSql::Fractions() const {
    return Asked("SELECT MIN(" + m_time + ")" + From(Of::All, " AND " + m_time + " <> " + Floor(m_time)), 1);
}

/// Rows with a key k, which is their time where times count one by one, and else less than all times. Not
/// every data base sees that there are few keys: PostgreSQL takes them for as many as times, and sorts all
/// rows, unless it cannot see what they are made of, which OFFSET hides from it.
std::string PointsSql::Stepped(Of rows, const CellSteps& steps, std::int64_t first) const {
    const std::string time = Double(m_time);
    const std::string series = HasSeries() ? m_series + " AS s, " : "";
    const std::string inner = "SELECT " + series + time + " AS t, " + Double(m_value) + " AS v, (" + time +
                              " - " + Literal(steps.Base) + ") * " + Literal(steps.Scale) + " + " +
                              Literal(steps.Shift) + " AS u" + From(rows);
    std::string isAlone = "u - " + Floor("u") + " < " + Literal(steps.Bracket);
    for (std::size_t i = 0; i < steps.Odd.size(); ++i) {
        isAlone += (i == 0 ? " OR " + Floor("u") + " IN (" : ", ") + std::to_string(steps.Odd[i]);
    }
    isAlone += steps.Odd.empty() ? "" : ")";
    return "(SELECT " +
           SeriesThen("t, v, CASE WHEN " + isAlone + " THEN t ELSE " +
                      Literal(static_cast<double>(first - 1)) + " - " + Floor("u") + " END AS k") +
           " FROM (" + inner + ") a" + (m_dialect == SqlDialect::Postgres ? " OFFSET '0'" : "") + ")";
}

/// Where the times alone tell rows apart, each has one lowest and one highest value.
std::string PointsSql::ByTime() const {
    const std::string series = HasSeries() ? m_series + " AS s, " : "";
    return "(SELECT " + series + Double(m_time) + " AS t, " + Double(m_value) + " AS v" + From(Of::Values) +
           ") a";
}

/// Rows with the number k of their cell. The data base does not see what k is made of, as above.
std::string PointsSql::Bucketed(std::span<const std::int32_t> starts, const std::string& more) const {
    return " FROM (SELECT " + m_time + " AS t, " + Double(m_value) + " AS v, WIDTH_BUCKET(" + Double(m_time) +
           ", " + List(starts, "float8") + ") AS k" + From(Of::Values, more) + " OFFSET '0') b";
}

SqlQuestion PointsSql::Cells(std::span<const std::int32_t> starts) const {
    return Asked("SELECT k, MIN(t), MAX(t), MIN(v), MAX(v), COUNT(*)" + Bucketed(starts, "") + " GROUP BY k",
                 1);
}

/// Most rows have neither such a time nor such a value, of whatever cell, which is found out faster than a
/// row's cell.
SqlQuestion PointsSql::RowsOfCells(std::span<const std::int32_t> starts, const CellBounds& bounds) const {
    const std::string times = m_time + " = ANY(" + List(Together(bounds.First, bounds.Last), "int4") + ")";
    const std::string values =
        Double(m_value) + " = ANY(" + List(Together(bounds.Lowest, bounds.Highest), "float8") + ")";
    const auto isBound = [](const char* cell, const std::string& list) {
        return std::string(cell) + " = (" + list + ")[k + 1]";
    };
    return Asked("SELECT k, MIN(t), MAX(t), v" + Bucketed(starts, " AND (" + values + " OR " + times + ")") +
                     " WHERE " + isBound("v", List(bounds.Lowest, "float8")) + " OR " +
                     isBound("v", List(bounds.Highest, "float8")) + " OR " +
                     isBound("t", List(bounds.First, "int4")) + " OR " +
                     isBound("t", List(bounds.Last, "int4")) + " GROUP BY k, v",
                 1);
}

std::string PointsSql::Grouped(const CellSteps& steps, std::int64_t first) const {
    return "(SELECT " +
           SeriesThen("k, MIN(t) AS t0, MAX(t) AS t1, MIN(v) AS v0, MAX(v) AS v1, COUNT(*) AS n") + " FROM " +
           Stepped(Of::Values, steps, first) + " b GROUP BY " + SeriesThen("k") + ")";
}

SqlQuestion PointsSql::Extremes(const CellSteps& steps, std::int64_t first) const {
    if (steps.AreTimesAlone) {
        const std::string by = SeriesThen("t");
        const std::string from = " FROM " + ByTime() + " GROUP BY " + by;
        return Asked("SELECT " + SeriesThen("t, t, MIN(v), MAX(v), t, COUNT(*)") + from, 1);
    }
    return Asked("SELECT " + SeriesThen("MIN(p.t), MAX(p.t), p.v, p.v, MIN(q.t0), MAX(q.n)", "q.") +
                     " FROM " + Grouped(steps, first) + " q JOIN " + Stepped(Of::Values, steps, first) +
                     " p ON p.k = q.k" + (HasSeries() ? " AND p.s = q.s" : "") +
                     " AND (p.v = q.v0 OR p.v = q.v1 OR p.t = q.t0 OR p.t = q.t1) GROUP BY " +
                     SeriesThen("q.k, p.v", "q."),
                 2);
}

SqlQuestion PointsSql::Gaps(const CellSteps& steps, std::int64_t first) const {
    if (steps.AreTimesAlone) {
        const std::string by = HasSeries() ? m_series + ", " + m_time : m_time;
        return Asked("SELECT " + by + ", COUNT(*)" + From(Of::Gaps) + " GROUP BY " + by, 1);
    }
    return Asked("SELECT " + SeriesThen("MIN(t), COUNT(*)") + " FROM " + Stepped(Of::Gaps, steps, first) +
                     " b GROUP BY " + SeriesThen("k"),
                 1);
}

SqlQuestion PointsSql::Rows() const {
    return Asked("SELECT " + (HasSeries() ? m_series + ", " : "") + m_time + ", " + m_value + From(Of::All),
                 1);
}

SqlQuestion PointsSql::Rows(std::span<const TimeSpan> spans) const {
    std::string within;
    for (const TimeSpan& span : spans) {
        within += (within.empty() ? " AND (" : " OR ") + m_time + " BETWEEN " + std::to_string(span.First) +
                  " AND " + std::to_string(span.Last);
    }
    SqlQuestion question = Rows();
    question.Text +=
        within + ") ORDER BY " + m_time + ", CASE WHEN " + m_value + " IS NULL THEN 0 ELSE 1 END, " + m_value;
    return question;
}

} // namespace millichart::documents
