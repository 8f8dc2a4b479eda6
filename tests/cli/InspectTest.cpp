#include "CommandTest.h"

using Inspect = cli_test::CommandTest;

TEST_F(Inspect, ShowsLayoutAndCallsWhereTheLocationPutsThem) {
    Write("i.json", R"({"kind": "pie", "property": {"PieBasicProp": {"PieStyle": "2D", "FixedSize": 1,
        "FixedWidth": 20.0004, "StartAngle": 0, "ComponentColor": ["#336699"], "PenSepLine": "#80000000 0.25 dash"},
        "PieLegendProp": {"ShowLegend": 0}}, "data": {"values": [1, 2]}, "location": "100 50"})");
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
  "calls": [
    {"call":"FillPie","brush":"#FF336699","rect":[90,40,20,20],"start":0,"sweep":120},
    {"call":"DrawPie","pen":"#80000000 0.25 dash","rect":[90,40,20,20],"start":0,"sweep":120},
    {"call":"DrawPie","pen":"#80000000 0.25 dash","rect":[90,40,20,20],"start":120,"sweep":240}
  ]
}
)");
    EXPECT_NE(
        outcome.Errors.find("warning: property/PieBasicProp/ComponentColor: found 1 colour, expected 2"),
        std::string::npos);
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
