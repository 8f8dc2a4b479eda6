#include "charts/curve/CurveProp.h"
#include "documents/large/ByteSource.h"
#include "documents/large/OpenLarge.h"
#include "penlode/engine/LineThinning.h"
#include "penlode/engine/ListLine.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <gtest/gtest.h>
#include <numeric>
#include <random>
#include <sstream>

namespace {

using namespace millichart;
using namespace millichart::documents;
using penlode::PointF;

constexpr TableForm kLines{.WidthForm = "as many as in the first row",
                           .HeadingNames = "names",
                           .HasTimes = true,
                           .Gap = kCurveNull,
                           .NoRows = "no rows",
                           .RowsForm = "rows"};

/// A file, in the memory.
class TextBytes final : public ByteSource {
public:
    explicit TextBytes(std::string text) : m_text(std::move(text)) {}

    std::string_view Beginning() const override { return std::string_view(m_text).substr(0, 20000); }

    std::size_t Read(char* to, std::size_t most) override {
        const std::size_t read = m_text.copy(to, most, m_at);
        m_at += read;
        m_read += read;
        return read;
    }

    bool Seek(std::uint64_t at) override {
        m_at = static_cast<std::size_t>(at);
        return at <= m_text.size();
    }

    std::optional<std::uint64_t> Size() const override { return m_text.size(); }

    std::string Fault() const override { return {}; }

    std::size_t BytesRead() const { return m_read; }

private:
    std::string m_text;
    std::size_t m_at = 0;
    std::size_t m_read = 0;
};

std::string Told(const std::vector<penlode::Diagnostic>& diagnostics) {
    std::string all;
    for (const penlode::Diagnostic& one : diagnostics) {
        all += one.File + ":" + std::to_string(one.Line) + ": " + one.Place + ": " + one.Text + "\n";
    }
    return all;
}

/// A table that is read row by row.
struct Streamed {
    explicit Streamed(const std::string& text, const TableOptions& options = {}, const LineRules& rules = {},
                      bool isPipe = false)
        : Bytes(std::make_shared<TextBytes>(text)) {
        TableInput input{{"t.csv"}, options};
        input.Stream = isPipe ? GoOnReading(text.substr(0, 5000),
                                            std::make_unique<std::istringstream>(
                                                text.substr(std::min<std::size_t>(5000, text.size()))))
                              : Bytes;
        Curves = OpenLarge(input, kLines, rules, Diagnostics, Reason);
        if (Curves) {
            Extent = Curves->Extent(Diagnostics);
        }
    }

    CurveData Thinned(const std::vector<std::int32_t>& starts) {
        return Curves->Thinned(starts, Diagnostics);
    }

    std::shared_ptr<TextBytes> Bytes;
    std::vector<penlode::Diagnostic> Diagnostics;
    penlode::Diagnostic Reason;
    std::shared_ptr<LargeCurves> Curves;
    CurveData Extent;
};

struct Held {
    explicit Held(const std::string& text, const TableOptions& options = {})
        : Data(ReadTable({{"t.csv", text}, options}, kLines, Diagnostics)) {}

    std::vector<penlode::Diagnostic> Diagnostics;
    Table Data;
};

/// A line as it is stroked: as one of many points, or as a figure.
struct Drawn {
    bool IsThinned = false;
    std::vector<PointF> Points;

