#include "charts/curve/BasicCurve.h"
#include "support/Drawings.h"
#include "support/SomeRecords.h"
#include "support/Texts.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace millichart;
using penlode::Color;

namespace {

using Values = std::vector<std::vector<double>>;
using Times = std::vector<std::vector<std::int32_t>>;

constexpr double kNull = -9999999.0;

/// No axes and no plot: curves alone, red and 0.5 wide, on a plot of 80 × 30 from (0, 0).
CurveProp CurvesAlone(std::vector<std::string> names) {
    CurveProp prop;
    prop.VerAxis.ShowVerAxis = 0;
    prop.HorAxis.ShowHorAxis = 0;
    prop.Plot.ShowBackground = 0;
    prop.Plot.ShowEdge = 0;
    prop.Plot.CurveName = std::move(names);
    prop.Plot.CurveColor = {Color{0xFFFF0000}};
    prop.Plot.CurveWidth = {0.5F};
    return prop;
}

CBasicCurve LaidOut(const CurveProp& prop, const Values& values, const Times& times,
                    const std::vector<std::string>& labels = {}) {
    CBasicCurve chart;
    chart.SetCurveProp(prop);
    chart.SetNaturalValueRange(0, 20, 10, 5);
    chart.SetLogarithmValueRange(1, 100);
    chart.SetCurveData(values, times);
    chart.SetHorAxisLabel(labels);
    chart.Layout();
    return chart;
}

/// The polylines of one curve whose values follow each other 10 mm apart.
std::string Lines(const CurveProp& prop, const std::vector<double>& values) {
    return Only(Drawn(LaidOut(prop, {values}, {{0, 1, 2, 3, 4, 5, 6, 7, 8}})), "DrawLines #FFFF0000/0.5 ");
}

/// What one marker 2 wide about (0, 15) is drawn as.
std::string Marker(std::int32_t style) {
    CurveProp prop = CurvesAlone({"A"});
    prop.Plot.CurveDotStyle = {style};
    prop.Plot.CurveDotColor = {Color{0xFF00FF00}};
    prop.Plot.CurveDotWidth = {2.0F};
    const std::string drawing = Drawn(LaidOut(prop, {{10}}, {{0}}));
    return drawing.substr(drawing.find('\n') + 1);
}

} // namespace

TEST(BasicCurveDraw, AWholeChart) {
    CurveProp prop;
    prop.Caption.ShowCaption = 1;
    prop.Caption.Caption = Narrow(L"水深");
    prop.VerAxis.ShowHorMinorGrid = 1;
    prop.VerAxis.HorMinorGridPen = penlode::Pen(Color{0xFFE0E0E0}, 0.1F, penlode::DashStyle::Dot);
    prop.VerAxis.HorMajorGridPen = penlode::Pen(Color{0xFFC0C0C0}, 0.2F);
    prop.VerAxis.MinorScaleStyle = ScaleStyle::Inner;
    prop.VerAxis.ShowVerCaption = 1;
    prop.VerAxis.VerCaption = "m";
    prop.HorAxis.ScaleStyle = ScaleStyle::Cross;
    prop.HorAxis.VerGridPen = penlode::Pen(Color{0xFFD0D0D0}, 0.1F);
    prop.HorAxis.ShowHorCaption = 1;
    prop.HorAxis.HorCaption = "t";
    prop.Plot.CurveName = {"A", "BB"};
    prop.Plot.CurveColor = {Color{0xFF4472C4}, Color{0xFFED7D31}};
    prop.Plot.CurveWidth = {0.3F, 0.4F};
    prop.Plot.CurveDashStyle = {0, 1};
    prop.Plot.CurveDotStyle = {CurveDotStyle::None, CurveDotStyle::HollowCircle};
    prop.Plot.CurveDotColor = {penlode::kBlack, Color{0xFF804010}};
    prop.Plot.CurveDotWidth = {1.0F, 2.0F};
    prop.Legend.ShowLegend = 1;
    prop.Legend.ShowBackground = 1;
    const CBasicCurve chart = LaidOut(prop, {{0, 10, 20}, {20, 5}}, {{0, 1, 2}, {0, 2}}, {"x", "y"});
    ExpectDrawing("curves", Drawn(chart));
}

