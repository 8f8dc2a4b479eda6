#include "documents/points/TableCurves.h"

#include "charts/curve/CurveProp.h"
#include "documents/points/CellRows.h"
#include "documents/points/CellSteps.h"
#include "documents/points/PointExtents.h"
#include "documents/points/PointsSql.h"
#include "documents/points/WholeSpans.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <set>
#include <utility>

namespace millichart::documents {
namespace {

using penlode::CStringUtil;
using penlode::Diagnostic;
using Diagnostics = std::vector<Diagnostic>;
using Row = std::span<const SqlValue>;

constexpr std::size_t kMostCurves = 100;
/// Where lines break, rows are asked for whole.
constexpr std::uint64_t kMostWholeRows = 2'000'000;
constexpr const char* kTimesForm = "whole numbers within 32 bits";

bool IsTime(const SqlValue& value) {
    using Limits = std::numeric_limits<std::int32_t>;
    const std::optional<double> time = NumberIn(value);
    return time && std::trunc(*time) == *time && *time >= Limits::min() && *time <= Limits::max();
}

std::int32_t TimeIn(const SqlValue& value) {
    return static_cast<std::int32_t>(*NumberIn(value));
}

class TableCurves final : public LargeCurves {
public:
    TableCurves(const TableInput& input, const LineRules& rules, bool mayReadRows)
        : m_input(input), m_rules(rules), m_mayReadRows(mayReadRows) {}

    CurveData Extent(Diagnostics& diagnostics) override {
        m_extents.clear();
        if (!Begin() || !AskForExtents() || !CheckExtents()) {
            Tell(diagnostics);
            return {};
        }
        CurveData data = Named();
        for (const auto& [series, extent] : m_extents) {
            PutExtent(extent, data);
        }
        return data;
    }

    CurveData Thinned(std::span<const std::int32_t> starts, Diagnostics& diagnostics) override {
        m_starts.assign(starts.begin(), starts.end());
        m_starts.erase(std::unique(m_starts.begin(), m_starts.end()), m_starts.end());
        m_rows.clear();
        for (const auto& [series, extent] : m_extents) {
            m_rows.emplace(series, CellRows(m_starts));
        }
        if (m_sql == nullptr || !TakeRows() || !TakeWholeRows()) {
            Tell(diagnostics);
            return {};
        }
        CurveData data = Named();
        for (const auto& [series, rows] : m_rows) {
            data.Times.emplace_back();
            data.Values.emplace_back();
            rows.AppendLine(data.Times.back(), data.Values.back());
        }
        return data;
    }

private:
    const PointsTable& Names() const { return m_input.Options.Points; }

    bool Begin() {
        std::vector<RowCondition> conditions;
        for (const std::string& text : Names().Where) {
            const std::optional<RowCondition> condition = ConditionOf(text);
            if (!condition) {
                return Refuse("the condition \"" + penlode::Shortened(text) +
                              "\" is none, expected a column, one of = <> < <= > >= and a value");
            }
            conditions.push_back(*condition);
        }
        if (Names().Time.empty() || Names().Value.empty()) {
            return Refuse("the table \"" + Names().Name +
                          "\" has no columns, expected those of the times "
                          "and of the values");
        }
        m_session = OpenSession(m_input, m_fault);
        if (m_session == nullptr || !m_session->Connect()) {
            return false;
        }
        m_sql =
            std::make_unique<PointsSql>(*m_session, Names(), std::move(conditions), m_rules.IsLogarithmic);
        return true;
    }

    bool AskForExtents() {
        if (!AskExtents(*m_session, *m_sql, m_rules.IsLogarithmic, kMostCurves, m_extents)) {
            return m_extents.size() > kMostCurves &&
                   Refuse("the column \"" + Names().Series + "\" has more than " +
                          std::to_string(kMostCurves) + " series, expected at most as many curves");
        }
        return !m_extents.empty() || Refuse("found no rows of values, expected a row a time");
    }

    bool CheckExtents() {
        // In SQLite a column may hold anything.
        bool areFractions = m_session->Dialect() == SqlDialect::Sqlite && !ReadsRows();
        for (const auto& [series, extent] : m_extents) {
            for (const SqlValue* time : {&extent.First, &extent.Last}) {
                if (!IsTime(*time)) {
                    return RefuseCell(Names().Time, *time, kTimesForm);
                }
                areFractions = areFractions || !std::holds_alternative<std::int64_t>(*time);
            }
            for (const SqlValue* value : {&extent.Lowest, &extent.Highest}) {
                const bool isNull = std::holds_alternative<std::monostate>(*value);
                if (!isNull && !std::isfinite(NumberIn(*value).value_or(HUGE_VAL))) {
                    return RefuseCell(Names().Value, *value, "numbers");
                }
            }
        }
        return !areFractions || CheckFractions();
    }

