#include "documents/tables/Table.h"

#include "penlode/text/StringUtil.h"

#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <sstream>

namespace {

using namespace millichart;
using namespace millichart::documents;
using penlode::CStringUtil;

constexpr TableForm kPie{.Width = 2,
                         .WidthForm = "a name and a value",
                         .IsPositive = true,
                         .MaxRows = 5,
                         .MaxRowsForm = "few",
                         .RowsForm = "rows"};
constexpr TableForm kBars{.WidthForm = "as many",
                          .HeadingForm = "a heading",
                          .HeadingNames = "names",
                          .Gap = std::numeric_limits<double>::quiet_NaN(),
                          .RowsForm = "rows"};
constexpr TableForm kLines{
    .WidthForm = "as many", .HeadingNames = "names", .HasTimes = true, .Gap = kCurveNull, .RowsForm = "rows"};

std::string Joined(const std::vector<std::string>& texts) {
    std::string all;
    for (const std::string& text : texts) {
        all += (all.empty() ? "" : "|") + CStringUtil::AnsiToUtf8(text);
    }
    return all;
}

/// What a table holds, a row a line, under its title and its heading; and what is said of it.
std::string Read(const std::string& text, const TableForm& form, const TableOptions& options = {}) {
    std::vector<penlode::Diagnostic> diagnostics;
    const Table table = ReadTable({{"t", text}, options}, form, diagnostics);
    std::ostringstream out;
    out << (table.Title.empty() ? "" : "<" + table.Title + "> ") << Joined(table.Heading) << "\n";
    for (std::size_t row = 0; row < table.Origin.Lines.size(); ++row) {
        out << (table.Names.empty() ? std::to_string(table.Times[row])
                                    : CStringUtil::AnsiToUtf8(table.Names[row]));
        for (const std::vector<double>& column : table.Columns) {
            out << " " << column[row];
        }
        out << "\n";
    }
    for (const penlode::Diagnostic& d : diagnostics) {
        out << (d.Severity == penlode::Severity::Error ? "error " : "") << d.Line << ": " << d.Place
            << (d.Place.empty() ? "" : ": ") << d.Text << "\n";
    }
    if (!table.TimeLabels.empty()) {
        out << Joined(table.TimeLabels) << "\n";
    }
    return out.str();
}

TableOptions Options(const std::function<void(TableOptions&)>& set) {
    TableOptions options;
    set(options);
    return options;
}

} // namespace

TEST(Table, NumbersAreReadAsPeopleWriteThem) {
    EXPECT_EQ(Read("a;1.250,5\nb;45%\nc;$ 12\nd;12 €\ne;1 250\nf;1'250", kBars),
              "\na 1250.5\nb 45\nc 12\nd 12\ne 1250\nf 1250\n");
    EXPECT_EQ(Read("a\t1,250.5\nb\t(12)\nc\t\xE2\x88\x92"
                   "3\nd\t-$4\ne\t1\xC2\xA0"
                   "250\nf\t12,34,567\ng\t￥１２",
                   kBars),
              "\na 1250.5\nb -12\nc -3\nd -4\ne 1250\nf 1.23457e+06\ng 12\n");
    EXPECT_EQ(Read("a;1.25\nb;2,5\n", kBars), "\na 1.25\nb 0\nerror 2: column 2: found \"2,5\", expected a "
                                              "number with a decimal point, as in line 1\n");
    EXPECT_EQ(Read("a;1.250\nb;2,5\n", kBars), "\na 1250\nb 2.5\n") << "a later number tells";
    EXPECT_EQ(Read("a,\"1,250\"\n", kBars), "\na 1250\n");
    for (const char* wrong :
         {"12 5", "1,25,00", "1.2.3", "12,", "1,0005", "--1", "$", "5 kg", "((1))", "0,250,000"}) {
        EXPECT_NE(Read(std::string("a\t1.5\nb\t") + wrong, kBars).find("error 2: column 2"),
                  std::string::npos)
            << wrong;
    }
}

TEST(Table, WhatMayBeReadEitherWayIsTold) {
    EXPECT_EQ(Read("a;1,250\n", kBars), "\na 1.25\n1: \"1,250\" is read as 1.25; with --decimal ., or "
                                        "\"decimal\": \".\" beside data/csv, it is 1250\n");
    EXPECT_EQ(Read("a;1.250\n", kBars), "\na 1.25\n1: \"1.250\" is read as 1.25; with --decimal ,, or "
                                        "\"decimal\": \",\" beside data/csv, it is 1250\n");
    for (const char mark : {'.', ','}) {
        EXPECT_EQ(Read("a;1.250\n", kBars, Options([mark](auto& o) { o.DecimalMark = mark; })),
                  mark == '.' ? "\na 1.25\n" : "\na 1250\n");
    }
}