TEST(BasicCurveDraw, AWholeChartOnALogarithmicAxis) {
    CurveProp prop = CurvesAlone({"A"});
    prop.Plot.LogarithmScale = 1;
    prop.VerAxis.ShowVerAxis = 1;
    prop.VerAxis.MinorScaleStyle = ScaleStyle::None;
    prop.VerAxis.ShowHorMajorGrid = 1;
    prop.VerAxis.HorMajorGridPen = penlode::Pen(Color{0xFFC0C0C0}, 0.2F);
    prop.VerAxis.ShowHorMinorGrid = 1;
    prop.VerAxis.HorMinorGridPen = penlode::Pen(Color{0xFFE0E0E0}, 0.1F);
    ExpectDrawing("logarithmic-curve", Drawn(LaidOut(prop, {{1, 10, 100}}, {{0, 1, 2}})));
}

TEST(BasicCurveDraw, NullsBreakTheLine) {
    const CurveProp prop = CurvesAlone({"A"});
    EXPECT_EQ(Lines(prop, {0, 10, 20}), "[3] (0 30) (10 15) (20 0)\n");
    EXPECT_EQ(Lines(prop, {kNull, 0, 0, 10}), "[0]\n[3] (10 30) (20 30) (30 15)\n");
    EXPECT_EQ(Lines(prop, {0, 10, kNull, 10, 0}), "[2] (0 30) (10 15)\n[2] (30 15) (40 30)\n");
    EXPECT_EQ(Lines(prop, {0, kNull, kNull, 10}), "[1] (0 30)\n[0]\n[1] (30 15)\n");
    EXPECT_EQ(Lines(prop, {0, 10, kNull}), "[2] (0 30) (10 15)\n[0]\n");
    EXPECT_EQ(Lines(prop, {kNull, kNull, 0, kNull, kNull}), "[0]\n[0]\n[1] (20 30)\n[0]\n[0]\n");
    EXPECT_EQ(Lines(prop, {}), "null\n") << "a call without a point to point to";
}

TEST(BasicCurveDraw, ALineRunsThroughItsNullsAsZero) {
    CurveProp prop = CurvesAlone({"A"});
    prop.Plot.CurveDotStyle = {CurveDotStyle::SolidSquare};
    for (const std::int32_t style : {CurveNullValueStyle::AsZero, 7}) {
        prop.Plot.NullValueStyle = {style};
        EXPECT_EQ(Lines(prop, {kNull, 10, kNull, kNull, 20}), "[5] (0 30) (10 15) (20 30) (30 30) (40 0)\n");
    }
    EXPECT_EQ(Lines(prop, {10, kNull}), "[2] (0 15) (10 30)\n");
    // A value that is no number breaks the line all the same.
    EXPECT_EQ(Lines(prop, {kNull, 10, std::nan(""), 20}), "[2] (0 30) (10 15)\n[1] (30 0)\n");
    const std::string withMarkers = Drawn(LaidOut(prop, {{kNull, 10, 20}}, {{0, 1, 8}}));
    EXPECT_EQ(Only(withMarkers, "FillRectangle "), "#FF000000 (9.5 14.5 1 1)\n#FF000000 (79.5 -0.5 1 1)\n");
    // 0 has no place on a logarithmic axis.
    prop.Plot.LogarithmScale = 1;
    EXPECT_EQ(Lines(prop, {1, 10, kNull, 10, 0, 100}), "[2] (0 30) (10 15)\n[1] (30 15)\n[1] (50 0)\n");
    EXPECT_EQ(Only(Drawn(LaidOut(prop, {{0, 1}}, {{0, 8}})), "FillRectangle "),
              "#FF000000 (79.5 29.5 1 1)\n");
}

