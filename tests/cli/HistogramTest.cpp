#include "CommandTest.h"

using Histogram = cli_test::CommandTest;

namespace {

/// Bars of 30 mm for 30, without labels; what is over the axis is `rest`.
std::string Bars(const std::string& plot, const std::string& rest) {
    return R"({"kind": "histogram", "property": {"HistogramVerAxisProp": {"ShowVerAxis": 1},
        "HistogramPlotProp": {"PlotWidth": 80, "PlotHeight": 30, "GroupDistane": 10)" +
           plot + "}},\n" + rest + "}";
}

} // namespace

TEST_F(Histogram, TakesItsRangeFromTheLargestBarOrStack) {
    const std::string data = R"("data": {"groups": [{"values": [12, 30]}, {"values": [25, 7, null]}]})";
    EXPECT_NE(Shown(Bars("", data), "verLabelTexts").find("\"40\"]"), std::string::npos);
    EXPECT_NE(Shown(Bars(R"(, "Juxtaposition": 0)", data), "verLabelTexts").find("\"50\"]"),
              std::string::npos);
    EXPECT_NE(Shown(Bars(R"(, "LogarithmScale": 1)", data), "verLabelTexts").find("\"100\"]"),
              std::string::npos);
    const std::string range = R"(, "range": {"NaturalValueRange": [-10, 30, 20, 5]})";
    EXPECT_NE(Shown(Bars("", data + range), "verLabelTexts").find("[\"-10\",\"10\",\"30\"]"),
              std::string::npos);
}

TEST_F(Histogram, GapsHaveNoBars) {
    const std::string data = R"("data": {"groups": [{"values": [10, null, 10]}, {"values": [10, ""]}]})";
    const std::string rects = Shown(Bars("", data), "componentRects");
    EXPECT_NE(rects.find(",null,10,null],["), std::string::npos) << rects;
    EXPECT_NE(rects.find("]],[["), std::string::npos) << rects;
}

TEST_F(Histogram, ReadsATableOfGroups) {
    Write("d.csv", "\xEF\xBB\xBF,2023,2024,\r\n北,4,\r\n\"South, far\",2.5,3\r\n");
    const std::string document = Bars("", R"("data": {"csv": "d.csv"})");
    const std::string drawn = Shown(document, "call");
    EXPECT_NE(drawn.find("\"South, far\""), std::string::npos);
    EXPECT_NE(drawn.find("\"北\""), std::string::npos);
    EXPECT_NE(Shown(document, "componentWidth").find("15"), std::string::npos)
        << "two components, as the heading says";
    EXPECT_NE(Shown(Bars("", R"("data": {"groups": []})"), "componentWidth", "--data d.csv").find("15"),
              std::string::npos);
}

TEST_F(Histogram, LabelsBesideTheLastBarStandOnThePage) {
    Write("h.json",
          R"({"kind": "histogram", "property": {"HistogramPlotProp": {"Juxtaposition": 0, "GroupDistane": 0,
        "ComponentName": ["a rather long name"]}}, "data": {"groups": [{"values": [5]}]}})");
    const Outcome narrow =
        Run("millichart draw h.json -o h.svg && grep -o 'width=\"[0-9.]*mm' h.svg | head -1");
    EXPECT_GT(std::stod(narrow.Output.substr(narrow.Output.find('"') + 1)), 115.0) << narrow.Output;
}
