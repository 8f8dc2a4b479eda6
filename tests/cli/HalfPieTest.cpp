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
           R"(, "Histogram": {"HistogramPlotProp": {"PlotWidth": 80, "GroupDistane": 10}}},)" + "\n" + rest +
           "}";
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
}