TEST(BasicCurveDraw, EveryDash) {
    CurveProp prop = CurvesAlone({"A"});
    const char* const expected[] = {"", "/dash", "/dot", "/dash-dot", "/dash-dot-dot", "/custom"};
    for (std::int32_t style = 0; style <= 5; ++style) {
        prop.Plot.CurveDashStyle = {style};
        EXPECT_EQ(Drawn(LaidOut(prop, {{0, 10}}, {{0, 1}})),
                  "DrawLines #FFFF0000/0.5" + std::string(expected[style]) + " [2] (0 30) (80 15)\n");
    }
}

TEST(BasicCurveDraw, AChartOfTheHostsDrawsLinesOfItsOwn) {
    struct HostChart : CBasicCurve {
        using CBasicCurve::DrawLine;
    };

    penlode::CRecordingEngine engine;
    const std::vector<penlode::PointF> line{{0, 0}, {1, 1}, {2, 2}, {3, 3}, {NAN, 4}, {5, 5}};
    const std::vector<penlode::PointF> markers{{0, 9}, {1, 9}, {2, 9}};
    // Flags alone say what is null, and points without a flag are not.
    HostChart().DrawLine(&engine, line, markers, {false, true}, Color{0xFF0000FF}, 0.2F, 2,
                         CurveDotStyle::SolidCircle, Color{0xFFFF0000}, 1.0F, CurveNullValueStyle::Break);
    EXPECT_EQ(engine.Text(), "DrawLines #FF0000FF/0.2/dot [1] (0 0)\n"
                             "DrawLines #FF0000FF/0.2/dot [2] (2 2) (3 3)\n"
                             "DrawLines #FF0000FF/0.2/dot [1] (5 5)\n"
                             "FillEllipse #FFFF0000 (-0.5 8.5 1 1)\n"
                             "FillEllipse #FFFF0000 (1.5 8.5 1 1)\n");
}

TEST(BasicCurveDraw, Markers) {
    std::string all;
    for (std::int32_t style = -1; style <= 11; ++style) {
        const std::string marker = Marker(style);
        all += std::to_string(style) + ": " + (marker.empty() ? "nothing\n" : marker);
    }
    ExpectDrawing("markers", all);
}

TEST(BasicCurveDraw, StepsThinOutTicksLabelsAndGrid) {
    CurveProp prop;
    prop.VerAxis.ShowVerAxis = 0;
    prop.HorAxis.HorAxisPen = penlode::Pen(Color{0xFF000001}, 0.1F);
    prop.HorAxis.VerGridPen = penlode::Pen(Color{0xFF000002}, 0.1F);
    prop.HorAxis.ScaleStep = 3;
    prop.HorAxis.LabelStep = 4;
    prop.HorAxis.VerGridStep = 5;
    const std::vector<std::string> labels{"a", "b", "c", "d", "e", "f", "g"};
    prop.Plot.PlotWidth = 60;
    const std::string drawing = Brief(Drawn(LaidOut(prop, {{1}}, {{0}}, labels)));
    EXPECT_EQ(Only(drawing, "DrawLine #FF000001/0.1 "), "(0 30) (60 30)\n(0 30) (0 31)\n(30 30) (30 31)\n"
                                                        "(60 30) (60 31)\n");
    EXPECT_EQ(Only(drawing, "DrawLine #FF000002/0.1 "), "(0 30) (0 0)\n(50 30) (50 0)\n");
    EXPECT_EQ(Only(drawing, "at "),
              "0 33.5 turned 0: DrawString \"a\" 宋体/4 (-1 -2.5 2 5.5) center-center #FF000000\n"
              "40 33.5 turned 0: DrawString \"e\" 宋体/4 (-1 -2.5 2 5.5) center-center #FF000000\n");

    // A step that would not advance counts as 1.
    prop.HorAxis.ScaleStyle = ScaleStyle::Inner;
    prop.HorAxis.ScaleStep = 0;
    prop.HorAxis.LabelStep = -7;
    prop.HorAxis.VerGridStep = -1;
    const std::string all = Brief(Drawn(LaidOut(prop, {{1}}, {{0}}, {"a", "b"})));
    EXPECT_EQ(Only(all, "DrawLine #FF000001/0.1 "), "(0 30) (60 30)\n(0 30) (0 29)\n(60 30) (60 29)\n");
    EXPECT_EQ(Only(all, "DrawLine #FF000002/0.1 "), "(0 30) (0 0)\n(60 30) (60 0)\n");
    EXPECT_NE(all.find("\"b\""), std::string::npos);
}

