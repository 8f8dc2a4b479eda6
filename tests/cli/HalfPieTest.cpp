#include "CommandTest.h"

using HalfPie = cli_test::CommandTest;

namespace {

/// A half pie of 20 mm whose labels are names alone, without a key after the last.
std::string Half(const std::string& basic) {
    return R"({"PieLabelProp": {"ShowNameLabel": 1}, "HalfPieBasicProp": {"FixedSize": 1)" + basic + "}}";
}

std::string Halves(const std::string& first, const std::string& second, const std::string& rest) {
    return R"({"kind": "half-pie-half-pie", "property": {"TopHalf": )" + Half(first) + R"(, "LowerHalf": )" +
           Half(second) + "},\n" + rest + "}";
}

const std::string kLower = R"(, "WhichPart": "Lower")";

std::string WithBars(const std::string& half, const std::string& rest) {
    return R"({"kind": "half-pie-histogram", "property": {"HalfPie": )" + Half(half) +
           R"(, "Histogram": {"HistogramPlotProp": {"PlotHeight": 30}}},)" + "\n" + rest + "}";
}

} // namespace

TEST_F(HalfPie, OneFileFillsBothHalves) {
    Write("d.csv", ",2010,2020\n煤炭,30,10\n石油,10,10\n");
    const std::string document = Halves("", kLower, R"("data": {"csv": "d.csv"})");
    EXPECT_NE(Shown(document, "first").find(R"("labelTexts":["煤炭","石油"])"), std::string::npos);
    const std::string drawn = Shown(document, "call");
    EXPECT_NE(drawn.find(R"("start":180,"sweep":135})"), std::string::npos) << drawn;
    EXPECT_NE(drawn.find(R"("start":0,"sweep":90})"), std::string::npos) << drawn;
    const std::string own = R"("data": {"first": {"csv": "none.csv"}, "second": {"values": [7]}})";
    EXPECT_EQ(Shown(Halves("", kLower, own), "call", "--data d.csv"), drawn);

    Write("d.csv", "name,a,b\nx,1\ny,-1,2\nz,1,two\n");
    EXPECT_EQ(Run("millichart draw h.json --data d.csv").Errors,
              "millichart: d.csv:2: found 2 cells, expected a name and two values\n"
              "millichart: d.csv:3: column 2: found -1, expected 0 or more\n"
              "millichart: d.csv:4: column 3: found \"two\", expected a number\n");
    Write("d.csv", "a,1,2\n");
    EXPECT_EQ(Run("millichart draw h.json --data d.csv").Errors,
              "millichart: d.csv: found no rows, expected a heading, and rows of a name and two values\n");
}

TEST_F(HalfPie, EachHalfHasItsOwnDataAndOffsets) {
    Write("d.csv", "North,3\n");
    const std::string data = R"("data": {"first": {"csv": "d.csv"}, "second": {"values": [1]}})";
    const auto second = [&](const std::string& offset) {
        return Shown(Halves("", kLower + R"(, "ComponentName": ["South"])",
                            data + R"(, "labelOffsets": {"first": [], "second": [")" + offset + "\"]}"),
                     "second");
    };
    EXPECT_NE(second("0 0").find(R"("labelTexts":["South"],"labelRects":[[)"), std::string::npos);
    const auto corner = [&](const std::string& offset) {
        const std::string text = second(offset);
        return std::stod(text.substr(text.find("\"labelRects\":[[") + 15));
    };
    EXPECT_NEAR(corner("3.5 0") - corner("0 0"), 3.5, 0.002);
}

TEST_F(HalfPie, BarsTakeAFileAndARangeOfTheirOwn) {
    Write("bars.csv", ",a,b\n2023,12,30\n");
    const std::string data = R"("data": {"values": [1, 2], "groupsCsv": "bars.csv"})";
    const auto bars = [&](const std::string& range) {
        return Shown(WithBars(kLower, data + range), "histogram");
    };
    EXPECT_NE(bars("").find("[[-35,-9,35,9],[0,-22.5,35,22.5]]"), std::string::npos) << "of 40";
    EXPECT_NE(bars(R"(, "range": {"InitializeValueRange": 90})").find("[0,-9,35,9]]"), std::string::npos)
        << "of 100";
    const Outcome refused = Run("millichart draw h.json --data bars.csv");
    EXPECT_EQ(refused.Status, 1);
    EXPECT_EQ(refused.Errors, "millichart: bars.csv: this kind of chart needs two files; name them in the "
                              "document, under data/csv and data/groupsCsv\n");
}

TEST_F(HalfPie, WarnsOfHalvesThatCoverSomething) {
    EXPECT_EQ(
        Warnings(Halves("", R"(, "WhichPart": "Top")",
                        R"("data": {"first": {"values": [1]}}, "labelOffsets": {"first": ["1 1"]})")),
        "h.json:1: warning: property/LowerHalf/HalfPieBasicProp/WhichPart: fills the same half of the "
        "circle as TopHalf and covers it\n"
        "h.json:2: warning: labelOffsets/first: found 1 point, expected 0, as a label without a name does "
        "not move\n"
        "h.json: warning: data/second: found no value above 0, expected one for each slice\n");
    EXPECT_EQ(
        Warnings(WithBars(R"(, "WhichPart": "Top")",
                          R"("data": {"values": [1], "groups": [{"values": [5]}]},
                                "range": {"InitializeValueRange": 3})")),
        "h.json:1: warning: property/HalfPie/HalfPieBasicProp/WhichPart: the upper half lies behind the "
        "bars; \"Lower\" lies below them\n"
        "h.json:2: warning: data/groups/0/values/0: lies outside the value axis, which goes from 0 to 4\n");
    EXPECT_EQ(Warnings(WithBars(kLower, R"("data": {"values": [1], "groups": []})")),
              "h.json:2: warning: data/groups: found nothing to draw, expected a group with values\n");
    EXPECT_NE(Warnings(Halves("", kLower, R"("data": {"first": {"values": [1]}, "second": {"values": [1]}},
                                "labelOffsets": {"first": [], "second": ["1 1", "2 2"]})"))
                  .find("labelOffsets/second: found 2 points, expected 0"),
              std::string::npos);
}