    friend bool operator==(const Drawn& a, const Drawn& b) {
        return a.IsThinned == b.IsThinned &&
               std::equal(a.Points.begin(), a.Points.end(), b.Points.begin(), b.Points.end(),
                          [](PointF p, PointF q) { return p.X == q.X && p.Y == q.Y; });
    }
};

constexpr double kColumn = 64.0; // times

Drawn Draw(const std::vector<PointF>& points) {
    const penlode::ListLine line(points);
    penlode::DataRun run{line};
    Drawn drawn{true, {}};
    penlode::ThinLine(run, penlode::Matrix(), {kColumn, -1e9, 1e9}, [&drawn](const auto& point) {
        drawn.Points.push_back({static_cast<float>(point.X), static_cast<float>(point.Y)});
    });
    const bool isThinned =
        points.size() >= penlode::kMinDataLinePoints && drawn.Points.size() < points.size();
    return isThinned ? drawn : Drawn{false, points};
}

/// The lines between gaps of which something shows.
std::vector<Drawn> Lines(const std::vector<std::int32_t>& times, const std::vector<double>& values) {
    std::vector<Drawn> lines;
    std::vector<PointF> line;
    const auto end = [&] {
        if (line.size() > 1) {
            lines.push_back(Draw(line));
        }
        line.clear();
    };
    for (std::size_t i = 0; i < times.size(); ++i) {
        if (IsCurveNull(values[i])) {
            end();
        } else {
            line.push_back({static_cast<float>(times[i]), static_cast<float>(values[i])});
        }
    }
    end();
    return lines;
}

/// The first line that differs, and where; empty if none does.
std::string Difference(const std::vector<Drawn>& lines, const std::vector<Drawn>& expected) {
    const auto [line, other] = std::mismatch(lines.begin(), lines.end(), expected.begin(), expected.end());
    if (line == lines.end() && other == expected.end()) {
        return {};
    }
    std::ostringstream text;
    text << lines.size() << " lines, not " << expected.size() << "; line " << line - lines.begin();
    if (line != lines.end() && other != expected.end()) {
        const auto [at, its] =
            std::mismatch(line->Points.begin(), line->Points.end(), other->Points.begin(),
                          other->Points.end(), [](PointF p, PointF q) { return p.X == q.X && p.Y == q.Y; });
        text << " of " << line->Points.size() << " points, not " << other->Points.size() << "; thinned "
             << line->IsThinned << other->IsThinned << "; point " << at - line->Points.begin();
        if (at != line->Points.end() && its != other->Points.end()) {
            text << " at " << at->X << " " << at->Y << ", not " << its->X << " " << its->Y;
        }
    }
    return text.str();
}

/// Twice as many as there are columns.
std::vector<std::int32_t> Starts(const std::vector<std::int32_t>& times) {
    const auto [least, most] = std::minmax_element(times.begin(), times.end());
    std::vector<std::int32_t> starts;
    const auto step = static_cast<std::int32_t>(kColumn / 2);
    for (std::int32_t start = *least / step * step - step; start <= *most; start += step) {
        starts.push_back(start);
    }
    return starts;
}

void ExpectSameLines(const std::string& text, const TableOptions& options = {}) {
    const Held held(text, options);
    Streamed streamed(text, options);
    ASSERT_NE(streamed.Curves, nullptr) << streamed.Reason.Text;
    EXPECT_EQ(Told(streamed.Diagnostics), Told(held.Diagnostics));
    EXPECT_EQ(streamed.Extent.CurveNames, held.Data.Heading);
    EXPECT_EQ(streamed.Extent.Labels, held.Data.TimeLabels);
    EXPECT_EQ(streamed.Extent.Origin.Dates, held.Data.Origin.Dates);
    const CurveData thinned = streamed.Thinned(Starts(held.Data.Times));
    ASSERT_EQ(thinned.Values.size(), held.Data.Columns.size());
    for (std::size_t curve = 0; curve < thinned.Values.size(); ++curve) {
        const auto lines = Lines(thinned.Times[curve], thinned.Values[curve]);
        const auto all = Lines(held.Data.Times, held.Data.Columns[curve]);
        EXPECT_EQ(Difference(lines, all), "") << "curve " << curve;
        const auto [least, most] = std::minmax_element(held.Data.Times.begin(), held.Data.Times.end());
        EXPECT_EQ(thinned.Times[curve].front(), *least);
        EXPECT_EQ(thinned.Times[curve].back(), *most);
        EXPECT_EQ(std::reduce(streamed.Extent.Times[curve].begin(), streamed.Extent.Times[curve].end(),
                              INT32_MAX, [](int a, int b) { return std::min(a, b); }),
                  *least);
    }
}

/// A random walk in steps that single precision holds, with or without gaps.
struct TableMaker {
    std::size_t Rows = 1000;
    int Curves = 1;
    double Gaps = 0.0; ///< so many of the cells
    int MostStep = 3;  ///< of the time
    std::int32_t First = 0;
    const char* End = "\n";
    const char* Quote = "";
    bool EndsLast = true;
    unsigned Seed = 1;