TEST(Table, FindsItsHeading) {
    EXPECT_EQ(Read("Region,2023,2024\nNorth,5,6\n", kBars), "2023|2024\nNorth 5 6\n");
    EXPECT_EQ(Read("Region,2023\nNorth,5\n", kPie), "2023\nNorth 5\n");
    EXPECT_EQ(Read("North,5,6\nSouth,7,8\n", kBars), "\nNorth 5 6\nSouth 7 8\n");
    EXPECT_EQ(Read("Mon,5\nTue,8\n", kLines), "\nMon 5\nTue 8\n");
    EXPECT_EQ(Read(",5,6\nSouth,7,8\n", kBars), "5|6\nSouth 7 8\n");
    EXPECT_EQ(Read(",5\nSouth,7\n", kPie), "\n 5\nSouth 7\n") << "a name may be missing";
    EXPECT_EQ(Read("year,5,6\n2023,7,8\n2024,7,9\n", kBars), "5|6\n2023 7 8\n2024 7 9\n");
    EXPECT_EQ(Read("name;Sales 2023\nNorth;5\n", kPie), "Sales 2023\nNorth 5\n");
    EXPECT_EQ(Read("Springfield,1900\nOgden,2050\n", kBars),
              "\nSpringfield 1900\nOgden 2050\n1: taken as data, though it may be the heading; --header, or "
              "\"heading\": true beside data/csv, says so\n");
    EXPECT_EQ(
        Read("Region,1,2,3\nNorth,5,9,7\n", kBars),
        "1|2|3\nNorth 5 9 7\n1: taken as the heading, though it may be data; --no-header, or \"heading\": "
        "false beside data/csv, says so\n");
    EXPECT_EQ(Read("a,1\nb,2\n", kPie, Options([](auto& o) { o.HasHeading = true; })), "1\nb 2\n");
    EXPECT_EQ(Read("n,2022-23,2024-01\nb,2,3\n", kBars), "2022-23|2024-01\nb 2 3\n");
    EXPECT_EQ(Read("n,2 % a year\n1,5\n", kPie), "2 % a year\n1 5\n");
    EXPECT_EQ(Read("n,2 %/a,3 %/a\nx,5,6\n", kBars), "2 %/a|3 %/a\nx 5 6\n");
    EXPECT_EQ(Read(",2023\nb,2\n", kBars, Options([](auto& o) { o.HasHeading = false; })), "\n 2023\nb 2\n");
}

TEST(Table, PassesTitlesAndTextsAndTellsOfThem) {
    EXPECT_EQ(Read("Sales, in tons;;\n;;\nRegion;2023;2024\nNorth;5;6\n", kBars),
              "<Sales, in tons> 2023|2024\nNorth 5 6\n");
    EXPECT_EQ(Read("Sales\nNorth,5\n", kPie), "<Sales> \nNorth 5\n");
    EXPECT_EQ(Read("a;\nb;2", kPie).substr(0, 3), "\na ") << "no title but a row without its value";
    EXPECT_EQ(Read("Country,Code,2023\nSpain,ES,5\nItaly,IT,6\n", kBars),
              "2023\nSpain 5\nItaly 6\n0: column \"Code\" has no numbers and is passed over\n");
    EXPECT_EQ(
        Read("name,a,b,c\nx,1,2,3\n", kPie),
        "a\nx 1\n0: column \"a\" is shown, and not column \"b\", column \"c\"; --columns, or \"columns\" "
        "beside data/csv, chooses others\n");
    EXPECT_EQ(Read("sep=;\na,b;1\n", kPie), "\na,b 1\n");
    EXPECT_EQ(Read("a,1\nb,5\nTotal,6\n", kPie), "\na 1\nb 5\nTotal 6\n3: column 1: \"Total\" is the sum of "
                                                 "the rows above and is shown beside them; leave "
                                                 "the row out\n");
    EXPECT_EQ(Read("a,#N/A\nb,5\nc,#DIV/0!\n", kBars),
              "\na nan\nb 5\nc nan\n1: column 2: #N/A and 1 other error are taken as a gap\n");
}

