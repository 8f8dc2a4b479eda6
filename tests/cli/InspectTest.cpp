#include "CommandTest.h"

using Inspect = cli_test::CommandTest;

TEST_F(Inspect, ShowsLayoutAndCallsWhereTheLocationPutsThem) {
    Write("i.json", R"({"kind": "pie", "property": {"PieBasicProp": {"PieStyle": "2D", "FixedSize": 1,
        "FixedWidth": 20.0004, "StartAngle": 0, "ComponentColor": ["#336699"], "PenSepLine": "#80000000 0.25 dash"},
        "PieLabelProp": {"ShowPercentLabel": 0}}, "data": {"values": [1, 2]}, "location": "100 50"})");
    const Outcome outcome = Run("millichart inspect i.json");
    EXPECT_EQ(outcome.Status, 0);
    EXPECT_EQ(outcome.Output, R"({
  "file": "i.json",
  "kind": "pie",
  "extent": [90,40,20,20],
  "layout": {
    "whole": [90,40,20,20],
    "pie": [90,40,20,20],
    "labelTexts": [],
    "labelRects": [],
    "legendItemRects": []
  },
  "texts": [],
  "shapes": {
    "face": [90,40,20,20],
    "depth": 0,
    "slices": [{"start":0,"sweep":120,"fill":"#FF336699","walls":[]},{"start":120,"sweep":240,"fill":"#FFE58A3C","walls":[]}]
  },
  "calls": [
    {"call":"FillPie","brush":"#FF336699","rect":[90,40,20,20],"start":0,"sweep":120},
    {"call":"DrawPie","pen":"#80000000 0.25 dash","rect":[90,40,20,20],"start":0,"sweep":120},
    {"call":"FillPie","brush":"#FFE58A3C","rect":[90,40,20,20],"start":120,"sweep":240},
    {"call":"DrawPie","pen":"#80000000 0.25 dash","rect":[90,40,20,20],"start":120,"sweep":240}
  ]
}
)");
    EXPECT_EQ(outcome.Errors, "");
}

TEST_F(Inspect, ShowsWhatIsDrawnAndWhatItBelongsTo) {
    const auto shown = [this](const std::string& example) {
        return Run("millichart inspect '" MILLICHART_EXAMPLES "/" + example + ".chart.json'").Output;
    };
    EXPECT_NE(shown("pie-china-age-2020")
                  .find(R"(  "shapes": {
    "face": [-32,-32,64,43.2],
    "depth": 14.4,
    "slices": [{"start":200,"sweep":64.612,"fill":"#FF3B6FB6","walls":[]},)"
                        R"({"start":264.612,"sweep":228.064,"fill":"#FFE58A3C","walls":[[0,132.676]]},)"),
              std::string::npos);
    const std::string bars = shown("half-pie-histogram-space-shuttle");
    EXPECT_NE(bars.find(R"("histogram": {"depth":[0,0],"bars":[)"
                        R"({"group":0,"component":0,"front":[-49,-23,14,23],"fill":"#FFA9B4C2"},)"),
              std::string::npos);
    EXPECT_NE(bars.find(R"(    {"owner":{"role":"barLabel","index":0,"component":1,"part":1},"text":)"),
              std::string::npos);
    EXPECT_NE(shown("histogram-china-grain")
                  .find(R"("role":"verCaption","index":0,"component":0,"part":0},"text":)"),
              std::string::npos);
    Write("c.json", R"({"kind": "curve", "property": {"CurvePlotProp": {"CurveName": ["A", "B"]}},
        "data": {"curves": [{"values": [1, 2, null, 4, 5, 6]}, {"values": [1, 2]}]}})");
    EXPECT_NE(Run("millichart inspect c.json").Output.find(R"("curves": [[2,3],[2]])"), std::string::npos);
}

TEST_F(Inspect, AFailureShowsNothing) {
    Write("i.json", R"({"kind": "pie", "data": {"values": []}})");
    const Outcome outcome = Run("millichart inspect i.json");
    EXPECT_EQ(outcome.Status, 1);
    EXPECT_EQ(outcome.Output, "");
    EXPECT_EQ(outcome.Errors,
              "millichart: i.json:1: data/values: found nothing to draw, expected a number for each slice\n");
}

TEST_F(Inspect, ShortFormsGiveNamesAndColours) {
    Write("i.json",
          R"({"kind": "pie", "property": {"PieLabelProp": {"ShowNameLabel": true, "PieLabelTextProperty":
        {"字体": "宋体 3"}}, "PieBasicProp": {"ComponentName": ["甲", "B|b", "C"], "PieStyle": "2D"}},
        "data": {"values": [1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11]}})");
    const std::string shown = Run("millichart inspect i.json").Output;
    EXPECT_NE(shown.find(R"("labelTexts": ["甲","B|b","C")"), std::string::npos) << shown;
    EXPECT_NE(shown.find(R"("font":"宋体 3")"), std::string::npos);
    EXPECT_NE(shown.find(R"({"call":"FillPie","brush":"#FF3B6FB6")"), std::string::npos);
    EXPECT_NE(shown.find(R"({"call":"FillPie","brush":"#FF6C93C8")"), std::string::npos)
        << "the first hue, paler";
}
