#include "documents/points/TableCurves.h"

#include "NaiveLine.h"
#include "documents/tables/QuerySource.h"
#include "documents/tables/QueryWatch.h"
#include "support/Shell.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <sqlite3.h>

namespace millichart::documents {
namespace {

using documents_test::InOrder;
using documents_test::Line;
using documents_test::LineOf;
using documents_test::Look;

struct Shape {
    const char* Name;
    std::size_t Rows;
    std::int32_t First;
    std::int32_t Times; ///< so many different ones
    int Values;         ///< so many different ones, or any number
    int Gaps;           ///< in a thousand rows
};

constexpr Shape kShapes[]{
    {"many", 30000, -20000, 40000, 0, 0},
    {"steps", 20000, 0, 15000, 3, 0},
    {"constant", 9000, 5, 100000, 1, 0},
    {"crowded", 20000, -50, 100, 40, 0},
    {"few", 40, -7, 1000, 0, 0},
    {"gaps", 20000, 100, 30000, 0, 2},
    {"many gaps", 20000, 0, 9000, 7, 200},
    {"near the ends", 9000, -2147483647, 400, 0, 1},
    {"a second each", 5000, 1700000000, 86400, 0, 0},
};

/// Its names are what nobody should choose.
class TableCurvesTest : public testing::TestWithParam<bool> {
protected:
    ~TableCurvesTest() override { WatchQueries({}); }