TEST(BasicCurveDraw, LabelsThatChangedAreDrawnWhereThereIsRoomForTwo) {
    CurveProp prop = CurvesAlone({});
    prop.HorAxis.ShowHorAxis = 1;
    CBasicCurve chart = LaidOut(prop, {{1}}, {{0}}, {"a", "b", "c"});
    chart.SetHorAxisLabel({"x"});
    EXPECT_EQ(Only(Brief(Drawn(chart)), "at "), "");
    EXPECT_TRUE(TextsOf(chart).empty());
    chart.SetHorAxisLabel({"x", "y"});
    EXPECT_EQ(TextsOf(chart).size(), 2U);
}

TEST(BasicCurveDraw, WithoutCurvesThereIsNothing) {
    CurveProp prop = SomeCurves();
    prop.Caption.ShowCaption = prop.VerAxis.ShowVerCaption = prop.HorAxis.ShowHorCaption = 1;
    CBasicCurve chart = LaidOut(prop, {{1}}, {{0}});
    EXPECT_NE(Drawn(chart), "");
    EXPECT_FALSE(TextsOf(chart).empty());
    chart.SetCurveData({}, {});
    chart.Layout();
    EXPECT_EQ(Drawn(chart), "");
    EXPECT_TRUE(TextsOf(chart).empty());
}

TEST(BasicCurveDraw, NamesSayHowManyCurvesThereAre) {
    CurveProp prop = CurvesAlone({"A"});
    EXPECT_EQ(Drawn(LaidOut(prop, {{0, 10}, {10, 0}}, {{0, 1}, {0, 1}})),
              "DrawLines #FFFF0000/0.5 [2] (0 30) (80 15)\n");
    prop.Plot.CurveName = {"A", "B", "C"};
    prop.Plot.CurveDashStyle = {9};
    prop.Legend.ShowLegend = 1;
    prop.Legend.ShowEdge = 0;
    // The rest of the names have an item; a curve without entries is black, solid and 0.1 wide.
    const CBasicCurve chart = LaidOut(prop, {{0, 10}, {10, 0}}, {{0, 1}, {0, 1}});
    EXPECT_EQ(Only(Drawn(chart), "DrawLines "),
              "#FFFF0000/0.5 [2] (0 30) (80 15)\n#FF000000/0.1 [2] (0 15) (80 30)\n"
              "#FFFF0000/0.5 [2] (82 10) (92 10)\n#FF000000/0.1 [2] (82 15) (92 15)\n"
              "#FF000000/0.1 [2] (82 20) (92 20)\n");
}

TEST(BasicCurveDraw, WhatChangedAfterTheLayoutIsNotReadPastItsEnd) {
    CurveProp prop = CurvesAlone({"A", "B"});
    prop.HorAxis.ShowHorAxis = 1;
    prop.Legend.ShowLegend = 1;
    CBasicCurve chart = LaidOut(prop, {{kNull, 2}, {1, 2}}, {{0, 1}, {0, 1}}, {"a", "b"});
    chart.SetCurveData({{1}}, {{}});
    chart.SetHorAxisLabel({});
    chart.SetCurveProp(CurvesAlone({}));
    EXPECT_EQ(Drawn(chart), "");
    prop.Plot.CurveName = {"A"};
    chart.SetCurveProp(prop);
    EXPECT_EQ(Only(Drawn(chart), "DrawString "), "\"A\" 宋体/4 (92 13 2 5) center-center #FF000000\n");
    chart.Draw(nullptr);
    EXPECT_EQ(Drawn(CBasicCurve()), "");
}