    std::string Text(const std::function<std::string(std::int64_t)>& form = {}) const {
        std::mt19937 random(Seed);
        std::ostringstream text;
        text << "time";
        for (int curve = 0; curve < Curves; ++curve) {
            text << ",c" << curve;
        }
        std::vector<int> values(static_cast<std::size_t>(Curves));
        std::int64_t time = First;
        for (std::size_t row = 0; row < Rows; ++row) {
            text << End << Quote << (form ? form(time) : std::to_string(time)) << Quote;
            time += static_cast<std::int64_t>(random() % static_cast<unsigned>(MostStep + 1));
            for (int& value : values) {
                value += static_cast<int>(random() % 201U) - 100;
                const bool isGap = Gaps > 0.0 && static_cast<double>(random() % 1000000U) < Gaps * 1e6;
                text << "," << (isGap ? "" : Quote + std::to_string(value / 4.0) + Quote);
            }
        }
        text << (EndsLast ? End : "");
        return text.str();
    }
};

} // namespace

TEST(LargeCurves, DrawTheSameLinesAsTablesThatAreHeld) {
    unsigned seed = 0;
    for (const std::size_t rows : {1U, 2U, 63U, 64U, 65U, 66U, 70U, 130U, 1000U, 100000U}) {
        for (const double gaps : {0.0, 0.001, 0.02, 0.4}) {
            SCOPED_TRACE(std::to_string(rows) + " rows, gaps " + std::to_string(gaps));
            ++seed;
            ExpectSameLines(TableMaker{.Rows = rows,
                                       .Curves = 1 + static_cast<int>(seed % 3),
                                       .Gaps = gaps,
                                       .MostStep = 1 + static_cast<int>(seed % 5),
                                       .First = -500,
                                       .Seed = seed}
                                .Text());
        }
    }
}

TEST(LargeCurves, AreReadInWhateverFormTablesAre) {
    const TableMaker few{.Rows = 3000, .Curves = 2, .Gaps = 0.01};
    const auto with = [&few](const std::function<void(TableMaker&)>& change) {
        TableMaker maker = few;
        change(maker);
        return maker;
    };
    ExpectSameLines(with([](TableMaker& m) { m.End = "\r\n"; }).Text());
    ExpectSameLines(with([](TableMaker& m) { m.Quote = "\""; }).Text());
    ExpectSameLines(with([](TableMaker& m) { m.EndsLast = false; }).Text());
    ExpectSameLines(with([](TableMaker& m) {
                        m.MostStep = 0;
                        m.Gaps = 0.0;
                    }).Text()); // one time
    ExpectSameLines("\xEF\xBB\xBFTitle above\n" + few.Text());
    ExpectSameLines("sep=,\n" + few.Text());
    ExpectSameLines(few.Text() + "\n\n,,\n 9999 , \"1,250\" ,\"#N/A\"\n");
    ExpectSameLines(
        few.Text([](std::int64_t time) { return std::to_string(time) + "." + (time % 2 ? "5" : "25"); }));
    ExpectSameLines(few.Text([](std::int64_t time) {
        return std::to_string(time) + (time > 1000 ? ".125" : "");
    })); // whole numbers at first
    const auto day = [](std::int64_t time) {
        const std::chrono::year_month_day date(std::chrono::sys_days(std::chrono::days(time + 19000)));
        const unsigned month = static_cast<unsigned>(date.month());
        const unsigned of = static_cast<unsigned>(date.day());
        return std::to_string(static_cast<int>(date.year())) + (month < 10 ? "-0" : "-") +
               std::to_string(month) + (of < 10 ? "-0" : "-") + std::to_string(of);
    };
    ExpectSameLines(few.Text(day));
    const auto hour = [](std::int64_t time) { return std::to_string(100 + time % 24).substr(1); };
    ExpectSameLines(few.Text([&](std::int64_t time) { return day(time / 24) + " " + hour(time) + ":30"; }));
    ExpectSameLines(
        few.Text([&](std::int64_t time) { return day(time / 24) + "T" + hour(time) + ":00:00.250Z"; }));
    std::string german = few.Text();
    std::replace(german.begin(), german.end(), ',', ';');
    std::replace(german.begin(), german.end(), '.', ',');
    ExpectSameLines(german);
    TableOptions chosen;
    chosen.Columns = {"1", "c1"};
    ExpectSameLines(few.Text(), chosen);
}