    void Carry(const std::string& statements) const {
        sqlite3* database = nullptr;
        sqlite3_open(m_folder.Path("s.db").c_str(), &database);
        EXPECT_EQ(sqlite3_exec(database, statements.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
            << sqlite3_errmsg(database);
        sqlite3_close(database);
    }

    /// Makes a table of a shape, without any order, and gives its rows by their site.
    std::map<std::string, Line> Fill(const Shape& shape, std::mt19937& random) const {
        std::map<std::string, Line> sites;
        std::string statements = "drop table if exists \"the \"\"order\"; create table \"the \"\"order\" "
                                 "(\"select\" integer, \"my `value\" real, site); begin;";
        for (std::size_t i = 0; i < shape.Rows; ++i) {
            const std::int32_t time =
                shape.First + static_cast<std::int32_t>(random() % static_cast<unsigned>(shape.Times));
            const double value =
                shape.Values == 0 ? static_cast<double>(random()) / 1e6 - 2000.0
                                  : static_cast<double>(random() % static_cast<unsigned>(shape.Values)) / 4.0;
            const bool isGap = static_cast<int>(random() % 1000) < shape.Gaps;
            const std::string site = i % 50 == 7 ? "it's; 2" : i % 3 == 0 ? "10" : "9";
            sites[site].emplace_back(time, isGap ? kCurveNull : value);
            char text[40];
            std::snprintf(text, sizeof text, "%.17g", value);
            statements += "insert into \"the \"\"order\" values (" + std::to_string(time) + "," +
                          (isGap ? random() % 2 == 0 ? "null" : "-1e9" : text) + "," +
                          (site == "it's; 2" ? "'it''s; 2'" : site) + ");";
            sites[site].back().second = isGap ? kCurveNull : value;
        }
        Carry(statements + "insert into \"the \"\"order\" values (null, 7e7, 9); commit");
        for (auto& [site, rows] : sites) {
            rows = InOrder(rows);
        }
        return sites;
    }

    PointsTable Points() const { return {"the \"order", "select", "my `value"}; }

    std::shared_ptr<LargeCurves> Opened(const PointsTable& points, const LineRules& rules = {}) const {
        return OpenTableCurves(QueryInput("sqlite:" + m_folder.Path("s.db"), {.Points = points}), rules,
                               GetParam());
    }

    /// Why there are no rows.
    std::string Fault(const PointsTable& points) const {
        std::vector<penlode::Diagnostic> told;
        const auto curves = Opened(points);
        if (!curves->Extent(told).Values.empty()) {
            EXPECT_TRUE(curves->Thinned(std::vector<std::int32_t>{2, 5}, told).Values.empty());
        }
        return told.empty() ? "" : told.front().Text;
    }

    TemporaryFolder m_folder;
};

std::vector<std::int32_t> Columns(const Shape& shape, double count, std::mt19937& random) {
    std::vector<std::int32_t> starts;
    for (double i = 0.0; i < count; ++i) {
        const auto start = static_cast<std::int32_t>(shape.First + i * shape.Times / count);
        if (starts.empty() || starts.back() < start) {
            starts.push_back(start);
        }
        if (random() % 3 == 0 && start < shape.First + shape.Times) {
            starts.push_back(start + 1);
        }
    }
    return starts;
}

void ExpectEnds(const CurveData& extent, std::size_t curve, const Line& rows) {
    const Line outer = InOrder(LineOf(extent, curve));
    EXPECT_LT(outer.size(), 8U);
    EXPECT_EQ(outer.front().first, rows.front().first);
    EXPECT_EQ(outer.back().first, rows.back().first);
    double least = HUGE_VAL;
    double greatest = -HUGE_VAL;
    for (const auto& [time, value] : rows) {
        least = IsCurveNull(value) ? least : std::min(least, value);
        greatest = std::max(greatest, value);
    }
    EXPECT_TRUE(
        std::any_of(outer.begin(), outer.end(), [least](const auto& row) { return row.second == least; }));
    EXPECT_EQ(std::max_element(outer.begin(), outer.end(),
                               [](const auto& a, const auto& b) { return a.second < b.second; })
                  ->second,
              greatest);
}

} // namespace

TEST_P(TableCurvesTest, ALineLooksAsOneOfAllRows) {
    std::mt19937 random(5);
    for (const Shape& shape : kShapes) {
        SCOPED_TRACE(shape.Name);
        Shape less = shape;
        less.Rows /= GetParam() ? 1 : 8; // a join of SQLite's takes long
        const std::map<std::string, Line> sites = Fill(less, random);
        Line all;
        for (const auto& [site, rows] : sites) {
            all.insert(all.end(), rows.begin(), rows.end());
        }
        all = InOrder(all);
        const auto curves = Opened(Points());
        std::vector<penlode::Diagnostic> told;
        ExpectEnds(curves->Extent(told), 0, all);
        for (const double count : {3.0, 57.0, 400.0}) {
            const std::vector<std::int32_t> starts = Columns(shape, count, random);
            const CurveData data = curves->Thinned(starts, told);
            ASSERT_TRUE(told.empty()) << told.front().Text;
            EXPECT_EQ(Look(LineOf(data, 0), starts), Look(all, starts)) << count;
            const std::size_t most = 4 * (starts.size() + 1) + 66;
            EXPECT_TRUE(shape.Gaps > 0 || data.Values[0].size() <= most) << data.Values[0].size();
        }
    }
}

TEST_P(TableCurvesTest, SeriesAreCurvesAndConditionsHold) {
    std::mt19937 random(6);
    std::map<std::string, Line> sites = Fill({"", 9000, -3000, 20000, 50, 1}, random);
    PointsTable points = Points();
    points.Series = "site";
    const std::vector<std::int32_t> starts = Columns({"", 0, -3000, 20000, 0, 0}, 90.0, random);
    std::vector<penlode::Diagnostic> told;
    const auto curves = Opened(points);
    EXPECT_EQ(curves->Extent(told).CurveNames, (std::vector<std::string>{"9", "10", "it's; 2"}));
    const CurveData data = curves->Thinned(starts, told);
    ASSERT_EQ(data.CurveNames.size(), 3U);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(Look(LineOf(data, i), starts), Look(sites[data.CurveNames[i]], starts));
    }

