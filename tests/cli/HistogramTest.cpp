#include "CommandTest.h"

using Histogram = cli_test::CommandTest;

namespace {

/// Bars of 30 mm for 30, without labels; what is over the axis is `rest`.
std::string Bars(const std::string& plot, const std::string& rest) {
    return R"({"kind": "histogram", "property": {"HistogramVerAxisProp": {"ShowVerAxis": 1},
        "HistogramPlotProp": {"ShowComponentName": 0, "ShowComponentValue": 0)" +
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

    Write("d.csv", "year,a\n2023,1,2\n2024,x\n");
    EXPECT_EQ(Run("millichart draw h.json --data d.csv").Errors,
              "millichart: d.csv:2: found 3 cells, expected as many as in the heading\n"
              "millichart: d.csv:3: column 2: found \"x\", expected a number\n");
    Write("d.csv", "year\n2023\n");
    EXPECT_EQ(Run("millichart draw h.json --data d.csv").Errors,
              "millichart: d.csv:1: found 1 cell, expected a heading: a cell for the group names and the "
              "components' names\n");
}

TEST_F(Histogram, WarnsOfWhatWasHardlyMeant) {
    EXPECT_EQ(
        Warnings(Bars(R"(, "ComponentName": ["a", "b"], "ComponentColor": ["#FF0000"])",
                      R"("data": {"groups": [{"values": [1, 2, 3]}, {"values": [55, -1, 60]}]},
        "range": {"NaturalValueRange": [0, 50, 10, 5]})")),
        "h.json:2: warning: property/HistogramPlotProp/ComponentName: found 2 names, expected 3, one a "
        "value of a group\n"
        "h.json:2: warning: property/HistogramPlotProp/ComponentColor: found 1 colour, expected 2, one a "
        "name\n"
        "h.json:3: warning: data/groups/1/values/0: this and 2 other values lie outside the value axis, "
        "which goes from 0 to 50\n");
    const std::string text = R"("data": {"groups": [{"values": [0.0002, 0.0001]}, {"values": []}]})";
    EXPECT_EQ(
        Warnings(Bars(R"(, "PlotWidth": 0.15, "GroupDistane": -0.5)", text)),
        "h.json:2: warning: property/HistogramPlotProp/GroupDistane: the bars of neighbouring groups "
        "overlap\n"
        "h.json: warning: range: the largest bar takes less than 1 % of the value axis, which goes from 0 "
        "to 1; NaturalValueRange sets another\n");
    EXPECT_EQ(Warnings(Bars("", R"("data": {"groups": [{"values": [null]}]})")),
              "h.json:3: warning: data/groups: found nothing to draw, expected a group with values\n");
    std::string values = "1";
    for (int i = 0; i < 20; ++i) {
        values += ",1";
    }
    EXPECT_EQ(
        Warnings(Bars(R"(, "PlotWidth": 1, "GroupDistane": 0)",
                      "\"data\": {\"groups\": [{\"values\": [" + values + "]}]}")),
        "h.json:2: warning: property/HistogramPlotProp/PlotWidth: each bar is only 0.04761905 mm wide\n");
}

TEST_F(Histogram, BarsInDepthNeedNamesForTheirWidth) {
    Write("h.json",
          Bars(R"(, "PieStyle": "3D", "ComponentName": [])", R"("data": {"groups": [{"values": [1, 2]}]})"));
    const Outcome refused = Run("millichart draw h.json");
    EXPECT_EQ(refused.Status, 1);
    EXPECT_NE(refused.Errors.find("ComponentName: found no names, expected 2"), std::string::npos)
        << refused.Errors;
}

TEST_F(Histogram, SaysWhatIsDoubtfulWhereItStandsInTheTable) {
    Write("d.csv", "year,2023,2024\n\nnorth,-2,61.00001\nsouth,50,\n");
    EXPECT_EQ(
        Warnings(Bars("", R"("data": {"csv": "d.csv"}, "range": {"NaturalValueRange": [0, 61, 10, 2]})")),
        "d.csv:1: warning: taken as the heading with the components' names, though they are numbers; with "
        "an empty first cell it is no doubt one\n"
        "d.csv:3: warning: column 2: this and 1 other value lie outside the value axis, which goes from 0 "
        "to 61\n");
}

TEST_F(Histogram, ATableReplacesGroupsOfAnyForm) {
    Write("d.csv", "year,a\n2023,1\n");
    for (const char* groups : {"[]", "[{\"values\": [3]}]"}) {
        Shown(Bars("", std::string(R"("data": {"groups": )") + groups + "}"), "componentWidth",
              "--data d.csv");
    }
    Write("h.json", Bars("", R"("data": {"groups": {}, "csv": "d.csv"})"));
    EXPECT_EQ(Run("millichart draw h.json").Errors,
              "millichart: h.json:3: data/groups: found {}, expected a list of groups, each with a name and "
              "values\n"
              "millichart: h.json:3: data/csv: found \"d.csv\", expected either groups or csv, not both\n");
    Write("h.json", Bars("", R"("data": {"groups": [3, "a", null]})"));
    EXPECT_EQ(Run("millichart draw h.json --data d.csv").Errors,
              "millichart: h.json:3: data/groups/0: found 3, expected a group\n"
              "millichart: h.json:3: data/groups/1: found \"a\", expected a group\n"
              "millichart: h.json:3: data/groups/2: found null, expected a group\n");
}

TEST_F(Histogram, LabelsBesideTheLastBarStandOnThePage) {
    Write("h.json",
          R"({"kind": "histogram", "property": {"HistogramPlotProp": {"Juxtaposition": 0, "GroupDistane": 0,
        "ComponentName": ["a rather long name"]}}, "data": {"groups": [{"values": [5]}]}})");
    const Outcome narrow =
        Run("millichart draw h.json -o h.svg && grep -o 'width=\"[0-9.]*mm' h.svg | head -1");
    EXPECT_GT(std::stod(narrow.Output.substr(narrow.Output.find('"') + 1)), 115.0) << narrow.Output;
}