    bool CheckFractions() {
        SqlValue fraction;
        const bool isAnswered = m_session->Ask(m_sql->Fractions(), [&](Row row) {
            fraction = row[0];
            return true;
        });
        const bool isNone = std::holds_alternative<std::monostate>(fraction);
        return isAnswered && (isNone || RefuseCell(Names().Time, fraction, kTimesForm));
    }

    bool ReadsRows() const { return m_mayReadRows && m_session->IsInProcess(); }

    /// Times where the curve begins and ends, and all of its values that a layout depends on.
    void PutExtent(const PointExtent& extent, CurveData& data) const {
        std::vector<double> values;
        for (const SqlValue* value : {&extent.Least, &extent.Greatest, &extent.Lowest, &extent.Highest}) {
            if (const std::optional<double> number = NumberIn(*value)) {
                values.push_back(*number);
            }
        }
        if (extent.Gaps > 0 || values.empty()) {
            values.push_back(kCurveNull);
        }
        std::vector<std::int32_t> times(values.size(), TimeIn(extent.First));
        times.push_back(TimeIn(extent.Last));
        values.push_back(values.front());
        data.Origin.Lines.resize(std::max(data.Origin.Lines.size(), values.size())); // none has a line
        data.Values.push_back(std::move(values));
        data.Times.push_back(std::move(times));
    }

    CurveData Named() const {
        CurveData data;
        for (const auto& [series, extent] : m_extents) {
            std::string name = m_sql->HasSeries() ? TextOf(series) : Names().Value;
            name.erase(name.find_last_not_of(' ') + 1); // filled up to a fixed length
            data.CurveNames.push_back(CStringUtil::Utf8ToAnsi(name));
        }
        data.Origin.File = m_input.Input.Name;
        return data;
    }

    /// Null for a series that came after the extents were asked for.
    CellRows* RowsOf(Row& row) {
        const auto found = m_rows.find(m_sql->HasSeries() ? row[0] : SqlValue());
        row = row.subspan(m_sql->HasSeries() ? 1 : 0);
        return found == m_rows.end() ? nullptr : &found->second;
    }

    bool TakeRows() {
        if (ReadsRows()) {
            return TakeEachRow();
        }
        const auto [first, last] = Times();
        const CellSteps steps = StepsOf(m_starts, first, last);
        const bool isTaken = m_sql->HasBuckets() && !m_sql->HasSeries() && !steps.AreTimesAlone
                                 ? TakeCells(m_rows.begin()->second)
                                 : TakeExtremes(steps, first);
        const bool haveGaps = std::any_of(m_extents.begin(), m_extents.end(),
                                          [](const auto& curve) { return curve.second.Gaps > 0; });
        return isTaken && (!haveGaps || TakeGaps(steps, first));
    }

    std::pair<std::int32_t, std::int32_t> Times() const {
        std::pair<std::int32_t, std::int32_t> times{INT32_MAX, INT32_MIN};
        for (const auto& [series, extent] : m_extents) {
            times.first = std::min(times.first, TimeIn(extent.First));
            times.second = std::max(times.second, TimeIn(extent.Last));
        }
        return times;
    }

    /// Of millions, so that a row costs no more than it must.
    bool TakeEachRow() {
        std::optional<SqlValue> wrong;
        const SqlValue* series = nullptr;
        CellRows* rows = nullptr;
        const std::size_t of = m_sql->HasSeries() ? 1 : 0;
        const bool isAnswered = m_session->Ask(m_sql->Rows(), [&](Row row) {
            if (series == nullptr || (of > 0 && *series != row[0])) {
                const auto found = m_rows.find(of > 0 ? row[0] : SqlValue());
                rows = found == m_rows.end() ? nullptr : &found->second;
                series = found == m_rows.end() ? nullptr : &found->first;
            }
            if (!IsTime(row[of])) {
                wrong = row[of];
                return false;
            }
            if (rows != nullptr) {
                TakeRow(*rows, TimeIn(row[of]), row[of + 1]);
            }
            return true;
        });
        return isAnswered && (!wrong || RefuseCell(Names().Time, *wrong, kTimesForm));
    }

    void TakeRow(CellRows& rows, std::int32_t time, const SqlValue& value) const {
        const double number = NumberIn(value).value_or(kCurveNull);
        if (IsGap(number)) {
            rows.TakeGaps(time, 1);
        } else {
            rows.Take(CellSummary::Of({time, number}));
        }
    }

    bool IsGap(double value) const { return IsCurveNull(value) || (m_rules.IsLogarithmic && value <= 0.0); }