TEST(LargeCurves, TellOfCellsAsTablesThatAreHeldDo) {
    const std::string rows = TableMaker{.Rows = 2000}.Text();
    for (const std::string wrong : {"7,x\n", "7,1,2\n", "y,1\n", ",3\n", "7,\"1\n\n2\"\n8,z\n",
                                    "99999999999999999,1\n", "7,\"open\n"}) {
        const std::string text = rows + wrong + "9999,1\n";
        const Held held(text);
        const Streamed streamed(text);
        ASSERT_NE(streamed.Curves, nullptr);
        EXPECT_TRUE(streamed.Extent.Values.empty()) << wrong;
        EXPECT_EQ(Told(streamed.Diagnostics), Told(held.Diagnostics));
    }
    EXPECT_EQ(Told(Streamed("a,b\n").Diagnostics), Told(Held("a,b\n").Diagnostics));
}

TEST(LargeCurves, LeaveAloneWhatDoesNotComeRowByRow) {
    EXPECT_NE(Streamed("a,1\nb,2\n").Reason.Text.find("line 1 of it has \"a\""), std::string::npos);
    EXPECT_NE(Streamed("1,1\n2,\xC4\xE3\n").Reason.Text.find("UTF-8"), std::string::npos);
    TableOptions turned;
    turned.IsTransposed = true;
    EXPECT_NE(Streamed("1,1\n2,2\n", turned).Reason.Text.find("--transpose"), std::string::npos);
}

TEST(LargeCurves, AreReadOnceAndThenWhereColumnsBegin) {
    const std::string text = TableMaker{.Rows = 400000, .MostStep = 1}.Text();
    Streamed streamed(text);
    const std::size_t once = streamed.Bytes->BytesRead();
    EXPECT_EQ(once, text.size());
    std::vector<std::int32_t> starts(20);
    for (std::size_t i = 0; i < starts.size(); ++i) {
        starts[i] = static_cast<std::int32_t>(i) * 10000 + 5000;
    }
    const CurveData thinned = streamed.Thinned(starts);
    EXPECT_LE(thinned.Values.front().size(), 4 * (starts.size() + 1) + 66);
    EXPECT_LT(streamed.Bytes->BytesRead() - once, text.size() / 8);
}

TEST(LargeCurves, RowsCountInTheOrderOfTheirTimes) {
    std::vector<std::string> rows;
    std::istringstream lines(TableMaker{.Rows = 20000, .MostStep = 2}.Text());
    std::string heading;
    std::getline(lines, heading);
    for (std::string row; std::getline(lines, row);) {
        rows.push_back(row);
    }
    const auto joined = [&] {
        return std::accumulate(
            rows.begin(), rows.end(), heading + "\n",
            [](std::string all, const std::string& row) { return std::move(all) + row + "\n"; });
    };
    // Rows of one time keep their order, so that they must not be parted.
    const auto time = [](const std::string& row) { return std::stoi(row); };
    const Held held(joined());
    std::rotate(rows.begin(),
                std::find_if(rows.begin() + 7000, rows.end(),
                             [&](const std::string& row) {
                                 return time(row) != time(rows[6999]) && time(row) > time(rows[7000]);
                             }),
                rows.end());
    Streamed streamed(joined());
    EXPECT_NE(Told(streamed.Diagnostics).find("the times are not in order"), std::string::npos);
    const CurveData thinned = streamed.Thinned(Starts(held.Data.Times));
    EXPECT_EQ(
        Difference(Lines(thinned.Times[0], thinned.Values[0]), Lines(held.Data.Times, held.Data.Columns[0])),
        "");
}