TEST(Table, ShowsWhatIsChosen) {
    const std::string table = "name,2022,2023\nx,1,9\ny,3,2\nz,2,2\nw,1,1\n";
    const auto read = [&](const TableForm& form, const std::function<void(TableOptions&)>& set) {
        return Read(table, form, Options(set));
    };
    EXPECT_EQ(read(kPie, [](auto& o) { o.Columns = {"name", "2023"}; }), "2023\nx 9\ny 2\nz 2\nw 1\n");
    EXPECT_EQ(read(kPie,
                   [](auto& o) {
                       o.Columns = {"1", "3"};
                       o.Top = 2;
                   }),
              "2023\nx 9\ny 2\nOther 3\n");
    EXPECT_EQ(read(kBars, [](auto& o) { o.Order = TableOrder::Descending; }),
              "2022|2023\nx 1 9\ny 3 2\nz 2 2\nw 1 1\n");
    EXPECT_EQ(read(kBars,
                   [](auto& o) {
                       o.Order = TableOrder::ByName;
                       o.Columns = {"name", "2022"};
                   }),
              "2022\nw 1\nx 1\ny 3\nz 2\n");
    EXPECT_EQ(read(kBars, [](auto& o) { o.IsTransposed = true; }), "x|y|z|w\n2022 1 3 2 1\n2023 9 2 2 1\n");
    EXPECT_EQ(Read("T;;\nname;a;b\nx;1;oops\n", kBars, Options([](auto& o) { o.IsTransposed = true; })),
              "<T> x\na 1\nb 0\nerror 3: column 3: found \"oops\", expected a number\n");
    EXPECT_EQ(Read("n,text,v\nx,1,9\ny,a,b\n", kBars, Options([](auto& o) {
                       o.Columns = {"n", "v"};
                   })),
              "v\nx 9\ny 0\nerror 3: column 3: found \"b\", expected a number\n");
    EXPECT_NE(read(kBars,
                   [](auto& o) {
                       o.Columns = {"name", "2024"};
                   })
                  .find("found \"2024\", expected a column's heading or number, from 1 to 3"),
              std::string::npos);
    EXPECT_NE(
        read(kLines, [](auto& o) { o.Top = 2; }).find("error 0: top: found 2, expected nothing for a line"),
        std::string::npos);
    EXPECT_EQ(Read("甲,1\n乙,5\n丙,2\n丁,4", kPie, Options([](auto& o) { o.Top = 1; })), "\n乙 5\n其他 7\n");
}

TEST(Table, DatesStandAtTheirTrueDistances) {
    EXPECT_EQ(Read("day,v\n2024-01-01,1\n2024/1/3,2\n2024年1月9日,3\n", kLines),
              "v\n0 1\n2 2\n8 3\n2024-01-01|2024-01-03|2024-01-05|2024-01-07|2024-01-09\n");
    EXPECT_EQ(Read("2024-01,1\n2024-02,2\n2024年3月,3\n", kLines),
              "\n0 1\n31 2\n60 3\n2024-01-01|2024-01-16|2024-01-31|2024-02-15|2024-03-01\n");
    EXPECT_EQ(
        Read("2024-01-01 23:30,1\n2024-01-02T00:30Z,2\n", kLines),
        "\n0 1\n1 "
        "2\n2024-01-01\n23:30|2024-01-01\n23:45|2024-01-02\n00:00|2024-01-02\n00:15|2024-01-02\n00:30\n");
    EXPECT_EQ(Read("08:00,1\n09:00,2\n14:00,3\n", kLines),
              "\n0 1\n1 2\n6 3\n08:00|09:00|10:00|11:00|12:00|13:00|14:00\n");
    EXPECT_EQ(Read("1.2.2024,1\n3.2.2024,1\n", kLines), "\n0 1\n2 1\n2024-02-01|2024-02-02|2024-02-03\n");
    EXPECT_EQ(Read("2024-01-05,1\n2024-01-06,1\n2024-01-18,2\n", kLines),
              "\n0 1\n1 1\n13 2\n2024-01-05||||2024-01-09||||2024-01-13||||2024-01-17|\n")
        << "13 days have no equal parts";
    EXPECT_EQ(Read("1/31/2024,1\n2/1/2024,1\n", kLines).substr(0, 9), "\n0 1\n1 1\n");
    EXPECT_EQ(Read("12/1/2024,1\n1/2/2024,1\n", kLines).find("read with"), std::string::npos)
        << "only as days first are they in order";
    EXPECT_NE(Read("1/2/2024,1\n1/3/2024,1\n", kLines)
                  .find("1: column 1: \"1/2/2024\" is read with the month first"),
              std::string::npos);
    EXPECT_NE(Read("2024-01-02,1\n2024-01-01,1\n", kLines).find("2: column 1: the times are not in order"),
              std::string::npos);
    EXPECT_EQ(Read("2024-01-01,1\nsoon,2\n", kLines), "\n2024-01-01 1\nsoon 2\n") << "labels";
    EXPECT_EQ(Read("2024-02-30,1\n2024-03-01,2\n", kLines).substr(0, 14), "\n2024-02-30 1\n")
        << "no such day";
    EXPECT_EQ(Read("2024-01-01,1\n", kBars), "\n2024-01-01 1\n") << "a bar's name";
}

TEST(Table, TimesMayHaveDecimals) {
    EXPECT_EQ(Read("t,v\n0,1\n0.5,2\n0.75,3\n2,4\n", kLines),
              "v\n0 1\n50 2\n75 3\n200 4\n0|0.2|0.4|0.6|0.8|1|1.2|1.4|1.6|1.8|2\n");
    EXPECT_EQ(Read("0,5;1\n1,5;2\n", kLines), "\n5 1\n15 2\n0.5|0.6|0.7|0.8|0.9|1|1.1|1.2|1.3|1.4|1.5\n");
    EXPECT_EQ(Read("1704067200000,1\n1704067200011,2\n", kLines),
              "\n0 1\n11 2\n1704067200000|1704067200002.2|1704067200004.4|1704067200006.6|1704067200008.8|"
              "1704067200011\n")
        << "counted from the first";
}