    /// In two looks: where the rows of each cell end, and which rows are there.
    bool TakeCells(CellRows& rows) {
        CellBounds bounds;
        std::vector<std::uint64_t> counts(m_starts.size() + 1);
        bounds.First.resize(counts.size());
        bounds.Last.resize(counts.size());
        bounds.Lowest.resize(counts.size());
        bounds.Highest.resize(counts.size());
        const bool isAnswered = m_session->Ask(m_sql->Cells(m_starts), [&](Row row) {
            const auto cell = static_cast<std::size_t>(*NumberIn(row[0]));
            bounds.First[cell] = TimeIn(row[1]);
            bounds.Last[cell] = TimeIn(row[2]);
            bounds.Lowest[cell] = *NumberIn(row[3]);
            bounds.Highest[cell] = *NumberIn(row[4]);
            counts[cell] = static_cast<std::uint64_t>(*NumberIn(row[5]));
            return true;
        });
        return isAnswered && m_session->Ask(m_sql->RowsOfCells(m_starts, bounds), [&](Row row) {
            std::uint64_t& count = counts[static_cast<std::size_t>(*NumberIn(row[0]))];
            const double value = *NumberIn(row[3]);
            CellSummary summary = CellSummary::Of({TimeIn(row[1]), value}, std::exchange(count, 0));
            summary.Join(CellSummary::Of({TimeIn(row[2]), value}, 0));
            rows.Take(summary);
            return true;
        });
    }

    /// How many rows were summed up comes with each of them, and counts once.
    bool TakeExtremes(const CellSteps& steps, std::int64_t first) {
        std::set<std::pair<const CellRows*, std::int32_t>> counted;
        return m_session->Ask(m_sql->Extremes(steps, first), [&](Row row) {
            if (CellRows* const rows = RowsOf(row)) {
                const bool isNew = counted.emplace(rows, TimeIn(row[4])).second;
                const auto count = static_cast<std::uint64_t>(*NumberIn(row[5]));
                CellSummary summary = CellSummary::Of({TimeIn(row[0]), *NumberIn(row[2])}, isNew ? count : 0);
                summary.Join(CellSummary::Of({TimeIn(row[1]), *NumberIn(row[3])}, 0));
                rows->Take(summary);
            }
            return true;
        });
    }

    bool TakeGaps(const CellSteps& steps, std::int64_t first) {
        return m_session->Ask(m_sql->Gaps(steps, first), [&](Row row) {
            if (CellRows* const rows = RowsOf(row)) {
                rows->TakeGaps(TimeIn(row[0]), static_cast<std::uint64_t>(*NumberIn(row[1])));
            }
            return true;
        });
    }

    /// What one curve needs whole is asked for of all, in as few questions as there can be.
    bool TakeWholeRows() {
        std::vector<TimeSpan> wanted;
        for (const auto& [series, rows] : m_rows) {
            const std::vector<TimeSpan> spans = rows.WantedWhole();
            wanted.insert(wanted.end(), spans.begin(), spans.end());
        }
        wanted = JoinedSpans(std::move(wanted));
        std::uint64_t count = 0;
        for (auto& [series, rows] : m_rows) {
            count += rows.ForgetCells(wanted);
        }
        if (count > kMostWholeRows) {
            return Refuse("found gaps in as many columns of the picture as hold " + std::to_string(count) +
                          " rows, expected at most " + std::to_string(kMostWholeRows) +
                          " beside rows without a value; a condition on the values leaves those out");
        }
        return wanted.empty() || m_session->Ask(m_sql->Rows(wanted), [&](Row row) {
            if (CellRows* const rows = RowsOf(row)) {
                const double value = NumberIn(row[1]).value_or(kCurveNull);
                rows->TakeWhole({{TimeIn(row[0]), value}, IsGap(value)});
            }
            return true;
        });
    }

    /// Gives false.
    bool Refuse(std::string text) {
        m_fault = std::move(text);
        return false;
    }

    bool RefuseCell(const std::string& column, const SqlValue& found, const std::string& expected) {
        return Refuse("the column \"" + column + "\": found " + penlode::Shortened(TextOf(found)) +
                      ", expected " + expected);
    }

    void Tell(Diagnostics& diagnostics) {
        const bool isOfSession = m_fault.empty() && m_session != nullptr;
        diagnostics.push_back(penlode::Error("", isOfSession ? m_session->Fault() : m_fault));
        diagnostics.back().File = m_input.Input.Name;
        m_fault.clear();
    }

    const TableInput m_input;
    const LineRules m_rules;
    const bool m_mayReadRows;
    std::unique_ptr<SqlSession> m_session;
    std::unique_ptr<PointsSql> m_sql;
    PointExtents m_extents;
    std::vector<std::int32_t> m_starts;
    std::map<SqlValue, CellRows> m_rows;
    std::string m_fault;
};

} // namespace

std::shared_ptr<LargeCurves> OpenTableCurves(const TableInput& input, const LineRules& rules,
                                             bool mayReadRows) {
    const bool isOfTable = !input.Source.empty() && !input.Options.Points.Name.empty();
    return isOfTable ? std::make_shared<TableCurves>(input, rules, mayReadRows) : nullptr;
}

} // namespace millichart::documents