TEST(LargeCurves, KeepAFewRowsOfMillionsOfGaps) {
    const std::string text = TableMaker{.Rows = 300000, .Gaps = 0.5, .MostStep = 1}.Text();
    Streamed streamed(text);
    std::vector<std::int32_t> starts(10);
    for (std::size_t i = 0; i < starts.size(); ++i) {
        starts[i] = static_cast<std::int32_t>(i) * 15000;
    }
    const CurveData thinned = streamed.Thinned(starts);
    EXPECT_LT(thinned.Values.front().size(), 500 * starts.size());
    const Held held(text);
    const auto isNull = [](double value) { return IsCurveNull(value); };
    std::vector<double> all = held.Data.Columns[0];
    std::erase_if(all, isNull);
    std::vector<double> kept = thinned.Values[0];
    std::erase_if(kept, isNull);
    const auto& extent = streamed.Extent.Values[0];
    EXPECT_EQ(*std::max_element(extent.begin(), extent.end()), *std::max_element(all.begin(), all.end()));
}

TEST(LargeCurves, BreakWhereALogarithmicAxisHasNoPlaceAndRunThroughZero) {
    const std::string text = TableMaker{.Rows = 20000, .Gaps = 0.01}.Text();
    const Held held(text);
    const std::vector<std::int32_t> starts = Starts(held.Data.Times);
    std::vector<double> above = held.Data.Columns[0];
    std::replace_if(
        above.begin(), above.end(), [](double value) { return !(value > 0.0); }, kCurveNull);
    LineRules logarithmic;
    logarithmic.IsLogarithmic = true;
    CurveData thinned = Streamed(text, {}, logarithmic).Thinned(starts);
    std::replace_if(
        thinned.Values[0].begin(), thinned.Values[0].end(), [](double value) { return !(value > 0.0); },
        kCurveNull);
    EXPECT_EQ(Difference(Lines(thinned.Times[0], thinned.Values[0]), Lines(held.Data.Times, above)), "");

    std::vector<double> zeros = held.Data.Columns[0];
    std::replace_if(
        zeros.begin(), zeros.end(), [](double value) { return IsCurveNull(value); }, 0.0);
    LineRules throughZero;
    throughZero.NullsAreZero = {true};
    thinned = Streamed(text, {}, throughZero).Thinned(starts);
    EXPECT_EQ(Difference(Lines(thinned.Times[0], thinned.Values[0]), Lines(held.Data.Times, zeros)), "");
}

TEST(LargeCurves, OfAPipeKeepEachColumnsExtremes) {
    for (const std::int32_t first : {-40000, 0, 10000000}) {
        const std::string text = TableMaker{.Rows = 150000, .MostStep = 3, .First = first}.Text();
        const Held held(text);
        Streamed piped(text, {}, {}, true);
        ASSERT_NE(piped.Curves, nullptr) << piped.Reason.Text;
        EXPECT_EQ(Told(piped.Diagnostics), Told(held.Diagnostics));
        const std::vector<std::int32_t> starts = Starts(held.Data.Times);
        const CurveData thinned = piped.Thinned(starts);
        const auto& times = held.Data.Times;
        EXPECT_EQ(thinned.Times[0].front(), times.front());
        EXPECT_EQ(thinned.Times[0].back(), times.back());
        EXPECT_TRUE(std::is_sorted(thinned.Times[0].begin(), thinned.Times[0].end()));
        // Cells are a power of two wide and so are these columns, so that they lie within them.
        EXPECT_EQ(Difference(Lines(thinned.Times[0], thinned.Values[0]), Lines(times, held.Data.Columns[0])),
                  "");
    }
}