    sites = Fill({"", 9000, -3000, 20000, 50, 0}, random);
    points.Series.clear();
    points.Where = {"site = 'it''s; 2'", "\"my `value\" <= 6.25", "select>-1000"};
    const auto some = Opened(points);
    some->Extent(told);
    Line expected;
    for (const auto& row : sites["it's; 2"]) {
        if (row.first > -1000 && row.second <= 6.25) {
            expected.push_back(row);
        }
    }
    EXPECT_EQ(Look(LineOf(some->Thinned(starts, told), 0), starts), Look(expected, starts));
    EXPECT_TRUE(told.empty());
}

TEST_P(TableCurvesTest, OnALogarithmicAxisWhatIsNotAboveZeroIsAGap) {
    std::mt19937 random(8);
    Line rows;
    std::string statements = "create table few (t integer, v real); begin;";
    for (std::int32_t time = 0; time < 900; ++time) {
        const bool isGap = random() % 150 == 0;
        rows.emplace_back(time, isGap ? -static_cast<double>(random() % 2) : 1.0 + time % 71);
        statements += "insert into few values (" + std::to_string(time) + "," +
                      std::to_string(rows.back().second) + ");";
    }
    Carry(statements + "commit");
    const auto curves = Opened({"few", "t", "v"}, {.IsLogarithmic = true, .NullsAreZero = {}, .Names = 0});
    std::vector<penlode::Diagnostic> told;
    curves->Extent(told);
    const std::vector<std::int32_t> starts{0, 80, 160, 240, 320, 500, 700};
    const auto isGap = [](double value) { return value <= 0.0; };
    EXPECT_EQ(Look(LineOf(curves->Thinned(starts, told), 0), starts, isGap), Look(rows, starts, isGap));
}

TEST_P(TableCurvesTest, TellsWhatCannotBeDrawn) {
    Carry("create table t (a, b, c); insert into t values (1, 2, 3), (2.5, 'b', 4), (4294967296, 3, 5), (9, "
          "3, 4);"
          "create table many (t, v, s); with recursive n(i) as (select 1 union all select i + 1 from n where "
          "i < 101) insert into many select i, i, i from n; create table empty (t, v)");
    EXPECT_EQ(Fault({"t", "a", "c"}),
              "the column \"a\": found 4294967296, expected whole numbers within 32 bits");
    EXPECT_EQ(Fault({"t", "a", "c", "", {"c < 5"}}),
              "the column \"a\": found 2.5, expected whole numbers within 32 bits");
    EXPECT_EQ(Fault({"t", "c", "b"}), "the column \"b\": found b, expected numbers");
    EXPECT_EQ(Fault({"t", "b", "a"}), "the column \"b\": found b, expected whole numbers within 32 bits");
    EXPECT_EQ(Fault({"many", "t", "v", "s"}),
              "the column \"s\" has more than 100 series, expected at most as many curves");
    EXPECT_EQ(Fault({"empty", "t", "v"}), "found no rows of values, expected a row a time");
    EXPECT_NE(Fault({"many", "t", "w"}).find("no such column"), std::string::npos);
    EXPECT_NE(Fault({"many\" t; --", "t", "v"}).find("no such table"), std::string::npos);
    EXPECT_EQ(Fault({"many", "t", "v", "", {"1 or 1"}}),
              "the condition \"1 or 1\" is none, expected a column, one of = <> < <= > >= and a value");
}

TEST_P(TableCurvesTest, AWatchStopsIt) {
    Carry(
        "create table t (t integer, v real); with recursive n(i) as (select 1 union all select i + 1 from n "
        "where i < 900000) insert into t select i, i from n");

    class Never final : public QueryWatch {
        bool MayGoOn(std::size_t, double) override { return false; }
    };

    WatchQueries([](const std::string&) { return std::make_unique<Never>(); });
    const auto curves = Opened({"t", "t", "v"});
    std::vector<penlode::Diagnostic> told;
    curves->Extent(told);
    for (int i = 0; i < 20 && told.empty(); ++i) {
        curves->Thinned(std::vector<std::int32_t>{0, 400000}, told);
    }
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told.front().Text, "stopped");
}

INSTANTIATE_TEST_SUITE_P(ByRows, TableCurvesTest, testing::Values(true));
INSTANTIATE_TEST_SUITE_P(BySums, TableCurvesTest, testing::Values(false));

} // namespace millichart::documents
